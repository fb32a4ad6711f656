#include "drawnpattern.h"

#include "advancedvalue.h"
#include "drawcontainer.h"
#include "gradualchange.h"
#include "griddrawer.h"
#include "gridrun.h"
#include "mixselection.h"
#include "options.h"
#include "patternwords.h"
#include "scrgrid.h"
#include "scrpurity.h"

namespace {

constexpr Options::Range greyLevels{0, 255};

MixSelection mixOf(const QVector<int> &colors, const QVector<int> &families)
{
    constexpr MixSelection::Item items[] = {MixSelection::Horizontal, MixSelection::Vertical,
                                            MixSelection::SlantLeft, MixSelection::SlantRight};
    MixSelection selection;
    for (const int color : colors)
        selection.set(MixSelection::Item(MixSelection::Red + color), true);
    for (const int family : families)
        selection.set(items[family], true);
    return selection;
}

void setPicture(ScrGrid *drawer, Options &options)
{
    const QString path = options.text("picture");
    if (!options.isSet("picture"))
        return;
    if (drawer->picture(path).isNull())
        options.setProblem(QStringLiteral("--picture \"%1\" is no picture").arg(path));
    else
        drawer->setBackgroundImage(path);
}

Options::Range rangeOf(AdvancedValue::Item item)
{
    return {advancedValues.at(item).minimum, advancedValues.at(item).maximum};
}

std::unique_ptr<ScrPurity> makePurity(Options &options, QWidget *window)
{
    auto drawer = std::make_unique<ScrPurity>(window);
    drawer->slot_colorChanged(options.pureColor("colour"));
    drawer->slot_AlphaChanged(options.number("grey", greyLevels));
    return drawer;
}

std::unique_ptr<GradualChange> makeGradient(Options &options, QWidget *window)
{
    const QStringList levels = PatternWords::list("32,64,128,256");
    const int level = levels.at(options.choice("levels", levels)).toInt();
    auto drawer = std::make_unique<GradualChange>(window);
    drawer->slot_gradualChangeColor(qint16(level), options.pureColor("colour"));
    return drawer;
}

std::unique_ptr<GridDrawer> makeGrid(Options &options, QWidget *window)
{
    const int spacing = options.number("spacing", {GridPattern::closest, GridPattern::farthest});
    auto drawer = std::make_unique<GridDrawer>(window);
    drawer->slot_changeDistance(spacing);
    drawer->slot_changePix(options.number("width", {GridPattern::thinnest, GridPattern::thickest}));
    for (int offset = options.number("offset", {0, spacing - 1}); offset > 0; --offset)
        drawer->scrollLines();
    drawer->slot_colorChanged(options.pureColor("colour"));
    drawer->slot_changeGrayScale(options.number("grey", greyLevels));
    drawer->slot_setBgColor(options.color("background"));
    const QVector<int> families = options.choices("lines", PatternWords::families());
    for (const int family : families)
        drawer->toggle(LineFamily::Direction(family), true);
    return drawer;
}

// A test shows nothing of its own before its first step.
std::shared_ptr<GridRun> makeRun(Options &options, GridDrawer *drawer)
{
    const QStringList names = PatternWords::list("scroll,merged,aging");
    const QString &name = names.at(options.choice("run", names));
    const QVector<int> families = options.choices("lines", PatternWords::families());
    const QVector<int> colors = options.pureColors("colours");
    auto run = std::make_shared<GridRun>(drawer);
    run->isOn = run->canScroll = true;
    run->select(mixOf(colors, options.isSet("lines") ? families : QVector<int>{0, 1, 2, 3}));
    if (name != QLatin1String("scroll")) {
        run->beginTest(name == QLatin1String("aging"));
        run->step();
    }
    return run;
}

std::unique_ptr<ScrGrid> makeLayout(Options &options, QWidget *window)
{
    using Item = AdvancedValue;
    auto drawer = std::make_unique<ScrGrid>(window);
    const QSize module = options.pair("modules", QLatin1Char('x'),
                                      {ScrGrid::smallestModule, ScrGrid::largestModule});
    const QSize board = options.pair("per-board", QLatin1Char('x'), {1, ScrGrid::mostModules});
    const QSize first = options.pair("first", QLatin1Char(','), rangeOf(Item::BeginRow));
    drawer->m_moduleWidth = module.width();
    drawer->m_moduleHeight = module.height();
    drawer->m_moduleColumnCount = board.width();
    drawer->m_moduleRowCount = board.height();
    drawer->m_beginRow = first.width();
    drawer->m_beginColumn = first.height();
    drawer->m_leftToRight =
        options.choice("numbers", PatternWords::list("from-left,from-right")) == 0;
    drawer->m_bgColor = options.color("background");
    drawer->m_fontColor = options.color("number-colour");
    drawer->m_moduleLineColor = options.color("module-colour");
    drawer->m_scanColor = options.color("board-colour");
    drawer->m_fontSize = options.number("number-size", rangeOf(Item::FontSize));
    drawer->m_fontShape = options.choice("number-shape", PatternWords::list("normal,bold,italic"));
    drawer->m_moduleLineWidth = options.number("module-line", rangeOf(Item::ModuleLine));
    drawer->m_scanLineWidth = options.number("board-line", rangeOf(Item::ScanLine));
    setPicture(drawer.get(), options);
    drawer->m_layoutOn = true;
    return drawer;
}

} // namespace

DrawnPattern::DrawnPattern(Options &options, DrawContainer &window)
{
    GridDrawer *grid = nullptr;
    if (options.kind() == Options::Purity)
        drawer = makePurity(options, &window);
    else if (options.kind() == Options::Gradient)
        drawer = makeGradient(options, &window);
    else if (options.kind() == Options::Layout)
        drawer = makeLayout(options, &window);
    else
        drawer.reset(grid = makeGrid(options, &window).release());
    window.setDrawer(drawer.get(), true);
    if (grid)
        step = [run = makeRun(options, grid)] { run->step(); };
}

DrawnPattern::~DrawnPattern() = default;
