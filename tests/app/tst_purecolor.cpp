#include "dictionary.h"
#include "purecolor.h"
#include "rows.h"

#include <QtTest>

#include <limits>

namespace {

struct Entry
{
    const char *name;
    Qt::GlobalColor color;
    int red, green, blue; // which channels are lit
};

constexpr Entry entries[] = {
    {"红", Qt::red, 1, 0, 0},     {"绿", Qt::green, 0, 1, 0},  {"蓝", Qt::blue, 0, 0, 1},
    {"白", Qt::white, 1, 1, 1},   {"黄", Qt::yellow, 1, 1, 0}, {"青", Qt::cyan, 0, 1, 1},
    {"紫", Qt::magenta, 1, 0, 1},
};

void addOtherColors()
{
    const Table<QColor> row("color");
    row("black", Qt::black);
    row("invalid", QColor());
    row("transparent", Qt::transparent);
    row("red with alpha 254", {255, 0, 0, 254});
    row("red with alpha 128", {255, 0, 0, 128});
    row("red, one step darker", {254, 0, 0});
    row("red in another colour model", QColor::fromHsv(0, 255, 255));
    row("cyan in another colour model", QColor::fromCmyk(255, 0, 0, 0));
    row("dark green", Qt::darkGreen);
    row("grey", Qt::gray);
}

} // namespace

class TestPureColor : public QObject
{
    Q_OBJECT

private slots:
    void table_isNumberedInItsOrder();
    void indexOutsideTheTable_givesNothing_data();
    void indexOutsideTheTable_givesNothing();
    void otherColour_hasNoIndex_data() { addOtherColors(); }
    void otherColour_hasNoIndex();
    void equalColour_isFoundHoweverItWasMade();
    void name_isTranslatedInTheHelpersContext();
    void pageColours_areTheFirstFour();

    void greyScale_setsTheLitChannels();
    void greyScale_leavesOtherColoursAlone_data() { addOtherColors(); }
    void greyScale_leavesOtherColoursAlone();
    void greyScale_isClamped_data();
    void greyScale_isClamped();
};

void TestPureColor::table_isNumberedInItsOrder()
{
    QCOMPARE(PureColor::count, 7);
    int index = 0;
    for (const Entry &entry : entries) {
        QCOMPARE(PureColor::at(index), QColor(entry.color));
        QCOMPARE(PureColor::indexOf(entry.color), index);
        QCOMPARE(PureColor::sourceName(index), QString::fromUtf8(entry.name));
        QCOMPARE(PureColor::translatedName(index), QString::fromUtf8(entry.name));
        ++index;
    }
}

void TestPureColor::indexOutsideTheTable_givesNothing_data()
{
    addRows<int>("index", {{"one too few", -1},
                           {"one too many", 7},
                           {"none selected", 256},
                           {"smallest", std::numeric_limits<int>::min()},
                           {"largest", std::numeric_limits<int>::max()}});
}

void TestPureColor::indexOutsideTheTable_givesNothing()
{
    QFETCH(const int, index);
    QVERIFY(!PureColor::at(index).isValid());
    QVERIFY(PureColor::sourceName(index).isNull());
    QVERIFY(PureColor::translatedName(index).isNull());
}

void TestPureColor::otherColour_hasNoIndex()
{
    QFETCH(const QColor, color);
    QCOMPARE(PureColor::indexOf(color), -1);
}

void TestPureColor::equalColour_isFoundHoweverItWasMade()
{
    QCOMPARE(PureColor::indexOf(QColor(0, 0, 255)), 2);
    QCOMPARE(PureColor::indexOf(QColor(QStringLiteral("#ffff00"))), 4);
    QCOMPARE(PureColor::indexOf(QColor::fromRgbF(1.0, 0.0, 1.0)), 6);
}

void TestPureColor::name_isTranslatedInTheHelpersContext()
{
    const Dictionary marked(QStringLiteral("!"), "CommonHelper");
    for (int index = 0; index < PureColor::count; ++index) {
        QCOMPARE(PureColor::translatedName(index),
                 QString::fromUtf8(entries[index].name) + QLatin1Char('!'));
        QCOMPARE(PureColor::sourceName(index), QString::fromUtf8(entries[index].name));
    }
    QVERIFY(PureColor::translatedName(7).isNull());
}

void TestPureColor::pageColours_areTheFirstFour()
{
    QCOMPARE(PureColor::pageColorCount, 4);
    QCOMPARE(PureColor::at(PureColor::pageColorCount - 1), QColor(Qt::white));
}

void TestPureColor::greyScale_setsTheLitChannels()
{
    for (const Entry &entry : entries) {
        for (int grey = 0; grey < 256; ++grey) {
            const QColor scaled = getGrayScaleColor(entry.color, grey);
            QCOMPARE(scaled, QColor(entry.red * grey, entry.green * grey, entry.blue * grey, 255));
        }
    }
}

void TestPureColor::greyScale_leavesOtherColoursAlone()
{
    QFETCH(const QColor, color);
    for (const int grey : {0, 7, 255})
        QCOMPARE(getGrayScaleColor(color, grey), color);
}

void TestPureColor::greyScale_isClamped_data()
{
    const Table<int, int> row("grey", "level");
    row("below", -1, 0);
    row("far below", std::numeric_limits<int>::min(), 0);
    row("above", 256, 255);
    row("far above", std::numeric_limits<int>::max(), 255);
}

void TestPureColor::greyScale_isClamped()
{
    QFETCH(const int, grey);
    QFETCH(const int, level);
    QCOMPARE(getGrayScaleColor(Qt::yellow, grey), QColor(level, level, 0));
}

QTEST_MAIN(TestPureColor)
#include "tst_purecolor.moc"
