// The page keys' walk: the purity colours, the gradient colours, the grid's colours with each of
// its line families, and round again. `cycleTab` is the panel that the walk stands on.

#include "ui_mainwindow.h"

#include "gradualchangectrlwidget.h"
#include "mainwindow.h"
#include "scrgridctrldialog.h"
#include "scrpurityctrldialog.h"
#include "testcolor.h"

namespace {

constexpr int colorSteps = TestColor::pageColorCount;
constexpr qint16 lineSteps = 4; // line families of each grid colour
constexpr qint16 pageLevel = 256; // what the page keys show of the gradients

// A panel is entered one step before its first or behind its last, and then stepped onto.
constexpr int beforeFirst = -1;

} // namespace

// With it goes cycleTab.
void MainWindow::makeTabCurrent(int index)
{
    ui->tabWidget->setCurrentIndex(index);
}

bool MainWindow::isOnWalk() const
{
    return cycleTab == PurityTab || cycleTab == GradientTab || cycleTab == GridTab;
}

void MainWindow::slot_SwitchDownTabControl()
{
    emit signal_stopGreyChanged();
    if (!isOnWalk())
        makeTabCurrent(PurityTab);
    setPurityCtrlPageDownEvent();
    setGradualChangePageDownEvent();
    setGridCtrlPageDownEvent();
}

void MainWindow::slot_SwitchUpTabControl()
{
    emit signal_stopGreyChanged();
    if (!isOnWalk())
        makeTabCurrent(GridTab);
    setGridCtrlPageUpEvent();
    setGradualChangePageUpEvent();
    setPurityCtrlPageUpEvent();
}

void MainWindow::setPurityCtrlPageDownEvent()
{
    if (cycleTab != PurityTab)
        return;
    if (purityPanel->colorIndex >= colorSteps - 1) {
        purityPanel->canclePageUpDownSelect();
        makeTabCurrent(GradientTab);
        gradientPanel->m_colorIndex = beforeFirst;
        return;
    }
    ++purityPanel->colorIndex;
    purityPanel->slot_changeColorByPageUpDown();
}

void MainWindow::setGradualChangePageDownEvent()
{
    if (cycleTab != GradientTab)
        return;
    gradientPanel->m_level = pageLevel;
    if (gradientPanel->m_colorIndex >= colorSteps - 1) {
        makeTabCurrent(GridTab);
        gridPanel->colorIndex = beforeFirst;
        gridPanel->lineIndex = beforeFirst;
        return;
    }
    ++gradientPanel->m_colorIndex;
    gradientPanel->slot_changeColorByPageDown();
}

void MainWindow::setGridCtrlPageDownEvent()
{
    if (cycleTab != GridTab)
        return;
    if (gridPanel->lineIndex >= 0 && gridPanel->lineIndex < lineSteps - 1) {
        ++gridPanel->lineIndex;
    } else {
        ++gridPanel->colorIndex;
        gridPanel->lineIndex = 0;
    }
    if (gridPanel->colorIndex < colorSteps) {
        gridPanel->slot_changeColorByPageDown();
        return;
    }
    gridPanel->canclePageUpDownSelect();
    makeTabCurrent(PurityTab);
    purityPanel->colorIndex = 0;
    purityPanel->slot_changeColorByPageUpDown();
}

void MainWindow::setGridCtrlPageUpEvent()
{
    if (cycleTab != GridTab)
        return;
    if (gridPanel->lineIndex < 1) {
        --gridPanel->colorIndex;
        gridPanel->lineIndex = lineSteps - 1;
    } else {
        --gridPanel->lineIndex;
    }
    if (gridPanel->colorIndex >= 0) {
        gridPanel->slot_changeColorByPageDown();
        return;
    }
    gridPanel->canclePageUpDownSelect();
    makeTabCurrent(GradientTab);
    gradientPanel->m_colorIndex = colorSteps;
}

void MainWindow::setGradualChangePageUpEvent()
{
    if (cycleTab != GradientTab)
        return;
    gradientPanel->m_level = pageLevel;
    if (gradientPanel->m_colorIndex < 1) {
        purityPanel->canclePageUpDownSelect(); // the panel that is entered: wanted
        makeTabCurrent(PurityTab);
        purityPanel->colorIndex = colorSteps;
        return;
    }
    --gradientPanel->m_colorIndex;
    gradientPanel->slot_changeColorByPageDown();
}

void MainWindow::setPurityCtrlPageUpEvent()
{
    if (cycleTab != PurityTab)
        return;
    if (purityPanel->colorIndex < 1) {
        makeTabCurrent(GridTab);
        gridPanel->colorIndex = colorSteps - 1;
        gridPanel->lineIndex = lineSteps;
        setGridCtrlPageUpEvent();
        return;
    }
    --purityPanel->colorIndex;
    purityPanel->slot_changeColorByPageUpDown();
}
