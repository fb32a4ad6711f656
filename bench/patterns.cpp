#include "patterns.h"

#include "gradualchange.h"
#include "griddrawer.h"
#include "scrgrid.h"
#include "scrpurity.h"

#include <QWidget>

namespace {

using MakePattern = std::function<Pattern(QWidget *)>;

// All four families.
std::unique_ptr<GridDrawer> fullGrid(QWidget *testWindow, int distance, int lineWidth)
{
    auto grid = std::make_unique<GridDrawer>(testWindow);
    grid->slot_colorChanged(Qt::red);
    grid->slot_changeDistance(distance);
    grid->slot_changePix(lineWidth);
    grid->slot_horiToggled(true);
    grid->slot_vertLineToggled(true);
    grid->slot_slantLeftToggled(true);
    grid->slot_slantRightToggled(true);
    return grid;
}

// One pixel further at every painting.
MakePattern scrollingGrid(int distance, int lineWidth)
{
    return [distance, lineWidth](QWidget *testWindow) -> Pattern {
        auto grid = fullGrid(testWindow, distance, lineWidth);
        GridDrawer *const drawer = grid.get();
        return {std::move(grid), [drawer] { drawer->scrollLines(); }};
    };
}

// One picture, painted again and again as the test window does by itself.
Pattern restingGrid(QWidget *testWindow)
{
    return {fullGrid(testWindow, 10, 1), [] {}};
}

// The first lines are much further from the edge than the next ones from them, as a smaller
// distance leaves them; at every painting in another colour where it `changes`.
MakePattern shiftedGrid(int distance, int lineWidth, bool changes)
{
    constexpr int offset = 690;
    return [=](QWidget *testWindow) -> Pattern {
        auto grid = fullGrid(testWindow, offset + 1, lineWidth);
        GridDrawer *const drawer = grid.get();
        for (int i = 0; i < offset; ++i)
            drawer->scrollLines();
        drawer->slot_changeDistance(distance);
        return {std::move(grid), [drawer, changes, isRed = true]() mutable {
                    isRed ^= changes;
                    drawer->slot_colorChanged(isRed ? Qt::red : Qt::green);
                }};
    };
}

// White, one grey level on at every painting.
Pattern steppingPurity(QWidget *testWindow)
{
    auto purity = std::make_unique<ScrPurity>(testWindow);
    ScrPurity *const drawer = purity.get();
    drawer->slot_colorChanged(Qt::white);
    return {std::move(purity),
            [drawer, grey = 0]() mutable { drawer->slot_AlphaChanged(grey = (grey + 1) % 256); }};
}

Pattern restingPurity(QWidget *testWindow)
{
    auto purity = std::make_unique<ScrPurity>(testWindow);
    purity->slot_colorChanged(Qt::white);
    return {std::move(purity), [] {}};
}

MakePattern restingGradient(short level)
{
    return [level](QWidget *testWindow) -> Pattern {
        auto gradient = std::make_unique<GradualChange>(testWindow);
        gradient->slot_gradualChangeColor(level, Qt::white);
        return {std::move(gradient), [] {}};
    };
}

// How large a module is and how many of them, in a row and in a column, a scan board has.
struct Cabinet
{
    QSize module;
    int perScanBoard;
};

constexpr Cabinet usualCabinet{{32, 16}, 2};
constexpr Cabinet smallestCabinet{{16, 16}, 1}; // the most numbers

std::unique_ptr<ScrGrid> shownCabinet(QWidget *testWindow, const Cabinet &cabinet)
{
    auto drawer = std::make_unique<ScrGrid>(testWindow);
    drawer->m_moduleWidth = cabinet.module.width();
    drawer->m_moduleHeight = cabinet.module.height();
    drawer->m_moduleColumnCount = cabinet.perScanBoard;
    drawer->m_moduleRowCount = cabinet.perScanBoard;
    drawer->m_bgColor = Qt::black;
    drawer->m_fontColor = Qt::yellow;
    drawer->m_moduleLineColor = Qt::red;
    drawer->m_scanColor = Qt::blue;
    drawer->m_layoutOn = true;
    return drawer;
}

MakePattern restingCabinet(const Cabinet &cabinet)
{
    return [cabinet](QWidget *testWindow) -> Pattern {
        return {shownCabinet(testWindow, cabinet), [] {}};
    };
}

// Other numbers at every painting.
MakePattern changingCabinet(const Cabinet &cabinet)
{
    return [cabinet](QWidget *testWindow) -> Pattern {
        auto drawer = shownCabinet(testWindow, cabinet);
        ScrGrid *const changed = drawer.get();
        return {std::move(drawer),
                [changed] { changed->m_beginRow = changed->m_beginRow % 9 + 1; }};
    };
}

} // namespace

const std::vector<PatternRow> &patternRows()
{
    static const std::vector<PatternRow> rows = {
        {"grid, spacing 3, width 1", scrollingGrid(3, 1)},
        {"grid, spacing 3, width 5", scrollingGrid(3, 5)},
        {"grid, spacing 10, width 1", scrollingGrid(10, 1)},
        {"grid, spacing 10, width 5", scrollingGrid(10, 5)},
        {"grid, spacing 50, width 1", scrollingGrid(50, 1)},
        {"grid, spacing 50, width 5", scrollingGrid(50, 5)},
        {"grid, spacing 700, width 1", scrollingGrid(700, 1)},
        {"grid, spacing 700, width 5", scrollingGrid(700, 5)},
        {"grid, spacing 3, width 5, offset beyond it", shiftedGrid(3, 5, false)},
        {"grid, spacing 3, width 1, offset beyond it, changed", shiftedGrid(3, 1, true)},
        {"grid, spacing 3, width 5, offset beyond it, changed", shiftedGrid(3, 5, true)},
        {"grid, unchanged", restingGrid},
        {"gradient, 32 levels, unchanged", restingGradient(32)},
        {"gradient, 256 levels, unchanged", restingGradient(256)},
        {"purity", steppingPurity},
        {"purity, unchanged", restingPurity},
        {"cabinet, unchanged", restingCabinet(usualCabinet)},
        {"cabinet, unchanged, 16 x 16", restingCabinet(smallestCabinet)},
        {"cabinet, changed", changingCabinet(usualCabinet)},
        {"cabinet, changed, 16 x 16", changingCabinet(smallestCabinet)},
    };
    return rows;
}
