#include "pagecycle.h"

#include "gradualchangectrlwidget.h"
#include "purecolor.h"
#include "scrgridctrldialog.h"
#include "scrpurityctrldialog.h"

#include <QTabWidget>

namespace {

constexpr int colorSteps = PureColor::pageColorCount;
constexpr qint16 lineSteps = 4; // line families of each grid colour
constexpr qint16 pageLevel = 256; // what the page keys show of the gradients

// A panel is entered one step before its first or behind its last, and then stepped onto.
constexpr int beforeFirst = -1;

} // namespace

PageCycle::PageCycle(QTabWidget *tabs, ScrPurityCtrlDialog *purity,
                     GradualChangeCtrlWidget *gradient, ScrGridCtrlDialog *grid)
    : m_tabs(tabs)
    , m_purity(purity)
    , m_gradient(gradient)
    , m_grid(grid)
{ }

qint16 PageCycle::cycleTab() const
{
    return static_cast<qint16>(m_tabs->currentIndex());
}

void PageCycle::makeTabCurrent(Tab tab)
{
    m_tabs->setCurrentIndex(tab);
}

void PageCycle::enterUnlessOnCycle(Tab tab)
{
    if (cycleTab() != PurityTab && cycleTab() != GradientTab && cycleTab() != GridTab)
        makeTabCurrent(tab);
}

void PageCycle::stepDown()
{
    enterUnlessOnCycle(PurityTab);
    if (cycleTab() == PurityTab)
        setPurityCtrlPageDownEvent();
    if (cycleTab() == GradientTab)
        setGradualChangePageDownEvent();
    if (cycleTab() == GridTab)
        setGridCtrlPageDownEvent();
}

void PageCycle::stepUp()
{
    enterUnlessOnCycle(GridTab);
    if (cycleTab() == GridTab)
        setGridCtrlPageUpEvent();
    if (cycleTab() == GradientTab)
        setGradualChangePageUpEvent();
    if (cycleTab() == PurityTab)
        setPurityCtrlPageUpEvent();
}

void PageCycle::setPurityCtrlPageDownEvent()
{
    if (m_purity->colorIndex >= colorSteps - 1) {
        m_purity->canclePageUpDownSelect();
        makeTabCurrent(GradientTab);
        m_gradient->m_colorIndex = beforeFirst;
        return;
    }
    ++m_purity->colorIndex;
    m_purity->slot_changeColorByPageUpDown();
}

void PageCycle::setGradualChangePageDownEvent()
{
    m_gradient->m_level = pageLevel;
    if (m_gradient->m_colorIndex >= colorSteps - 1) {
        makeTabCurrent(GridTab);
        m_grid->colorIndex = beforeFirst;
        m_grid->lineIndex = beforeFirst;
        return;
    }
    ++m_gradient->m_colorIndex;
    m_gradient->slot_changeColorByPageDown();
}

void PageCycle::setGridCtrlPageDownEvent()
{
    if (m_grid->lineIndex >= 0 && m_grid->lineIndex < lineSteps - 1) {
        ++m_grid->lineIndex;
    } else {
        ++m_grid->colorIndex;
        m_grid->lineIndex = 0;
    }
    if (m_grid->colorIndex < colorSteps) {
        m_grid->slot_changeColorByPageDown();
        return;
    }
    m_grid->canclePageUpDownSelect();
    makeTabCurrent(PurityTab);
    m_purity->colorIndex = 0;
    m_purity->slot_changeColorByPageUpDown();
}

void PageCycle::setGridCtrlPageUpEvent()
{
    if (m_grid->lineIndex < 1) {
        --m_grid->colorIndex;
        m_grid->lineIndex = lineSteps - 1;
    } else {
        --m_grid->lineIndex;
    }
    if (m_grid->colorIndex >= 0) {
        m_grid->slot_changeColorByPageDown();
        return;
    }
    m_grid->canclePageUpDownSelect();
    makeTabCurrent(GradientTab);
    m_gradient->m_colorIndex = colorSteps;
}

void PageCycle::setGradualChangePageUpEvent()
{
    m_gradient->m_level = pageLevel;
    if (m_gradient->m_colorIndex < 1) {
        m_purity->canclePageUpDownSelect(); // Specified: the panel that is entered, not left
        makeTabCurrent(PurityTab);
        m_purity->colorIndex = colorSteps;
        return;
    }
    --m_gradient->m_colorIndex;
    m_gradient->slot_changeColorByPageDown();
}

void PageCycle::setPurityCtrlPageUpEvent()
{
    if (m_purity->colorIndex < 1) {
        makeTabCurrent(GridTab);
        m_grid->colorIndex = colorSteps - 1;
        m_grid->lineIndex = lineSteps;
        setGridCtrlPageUpEvent();
        return;
    }
    --m_purity->colorIndex;
    m_purity->slot_changeColorByPageUpDown();
}
