#include "gridrun.h"

#include "drawcontainer.h"
#include "griddrawer.h"
#include "mixselection.h"
#include "purecolor.h"

namespace {

constexpr int agingColorCount = 4; // Specified: red, green, blue and white of the seven
constexpr int scrollsPerGreyStep = 5;

} // namespace

GridRun::GridRun(GridDrawer *drawer)
    : m_drawer(drawer)
{ }

void GridRun::beginTest(bool aging)
{
    isAging = aging;
    isMerged = !aging;
    isOn = true;
    m_greyRamp = 0;
}

// The keys reach every panel; only the one whose pattern is shown answers.
void GridRun::rampGrey(int by)
{
    if (isOn && DrawContainer::shows(*m_drawer))
        m_greyRamp = by;
}

void GridRun::select(const MixSelection &selection)
{
    m_colors = selection.colors();
    m_families = selection.families();
    restartFamilies();
}

int GridRun::restartFamilies()
{
    m_familyIndex = 0;
    return m_families.size();
}

void GridRun::step()
{
    if (!isOn)
        return;
    if (canScroll)
        scroll();
    if (isAging)
        stepAging();
    if (isMerged)
        stepMerged();
}

void GridRun::scroll()
{
    // A grid behind another pattern would have that one painted for nothing.
    if (DrawContainer::showsOrAwaits(*m_drawer))
        m_drawer->scrollLines();
    m_scrollCount = (m_scrollCount + 1) % scrollsPerGreyStep;
    if (m_scrollCount == 0 && m_greyRamp != 0)
        emit greyStepped(m_greyRamp);
    emit scrolled();
}

void GridRun::stepAging()
{
    m_drawer->disableAll();
    showColor(PureColor::at(m_agingIndex));
    m_agingIndex = (m_agingIndex + 1) % agingColorCount;
}

// The cycle's place stays when another selection comes; its families begin again.
void GridRun::stepMerged()
{
    m_drawer->disableAll();
    const int steps = m_colors.size() + m_families.size();
    if (m_mergedIndex < m_colors.size())
        showColor(m_colors.at(m_mergedIndex));
    else if (m_mergedIndex < steps)
        m_drawer->toggle(m_families.at(m_familyIndex++), true);
    if (++m_mergedIndex >= steps)
        m_mergedIndex = m_familyIndex = 0;
}

void GridRun::showColor(const QColor &color)
{
    emit colorShown(color);
    m_drawer->slot_changeBgColor(m_drawer->dimmed(color));
}
