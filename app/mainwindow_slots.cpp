// The connections of the main window.

#include "ui_mainwindow.h"

#include "commonhelper.h"
#include "drawctrlform.h"
#include "gradualchangectrlwidget.h"
#include "mainwindow.h"
#include "scrgridctrldialog.h"
#include "scrpurityctrldialog.h"
#include "tarntool.h"

#include <QSettings>
#include <QTimer>

namespace {

// Long enough for the window manager to have moved what it moves itself.
constexpr int screenChangeSettlesMs = 300;

} // namespace

void MainWindow::initSlots()
{
    connect(ui->tabWidget, &QTabWidget::currentChanged, this, &MainWindow::slot_SwitchWindow);
    initKeySlots();
    initTestWindowSlots();
    initPanelSlots();
}

void MainWindow::initKeySlots()
{
    const CommonHelper *keys = keyHelper.get();
    using K = CommonHelper;
    using P = DrawCtrlForm;
    connect(keys, &K::signal_keyHomePressed, &testWindow, &DrawContainer::slot_keyHomePressed);
    connect(keys, &K::signal_keyEndPressed, &testWindow, &DrawContainer::slot_keyEndPressed);
    connect(keys, &K::signal_keyPageUpPressed, this, &MainWindow::slot_SwitchUpTabControl);
    connect(keys, &K::signal_keyPageDownPressed, this, &MainWindow::slot_SwitchDownTabControl);
    connect(keys, &K::signal_keyShiftUpPressed, placementPanel, &P::slot_keyShiftUpPressed);
    connect(keys, &K::signal_keyShiftDownPressed, placementPanel, &P::slot_keyShiftDownPressed);
    connect(keys, &K::signal_keyShiftLeftPressed, placementPanel, &P::slot_keyShiftLeftPressed);
    connect(keys, &K::signal_keyShiftRightPressed, placementPanel, &P::slot_keyShiftRightPressed);
    connect(keys, &K::signal_keyShiftFPressed, &testWindow, &DrawContainer::slot_keyShiftFPressed);
    connect(keys, &K::signal_keyCtrlUpPressed, placementPanel, &P::slot_keyCtrlUpPressed);
    connect(keys, &K::signal_keyCtrlDownPressed, placementPanel, &P::slot_keyCtrlDownPressed);
    connect(keys, &K::signal_keyCtrlLeftPressed, placementPanel, &P::slot_keyCtrlLeftPressed);
    connect(keys, &K::signal_keyCtrlRightPressed, placementPanel, &P::slot_keyCtrlRightPressed);
    connect(keys, &K::signal_keyShiftHPressed, &testWindow, &DrawContainer::slot_keyShiftHPressed);
    const int savedTab = settings->value(currentTabKey).toInt();
    connectArrowKeys(purityPanel, savedTab == PurityTab);
    connectArrowKeys(gridPanel, savedTab == GridTab);
    connect(keys, &K::signal_keyInsertPressed, gridPanel,
            &ScrGridCtrlDialog::slot_keyInsertPressed);
    connect(keys, &K::signal_keyDeletePressed, gridPanel,
            &ScrGridCtrlDialog::slot_keyDeletePressed);
    connect(keys, &K::signal_keyInsertPressed, purityPanel,
            &ScrPurityCtrlDialog::slot_keyInsertPressed);
    connect(keys, &K::signal_keyDeletePressed, purityPanel,
            &ScrPurityCtrlDialog::slot_keyDeletePressed);
}

void MainWindow::initTestWindowSlots()
{
    using P = DrawCtrlForm;
    connect(&testWindow, &DrawContainer::signal_containerWidgetHide, placementPanel,
            &P::slot_enableShowButton);
    connect(&testWindow, &DrawContainer::signal_containerWidgetShow, placementPanel,
            &P::slot_disableShowButton);
    connect(&testWindow, &DrawContainer::signal_drawWidgetSizeChange, placementPanel,
            &P::slot_drawWidgetSizeChange);
    connect(&testWindow, &DrawContainer::signal_drawWidgetPositionChange, placementPanel,
            &P::slot_drawWidgetPositionChange);
    connect(&testWindow, &DrawContainer::signal_drawWidgetSizeChange, cabinetPanel,
            &TarnTool::slot_drawerSizeChanged);
    connect(placementPanel, &P::signal_screenMaxSizeChanged, &testWindow,
            &DrawContainer::slot_setScreenMaxSize);
    connect(this, &MainWindow::signal_sendScreenMaxSize, placementPanel, &P::getScreenSize);
    emit signal_sendScreenMaxSize();
    connect(placementPanel, &P::signal_screenMaxSizeChanged, this, [this] {
        QTimer::singleShot(screenChangeSettlesMs, this, &MainWindow::stayReachable);
    });
    connect(this, &MainWindow::signal_colorChanged, &testWindow,
            &DrawContainer::slot_changeSelectedDrawColor);
    connect(this, &MainWindow::signal_greyChanged, &testWindow,
            &DrawContainer::slot_changeSelectedDrawGrey);
}

