#pragma once

#include "advancedvalue.h"
#include "settingsdialog.h"

#include <array>

class QComboBox;
class QLabel;
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
    ~AdvancedSetup() override;

    void updateLanguage();

public slots:
    void slot_closeWindow();
    void slot_boxFontSizeValueChanged(int size);
    void slot_boxBeginRowValueChanged(int row);
    void slot_boxBeginColumnValueChanged(int column);
    void slot_boxModeWidthValueChanged(int width);
    void slot_boxScanWidthValueChanged(int width);
    void slot_comboFontShapeCurrentIndexChanged(int shape);

private:
    static constexpr int boxCount = AdvancedValue::FontShape; // all but the last have a spin box

    void initFrame();
    void initLayout();
    void dataInit();
    void ControlInit();
    void uiInit();
    QLayout *layOutFont();
    QLayout *layOutNumbersAndLines();
    void change(AdvancedValue::Item item, int value);

    QSettings *m_settings;
    ScrGrid *m_drawer;
    std::array<int, AdvancedValue::itemCount> m_values{}; // as stored, or the defaults
    std::array<QSpinBox *, boxCount> m_boxes{};
    QComboBox *m_shapeCombo = nullptr;
    QLabel *m_fontHeader = nullptr;
    std::array<QLabel *, AdvancedValue::itemCount> m_captions{};
};
