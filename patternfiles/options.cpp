#include "options.h"

#include "patternwords.h"
#include "purecolor.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <iterator>

namespace {

using Kind = Options::Kind;

struct NamedKind
{
    Kind kind;
    const char *name;
};

constexpr NamedKind namedKinds[] = {{Kind::Purity, "purity"},
                                    {Kind::Gradient, "gradient"},
                                    {Kind::Grid, "grid"},
                                    {Kind::Layout, "layout"},
                                    {Kind::Walk, "walk"}};

struct Row
{
    int kinds;
    const char *name;
    const char *value; // what to give
    const char *initial;
    const char *description;
};

constexpr int drawn = Kind::Purity | Kind::Gradient | Kind::Grid | Kind::Layout;
constexpr int withColor = Kind::Purity | Kind::Gradient | Kind::Grid;

constexpr Row rows[] = {
    {drawn | Kind::Walk | Kind::Start, "size", "WxH", "1920x1080",
     "Width and height in pixels, 1 to 32767; with --config, as large as the file says."},
    {Kind::Start, "config", "file", "", "What the tool shows after a start with this file."},
    {Kind::Start | Kind::Grid, "frames", "number", "1",
     "So many pictures of a run, in numbered files; also with --config."},
    {withColor, "colour", "name", "red", "red, green, blue, white, yellow, cyan or purple."},
    {Kind::Purity | Kind::Grid, "grey", "level", "255", "Grey level, 0 to 255."},
    {Kind::Gradient, "levels", "number", "256", "32, 64, 128 or 256 levels."},
    {Kind::Grid, "lines", "list", "horizontal",
     "horizontal, vertical, slant-left, slant-right; several with commas."},
    {Kind::Grid, "spacing", "pixels", "10", "From line to line, 3 to 700."},
    {Kind::Grid, "width", "pixels", "1", "Of the lines, 1 to 5."},
    {Kind::Grid, "offset", "pixels", "0", "Of the first line, less than the spacing."},
    {Kind::Grid, "run", "name", "scroll",
     "What --frames shows: scroll, merged (each of --colours and --lines) or aging."},
    {Kind::Grid, "colours", "list", "red,green,blue,white,yellow,cyan,purple",
     "Colours of the merged run."},
    {Kind::Grid | Kind::Layout, "background", "colour", "black",
     "A name as with --colour, black or #rrggbb."},
    {Kind::Layout, "modules", "WxH", "32x16", "Size of a module in pixels, 16 to 100."},
    {Kind::Layout, "per-board", "CxR", "2x2",
     "Columns and rows of modules on a scan board, 1 to 100."},
    {Kind::Layout, "numbers", "side", "from-left", "Where columns begin: from-left or from-right."},
    {Kind::Layout, "first", "R,C", "1,1", "First row and first column number, 0 to 100."},
    {Kind::Layout, "picture", "file", "", "Background picture instead of a colour."},
    {Kind::Layout, "number-colour", "colour", "yellow", "As with --background."},
    {Kind::Layout, "number-size", "points", "10", "1 to 100."},
    {Kind::Layout, "number-shape", "name", "normal", "normal, bold or italic."},
    {Kind::Layout, "module-colour", "colour", "red", "Of the lines between modules."},
    {Kind::Layout, "module-line", "pixels", "1", "Width of these lines, 1 to 10."},
    {Kind::Layout, "board-colour", "colour", "blue", "Of the lines between scan boards."},
    {Kind::Layout, "board-line", "pixels", "4", "Width of these lines, 1 to 100."},
};

QString nameOf(Kind kind)
{
    for (const NamedKind &named : namedKinds) {
        if (named.kind == kind)
            return QLatin1String(named.name);
    }
    return QStringLiteral("--config");
}

// "purity, grid: "; nothing where all patterns have it, or a start alone.
QString namesOf(int kinds)
{
    QStringList names;
    for (const NamedKind &named : namedKinds) {
        if (kinds & named.kind)
            names += QLatin1String(named.name);
    }
    const bool isCommon = names.isEmpty() || names.size() == int(std::size(namedKinds));
    return isCommon ? QString() : names.join(QLatin1String(", ")) + QStringLiteral(": ");
}

bool isWithin(int value, const Options::Range &range)
{
    return value >= range.least && value <= range.most;
}

} // namespace

Options::Options(const QStringList &arguments)
{
    addOptions();
    if (!m_parser.parse(arguments))
        setProblem(m_parser.errorText());
    findKind(m_parser.positionalArguments());
    checkOptions();
}

