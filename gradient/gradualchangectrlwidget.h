#pragma once

#include "controlbase.h"
#include "gradualchange.h"

#include <QColor>
#include <QWidget>

#include <array>
#include <memory>

class QPushButton;
class QSettings;
class SaveSoon;
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

    DrawerBase *getDrawer() override;
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
    void slot_changeGradualColorFirst();
    void slot_changeGradualColorSecond();
    void slot_changeGradualColorThird();
    void slot_changeGradualColorFirth(); // the fourth
    void slot_changeGradualColorRed();
    void slot_changeGradualColorGreen();
    void slot_changeGradualColorBlue();
    void slot_changeGradualColorWhite();
    void slot_changeGradualColorYellow();
    void slot_changeGradualColorCyan();
    void slot_changeGradualColorPurple();
    void slot_updateSelectedColor();
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
    SaveSoon *m_saveSoon;
};