// The three panels share the chosen colour, each tells the test window's overlay while its tab is
// current, and a run of one stops the run of the other.
void MainWindow::initPanelSlots()
{
    using Purity = ScrPurityCtrlDialog;
    using Gradient = GradualChangeCtrlWidget;
    using Grid = ScrGridCtrlDialog;
    connect(purityPanel, &Purity::signal_colorChanged, gradientPanel,
            &Gradient::slot_changeSelectedGradualColor);
    connect(purityPanel, &Purity::signal_colorChanged, gridPanel,
            &Grid::slot_changeSelectedGridColor);
    connect(gradientPanel, &Gradient::signal_selectColorChanged, purityPanel,
            &Purity::slot_changeSelectedPurityColor);
    connect(gradientPanel, &Gradient::signal_selectColorChanged, gridPanel,
            &Grid::slot_changeSelectedGridColor);
    connect(gridPanel, &Grid::signal_colorChanged, purityPanel,
            &Purity::slot_changeSelectedPurityColor);
    connect(gridPanel, &Grid::signal_colorChanged, gradientPanel,
            &Gradient::slot_changeSelectedGradualColor);

    connectFeed(purityPanel, &Purity::signal_colorChanged, true);
    connectFeed(gradientPanel, &Gradient::signal_selectColorChanged, true);
    connectFeed(gridPanel, &Grid::signal_colorChanged, true);
    connect(gridPanel, &Grid::signal_oldMixColorChanged, &testWindow,
            &DrawContainer::slot_changeSelectedDrawColor);

    connect(this, &MainWindow::signal_stopGreyChanged, purityPanel, &Purity::slot_stopChangeGrey);
    connect(this, &MainWindow::signal_stopGreyChanged, gridPanel, &Grid::slot_stopStartPauseStatus);
    connect(gridPanel, &Grid::signal_gridAutoChange, purityPanel, &Purity::slot_stopChangeGrey);
    connect(purityPanel, &Purity::signal_purityAutoChange, gridPanel, &Grid::slot_stopPauseStatus);
    connect(this, &MainWindow::signal_forbidTarnToolCtrls, cabinetPanel,
            &TarnTool::slot_forbidControls);
}

// Gives the arrow keys and the test window's overlay to the current panel.
void MainWindow::grayScaleChange(int index)
{
    connectArrowKeys(purityPanel, index == PurityTab);
    connectArrowKeys(gridPanel, index == GridTab);
    if (index != PurityTab && index != GradientTab && index != GridTab)
        return; // the overlay goes on with the panel of before
    connectFeed(purityPanel, &ScrPurityCtrlDialog::signal_colorChanged, index == PurityTab);
    connectFeed(gradientPanel, &GradualChangeCtrlWidget::signal_selectColorChanged,
                index == GradientTab);
    connectFeed(gridPanel, &ScrGridCtrlDialog::signal_colorChanged, index == GridTab);
}

template<typename Panel>
void MainWindow::connectArrowKeys(Panel *panel, bool on)
{
    const auto set = [this, panel, on](auto signal, auto slot) {
        disconnect(keyHelper.get(), signal, panel, slot);
        if (on)
            connect(keyHelper.get(), signal, panel, slot);
    };
    set(&CommonHelper::signal_keyUpPressed, &Panel::slot_keyUpPressed);
    set(&CommonHelper::signal_keyDownPressed, &Panel::slot_keyDownPressed);
    set(&CommonHelper::signal_keyLeftPressed, &Panel::slot_keyLeftPressed);
    set(&CommonHelper::signal_keyRightPressed, &Panel::slot_keyRightPressed);
}

template<typename Panel, typename ColorSignal>
void MainWindow::connectFeed(Panel *panel, ColorSignal colorSignal, bool on)
{
    const auto set = [this, panel, on](auto signal, auto slot) {
        disconnect(panel, signal, &testWindow, slot);
        if (on)
            connect(panel, signal, &testWindow, slot);
    };
    set(colorSignal, &DrawContainer::slot_changeSelectedDrawColor);
    set(&Panel::signal_greyChanged, &DrawContainer::slot_changeSelectedDrawGrey);
}
