#pragma once

#include "mixselection.h"
#include "settingsdialog.h"

#include <QPointer>

#include <array>

class CustomerQlabel;
class GridDrawer;
class QCheckBox;
class QGridLayout;
class QLabel;
class QLayout;
class QSettings;
class QSpinBox;

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
    ~MixSetting() override;

    // As the boxes stand, stored or not.
    MixSelection selection() const;
    bool isSelectedCheckBox() const { return !selection().isEmpty(); }
    bool getRedChecked() const { return isChecked(MixSelection::Red); }
    bool getGreenChecked() const { return isChecked(MixSelection::Green); }
    bool getBlueChecked() const { return isChecked(MixSelection::Blue); }
    bool getYellowChecked() const { return isChecked(MixSelection::Yellow); }
    bool getWhiteChecked() const { return isChecked(MixSelection::White); }
    bool getCyanChecked() const { return isChecked(MixSelection::Cyan); }
    bool getPurpleChecked() const { return isChecked(MixSelection::Purple); }
    bool getHChecked() const { return isChecked(MixSelection::Horizontal); }
    bool getVChecked() const { return isChecked(MixSelection::Vertical); }
    bool getSLChecked() const { return isChecked(MixSelection::SlantLeft); }
    bool getSRChecked() const { return isChecked(MixSelection::SlantRight); }

    void initSelected();
    void saveMixStatus();
    void updateLanguage();

public slots:
    void slot_pushButtonAll();
    void slot_pushButtonClear();
    // Stores the selection and closes the dialog, or asks for a selection if there is none.
    void slot_pushButtonOK();
    void slot_spinBoxPixValueChanged(int width);
    void slot_spinBoxDistanceValueChanged(int distance);

private:
    void initLayout();
    void initSlots();
    void createGridControls();
    void createMixControls();
    QLayout *layOutGridControls();
    QLayout *layOutMixControls();
    QPushButton *createButton();
    bool isChecked(MixSelection::Item item) const;
    void checkAll(bool checked);
    void pickColor();
    void warnOfEmptySelection();

    GridDrawer *drawer;
    QSettings *settings;
    CustomerQlabel *toolButtonColorPick = nullptr;
    QSpinBox *spinBoxPix = nullptr;
    QSpinBox *spinBoxDistance = nullptr;
    std::array<QCheckBox *, MixSelection::itemCount> m_boxes{};
    QPushButton *m_allButton = nullptr;
    QPushButton *m_clearButton = nullptr;
    QPushButton *m_confirmButton = nullptr;
    QLabel *m_gridHeader = nullptr;
    QLabel *m_colorLabel = nullptr;
    QLabel *m_pixLabel = nullptr;
    QLabel *m_distanceLabel = nullptr;
    QLabel *m_mixHeader = nullptr;
    QPointer<UX::Widgets::FramelessMessageBox> m_warning;
};
