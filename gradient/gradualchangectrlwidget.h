#pragma once

#include "controlbase.h"
#include "gradualchange.h"
#include "savesoon.h"

#include <QColor>
#include <QWidget>

#include <array>
#include <memory>

class QPushButton;
class QSettings;
class SwatchRow;

namespace Ui {
class GradualChangeCtrlWidget;
}

// Tab 2, the gradient test: ramps of 32 to 256 grey levels in one of seven colours.
class GradualChangeCtrlWidget
    : public QWidget
    , public ControlBase
{
    Q_OBJECT

public:
    // Test window and settings are borrowed. Without settings nothing is restored or
    // saved.
    GradualChangeCtrlWidget(QWidget *drawWidget, QSettings *settings, QWidget *parent);
    ~GradualChangeCtrlWidget() override;

    DrawerBase *getDrawer() override { return &m_drawer; }
    void saveGradualChangeInfo();
    void updateLanguage();

    // The levels, which are the length of a ramp in pixels. The page keys set them
    // without a signal.
    qint16 m_level = 256;

    // The selected colour in the colour table. The page keys set it and then call
    // slot_changeColorByPageDown().
    int m_colorIndex = 0;

    // The operator has changed levels or colour since this was last cleared.
    bool m_userChanged = false;

signals:
    // The operator has chosen this colour here.
    void signal_selectColorChanged(const QColor &color);
    // The levels as the overlay shows them, always in Chinese.
    void signal_greyChanged(const QString &grey);

public slots:
    void slot_changeGradualColorFirst() { selectLevel(0); }
    void slot_changeGradualColorSecond() { selectLevel(1); }
    void slot_changeGradualColorThird() { selectLevel(2); }
    void slot_changeGradualColorFirth() { selectLevel(3); } // the fourth
    void slot_changeGradualColorRed() { selectColor(0); }
    void slot_changeGradualColorGreen() { selectColor(1); }
    void slot_changeGradualColorBlue() { selectColor(2); }
    void slot_changeGradualColorWhite() { selectColor(3); }
    void slot_changeGradualColorYellow() { selectColor(4); }
    void slot_changeGradualColorCyan() { selectColor(5); }
    void slot_changeGradualColorPurple() { selectColor(6); }
    void slot_updateSelectedColor() { emit signal_selectColorChanged(m_color); }
    // A colour outside the colour table is ignored.
    void slot_changeSelectedGradualColor(const QColor &color);
    // Selects the colour at m_colorIndex and announces it, whichever way the page keys have gone.
    void slot_changeColorByPageDown();

private:
    static constexpr int levelCount = 4;

    void initConnection();
    void initGradualChangeStatus();
    void selectLevel(int row);
    void selectColor(int index);
    void apply();

    const std::unique_ptr<Ui::GradualChangeCtrlWidget> ui;
    GradualChange m_drawer;
    QColor m_color;
    QSettings *m_settings;
    bool m_firstToggle = true; // the colour that is restored is not the operator's choice
    const std::array<QPushButton *, levelCount> m_levelButtons;
    SwatchRow *m_swatches;
    SaveSoon m_saveSoon;
};
