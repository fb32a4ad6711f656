#pragma once

#include "advancedvalue.h"
#include "settingsdialog.h"

#include <QComboBox>
#include <QLabel>
#include <QVector>

#include <array>

class QLayout;
class QSettings;
class QSpinBox;

// The advanced settings of the cabinet layout: the numbers' font and first values, and the
// widths of the lines. Each change is stored and shows on the test window at once.
class AdvancedSetup : public SettingsDialog
{
    Q_OBJECT

public:
    // Both are borrowed. Without settings nothing is stored; without a drawer the dialog has
    // nothing to show and changes nothing.
    AdvancedSetup(QSettings *settings, ScrGrid *drawer, QWidget *parent);

    void updateLanguage();

public slots:
    void slot_closeWindow() { close(); }
    void slot_boxFontSizeValueChanged(int size) { change(AdvancedValue::FontSize, size); }
    void slot_boxBeginRowValueChanged(int row) { change(AdvancedValue::BeginRow, row); }
    void slot_boxBeginColumnValueChanged(int col) { change(AdvancedValue::BeginColumn, col); }
    void slot_boxModeWidthValueChanged(int width) { change(AdvancedValue::ModuleLine, width); }
    void slot_boxScanWidthValueChanged(int width) { change(AdvancedValue::ScanLine, width); }
    void slot_comboFontShapeCurrentIndexChanged(int i) { change(AdvancedValue::FontShape, i); }

private:
    static constexpr int boxCount = AdvancedValue::FontShape; // all but the last have a spin box

    void initLayout();
    void dataInit();
    void ControlInit();
    void uiInit();
    QLayout *layOut(const QVector<AdvancedValue::Item> &items);
    void change(AdvancedValue::Item item, int value);

    QSettings *m_settings;
    ScrGrid *m_drawer;
    std::array<int, AdvancedValue::itemCount> m_values{}; // as stored, or the defaults
    std::array<QSpinBox *, boxCount> m_boxes{};
    QComboBox *m_shapeCombo = new QComboBox;
    QLabel *m_fontHeader = new QLabel;
    std::array<QLabel *, AdvancedValue::itemCount> m_captions{};
};