void Options::addOptions()
{
    m_parser.setApplicationDescription(
        QStringLiteral("Writes the test patterns of TarnTestTool to picture files."));
    m_parser.addOption(
        {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this text.")});
    m_parser.addVersionOption();
    m_parser.addPositionalArgument(
        QStringLiteral("pattern"),
        QStringLiteral("purity, gradient, grid, layout, or walk: all 24 patterns of the page keys "
                       "into a folder. None with --config."));
    m_parser.addOption({{QStringLiteral("o"), QStringLiteral("output")},
                        QStringLiteral("The file, in the format of its ending (PNG without one); "
                                       "the folder of walk."),
                        QStringLiteral("file")});
    for (const Row &row : rows) {
        QString description = namesOf(row.kinds) + QLatin1String(row.description);
        if (*row.initial)
            description += QStringLiteral(" [%1]").arg(QLatin1String(row.initial));
        m_parser.addOption({QLatin1String(row.name), description, QLatin1String(row.value),
                            QLatin1String(row.initial)});
    }
}

void Options::findKind(const QStringList &words)
{
    for (const NamedKind &named : namedKinds) {
        if (words == QStringList(QLatin1String(named.name))) {
            m_kind = named.kind;
            return;
        }
    }
    if (words.size() > 1)
        setProblem(QStringLiteral("one pattern at a time, please, not: %1")
                       .arg(words.join(QLatin1String(", "))));
    else if (!words.isEmpty())
        setProblem(QStringLiteral("there is no pattern \"%1\"").arg(words.first()));
    else if (!isSet("config"))
        setProblem(QStringLiteral("which pattern? See --help"));
}

void Options::checkOptions()
{
    for (const Row &row : rows) {
        if (!(row.kinds & m_kind) && isSet(row.name))
            setProblem(QStringLiteral("--%1 does not go with %2")
                           .arg(QLatin1String(row.name), nameOf(m_kind)));
    }
    if (text("output").isEmpty())
        setProblem(QStringLiteral("where to? Say it with -o"));
}

QString Options::information() const
{
    if (isSet("help"))
        return m_parser.helpText();
    if (!isSet("version"))
        return {};
    return QCoreApplication::applicationName() + QLatin1Char(' ')
           + QCoreApplication::applicationVersion() + QLatin1Char('\n');
}

void Options::setProblem(const QString &problem)
{
    if (m_problem.isEmpty())
        m_problem = problem.simplified();
}

void Options::refuse(const char *name, const QString &expected)
{
    setProblem(
        QStringLiteral("--%1 \"%2\" is not %3").arg(QLatin1String(name), text(name), expected));
}

int Options::number(const char *name, const Range &range)
{
    bool isNumber = false;
    const int value = text(name).toInt(&isNumber);
    if (!isNumber || !isWithin(value, range))
        refuse(name, QStringLiteral("a number from %1 to %2").arg(range.least).arg(range.most));
    return qBound(range.least, value, range.most);
}

QSize Options::pair(const char *name, QLatin1Char between, const Range &range)
{
    const QStringList parts = text(name).split(between);
    bool isFirst = false;
    bool isSecond = false;
    const QSize value(parts.first().toInt(&isFirst), parts.last().toInt(&isSecond));
    if (parts.size() == 2 && isFirst && isSecond && isWithin(value.width(), range)
        && isWithin(value.height(), range))
        return value;
    refuse(name,
           QStringLiteral("two numbers from %1 to %2 with \"%3\" between them")
               .arg(QString::number(range.least), QString::number(range.most), QString(between)));
    return {range.least, range.least};
}

int Options::choice(const char *name, const QStringList &words)
{
    const int index = words.indexOf(text(name));
    if (index < 0)
        refuse(name, QStringLiteral("one of %1").arg(words.join(QLatin1String(", "))));
    return qMax(0, index);
}

QVector<int> Options::choices(const char *name, const QStringList &words)
{
    QVector<int> indices;
    const QStringList chosen = text(name).split(QLatin1Char(','));
    for (const QString &word : chosen)
        indices += words.indexOf(word);
    if (indices.contains(-1)) {
        refuse(name, QStringLiteral("a list out of %1").arg(words.join(QLatin1Char(','))));
        indices.clear();
    }
    return indices;
}

QColor Options::pureColor(const char *name)
{
    return PureColor::at(choice(name, PatternWords::colors()));
}

QVector<int> Options::pureColors(const char *name)
{
    return choices(name, PatternWords::colors());
}

QColor Options::color(const char *name)
{
    static const QRegularExpression rgb(QStringLiteral("^#[0-9a-fA-F]{6}$"));
    const QString value = text(name);
    const int index = PatternWords::colors().indexOf(value);
    if (index >= 0)
        return PureColor::at(index);
    if (value != QLatin1String("black") && !rgb.match(value).hasMatch())
        refuse(name, QStringLiteral("black, #rrggbb or one of %1")
                         .arg(PatternWords::colors().join(QLatin1String(", "))));
    return {value};
}
