#pragma once

#include "griddrawer.h"
#include "mixselection.h"
#include "settingsdialog.h"

#include <QPointer>

#include <array>
#include <utility>
#include <vector>

class CustomerQlabel;
class QCheckBox;
class QGridLayout;
class QLabel;
class QLayout;
class QSettings;

namespace UX::Widgets {
class FramelessMessageBox;
}

// The advanced settings of the grid test: background, width and spacing of the lines, which
// take effect at once, and what the merged test shows, which is stored on confirmation.
class MixSetting : public SettingsDialog
{
    Q_OBJECT

public:
    // Drawer and settings are borrowed. Without settings everything is selected and nothing
    // is stored.
    MixSetting(GridDrawer *drawer, QSettings *settings, QWidget *parent);

    // As the boxes stand, stored or not.
    MixSelection selection() const;
    bool isSelectedCheckBox() const { return !selection().isEmpty(); }
    bool getRedChecked() const { return selection().contains(MixSelection::Red); }
    bool getGreenChecked() const { return selection().contains(MixSelection::Green); }
    bool getBlueChecked() const { return selection().contains(MixSelection::Blue); }
    bool getYellowChecked() const { return selection().contains(MixSelection::Yellow); }
    bool getWhiteChecked() const { return selection().contains(MixSelection::White); }
    bool getCyanChecked() const { return selection().contains(MixSelection::Cyan); }
    bool getPurpleChecked() const { return selection().contains(MixSelection::Purple); }
    bool getHChecked() const { return selection().contains(MixSelection::Horizontal); }
    bool getVChecked() const { return selection().contains(MixSelection::Vertical); }
    bool getSLChecked() const { return selection().contains(MixSelection::SlantLeft); }
    bool getSRChecked() const { return selection().contains(MixSelection::SlantRight); }

    void initSelected() { check(MixSelection::stored(settings)); }
    void saveMixStatus();
    void updateLanguage();

public slots:
    void slot_pushButtonAll() { check(MixSelection::stored(nullptr)); }
    void slot_pushButtonClear() { check({}); }
    // Stores the selection and closes the dialog, or asks for a selection if there is none.
    void slot_pushButtonOK();
    void slot_spinBoxPixValueChanged(int width) { drawer->slot_changePix(width); }
    void slot_spinBoxDistanceValueChanged(int distance) { drawer->slot_changeDistance(distance); }

private:
    void initLayout();
    QLayout *createGridRows();
    void addRow(QGridLayout *grid, int row, const char *text, QWidget *control);
    QLayout *createBoxes();
    QLabel *createLabel(const char *text);
    QPushButton *createButton(const char *text, void (MixSetting::*slot)());
    void check(const MixSelection &selected);
    void pickColor();
    void warnOfEmptySelection();

    GridDrawer *drawer;
    QSettings *settings;
    CustomerQlabel *toolButtonColorPick = nullptr;
    std::array<QCheckBox *, MixSelection::itemCount> m_boxes{};
    // With their texts in the source language.
    std::vector<std::pair<QLabel *, const char *>> m_labels;
    std::vector<std::pair<QPushButton *, const char *>> m_buttons;
    QPointer<UX::Widgets::FramelessMessageBox> m_warning;
};
