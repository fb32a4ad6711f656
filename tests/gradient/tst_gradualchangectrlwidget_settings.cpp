#include "gradientrig.h"
#include "savesoon.h"

#include <QFile>
#include <QtTest>

#include <random>

namespace {

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

int storedLevel(GradientRig &rig)
{
    return rig.settings.stored().value(QStringLiteral("gradualChangeColorLevel")).toInt();
}

QColor storedColor(GradientRig &rig)
{
    return rig.settings.stored().value(QStringLiteral("gradualChangeColor")).value<QColor>();
}

void change(GradientRig &rig, int kind)
{
    switch (kind) {
    case 0:
        rig.click(rig.levelButton(0));
        break;
    case 1:
        rig.click(rig.colorButton(2));
        break;
    case 2:
        rig.panel->m_level = 256;
        rig.panel->m_colorIndex = 3;
        rig.panel->slot_changeColorByPageDown();
        break;
    default:
        rig.panel->slot_changeSelectedGradualColor(Qt::magenta);
    }
}

bool isSaveDue(const GradientRig &rig)
{
    return rig.panel->findChild<SaveSoon *>()->isDue();
}

} // namespace

class TestGradualChangeCtrlWidgetSettings : public QObject
{
    Q_OBJECT

private slots:
    void levelAndColour_comeBackAfterARestart_data();
    void levelAndColour_comeBackAfterARestart();
    void colourIndex_isThatOfThePageKeysAfterAStart_data();
    void colourIndex_isThatOfThePageKeysAfterAStart();
    void storedLevel_reachesTheTestWindowWithTheNextColour();
    void storedColour_isReadAsAName_data();
    void storedColour_isReadAsAName();
    void storedColourThatIsNoneOfTheSeven_selectsNothing_data();
    void storedColourThatIsNoneOfTheSeven_selectsNothing();
    void storedLevelOutOfRange_givesTheDefault_data();
    void storedLevelOutOfRange_givesTheDefault();
    void storedNonsense_neverCrashesOrHangs();

    void restoring_writesNothing_data();
    void restoring_writesNothing();
    void destruction_saves();
    void change_isSavedSoon_data();
    void change_isSavedSoon();
    void changes_areSavedTogether();
};

void TestGradualChangeCtrlWidgetSettings::levelAndColour_comeBackAfterARestart_data()
{
    QTest::addColumn<uint>("row");
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("index");
    for (int index = 0; index < colorCount; ++index) {
        const uint row = uint(index) % 4;
        QTest::addRow("level button %u, colour %d", row, index) << row << (32 << row) << index;
    }
}

void TestGradualChangeCtrlWidgetSettings::levelAndColour_comeBackAfterARestart()
{
    QFETCH(const uint, row);
    QFETCH(const int, level);
    QFETCH(const int, index);
    GradientRig rig;
    rig.click(rig.levelButton(row));
    rig.click(rig.colorButton(index));
    rig.restart();

    QCOMPARE(rig.panel->m_level, qint16(level));
    QCOMPARE(rig.checkedColor(), index);
    QVERIFY(!rig.panel->m_userChanged);
    QCOMPARE(storedLevel(rig), level);
    QCOMPARE(storedColor(rig), QColor(colors[index]));
}

void TestGradualChangeCtrlWidgetSettings::colourIndex_isThatOfThePageKeysAfterAStart_data()
{
    addColorRows();
}

// Yellow, cyan and purple count as red there.
void TestGradualChangeCtrlWidgetSettings::colourIndex_isThatOfThePageKeysAfterAStart()
{
    QFETCH(const int, index);
    const GradientRig rig({{colorKey, QColor(colors[index])}});
    QCOMPARE(rig.checkedColor(), index);
    QCOMPARE(rig.panel->m_colorIndex, index < 4 ? index : 0);
}

void TestGradualChangeCtrlWidgetSettings::storedLevel_reachesTheTestWindowWithTheNextColour()
{
    GradientRig rig({{colorKey, QColor(Qt::green)}, {levelKey, 64}});
    QCOMPARE(rig.panel->m_level, qint16(64));
    QVERIFY(rig.shows(256, Qt::green));
    rig.click(rig.colorButton(2));
    QVERIFY(rig.shows(64, Qt::blue));
}

void TestGradualChangeCtrlWidgetSettings::storedColour_isReadAsAName_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("index");
    QTest::newRow("colour") << QVariant(QColor(Qt::yellow)) << 4;
    QTest::newRow("hexadecimal") << QVariant(QStringLiteral("#ffff00")) << 4;
    QTest::newRow("upper case") << QVariant(QStringLiteral("#00FFFF")) << 5;
    QTest::newRow("name") << QVariant(QStringLiteral("blue")) << 2;
    QTest::newRow("of the other colour model") << QVariant(QColor::fromHsv(300, 255, 255)) << 6;
    QTest::newRow("empty") << QVariant(QString()) << 0;
}

void TestGradualChangeCtrlWidgetSettings::storedColour_isReadAsAName()
{
    QFETCH(const QVariant, stored);
    QFETCH(const int, index);
    GradientRig rig({{colorKey, stored}});
    QCOMPARE(rig.checkedColor(), index);
    QVERIFY(rig.shows(256, colors[index]));
}

void TestGradualChangeCtrlWidgetSettings::storedColourThatIsNoneOfTheSeven_selectsNothing_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::newRow("another colour") << QVariant(QColor(1, 2, 3));
    QTest::newRow("translucent red") << QVariant(QColor(255, 0, 0, 128));
    QTest::newRow("invalid colour") << QVariant(QColor());
    QTest::newRow("no colour") << QVariant(QStringLiteral("nonsense"));
    QTest::newRow("number") << QVariant(3);
    QTest::newRow("the Chinese name") << QVariant(QStringLiteral("红"));
}

void TestGradualChangeCtrlWidgetSettings::storedColourThatIsNoneOfTheSeven_selectsNothing()
{
    QFETCH(const QVariant, stored);
    GradientRig rig({{colorKey, stored}, {levelKey, 128}});
    QCOMPARE(rig.checkedColor(), -1);
    QCOMPARE(rig.panel->m_colorIndex, 0);
    QCOMPARE(rig.panel->m_level, qint16(128));
    QVERIFY(!rig.panel->getDrawer()->active);

    rig.click(rig.colorButton(6));
    QVERIFY(rig.shows(128, Qt::magenta));
    rig.restart();
    QCOMPARE(rig.checkedColor(), 6);
}

void TestGradualChangeCtrlWidgetSettings::storedLevelOutOfRange_givesTheDefault_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("level");
    QTest::newRow("least") << QVariant(1) << 1;
    QTest::newRow("not of the four") << QVariant(100) << 100;
    QTest::newRow("text of a number") << QVariant(QStringLiteral("64")) << 64;
    QTest::newRow("greatest") << QVariant(32767) << 32767;
    QTest::newRow("one too many") << QVariant(32768) << 256;
    QTest::newRow("zero in sixteen bits") << QVariant(65536) << 256;
    QTest::newRow("64 in sixteen bits") << QVariant(65600) << 256;
    QTest::newRow("huge") << QVariant(2147483647) << 256;
    QTest::newRow("too long for an int") << QVariant(QStringLiteral("99999999999999999")) << 256;
    QTest::newRow("zero") << QVariant(0) << 256;
    QTest::newRow("negative") << QVariant(-1) << 256;
    QTest::newRow("64 in sixteen bits, negative") << QVariant(-65472) << 256;
    QTest::newRow("least int") << QVariant(-2147483647 - 1) << 256;
    QTest::newRow("text") << QVariant(QStringLiteral("64级")) << 256;
    QTest::newRow("empty") << QVariant(QString()) << 256;
    QTest::newRow("list") << QVariant(QStringList({QStringLiteral("64"), QStringLiteral("3")}))
                          << 256;
    QTest::newRow("bytes") << QVariant(QByteArray("\0\xff\x80", 3)) << 256;
}

void TestGradualChangeCtrlWidgetSettings::storedLevelOutOfRange_givesTheDefault()
{
    QFETCH(const QVariant, stored);
    QFETCH(const int, level);
    GradientRig rig({{levelKey, stored}});
    QCOMPARE(rig.panel->m_level, qint16(level));
    rig.click(rig.colorButton(1));
    QVERIFY(rig.shows(level, Qt::green));
}

void TestGradualChangeCtrlWidgetSettings::storedNonsense_neverCrashesOrHangs()
{
    std::mt19937 engine(4711);
    const auto number = [&engine](int from, int to) {
        return std::uniform_int_distribution<int>(from, to)(engine);
    };
    const auto nonsense = [&number]() -> QVariant {
        if (number(0, 1) > 0)
            return number(-100000, 100000);
        QString text;
        for (int length = number(0, 12); length > 0; --length)
            text += QChar(number(1, 0x2ff));
        return text;
    };
    for (int run = 0; run < 80; ++run) {
        GradientRig rig({{colorKey, nonsense()}, {levelKey, nonsense()}});
        QVERIFY(rig.panel->m_level >= 1);
        rig.click(rig.colorButton(run % colorCount));
        QVERIFY(rig.shows(rig.panel->m_level, colors[run % colorCount]));
    }
}

void TestGradualChangeCtrlWidgetSettings::restoring_writesNothing_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::newRow("nothing") << QVariantMap();
    QTest::newRow("both") << QVariantMap{{colorKey, QColor(Qt::white)}, {levelKey, 64}};
    QTest::newRow("neither fits") << QVariantMap{{colorKey, QColor(Qt::gray)}, {levelKey, -3}};
}

void TestGradualChangeCtrlWidgetSettings::restoring_writesNothing()
{
    QFETCH(const QVariantMap, values);
    GradientRig rig(values);
    const QByteArray before = contents(rig.settings.path());
    QVERIFY(!isSaveDue(rig));
    rig.settings->sync();

    QCOMPARE(contents(rig.settings.path()), before);
    QCOMPARE(rig.settings.stored().size(), values.size());
}

void TestGradualChangeCtrlWidgetSettings::destruction_saves()
{
    GradientRig rig;
    rig.panel->slot_changeGradualColorSecond();
    rig.panel->slot_changeSelectedGradualColor(Qt::cyan);
    QVERIFY(!rig.settings->contains(levelKey));
    rig.canvas.setDrawer(nullptr);
    rig.panel.reset();

    QCOMPARE(rig.settings->value(levelKey), QVariant(64));
    QCOMPARE(rig.settings->value(colorKey), QVariant(QColor(Qt::cyan)));
    QCOMPARE(storedLevel(rig), 64);
    QCOMPARE(storedColor(rig), QColor(Qt::cyan));
}

void TestGradualChangeCtrlWidgetSettings::change_isSavedSoon_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("level");
    QTest::addColumn<QColor>("color");
    QTest::newRow("level") << 0 << 32 << QColor(Qt::red);
    QTest::newRow("colour") << 1 << 128 << QColor(Qt::blue);
    QTest::newRow("page key") << 2 << 256 << QColor(Qt::white);
    QTest::newRow("another panel's colour") << 3 << 128 << QColor(Qt::magenta);
}

void TestGradualChangeCtrlWidgetSettings::change_isSavedSoon()
{
    QFETCH(const int, kind);
    QFETCH(const int, level);
    QFETCH(const QColor, color);
    GradientRig rig({{colorKey, QColor(Qt::red)}, {levelKey, 128}});
    change(rig, kind);
    QCOMPARE(storedLevel(rig), 128); // not at once
    QCOMPARE(storedColor(rig), QColor(Qt::red));

    QTRY_COMPARE(rig.settings->value(levelKey).toInt(), level);
    QTRY_COMPARE(rig.settings->value(colorKey).value<QColor>(), color);
}

void TestGradualChangeCtrlWidgetSettings::changes_areSavedTogether()
{
    GradientRig rig;
    rig.click(rig.levelButton(0));
    rig.click(rig.colorButton(1));
    rig.click(rig.levelButton(1));
    QVERIFY(isSaveDue(rig));
    QVERIFY(!rig.settings->contains(levelKey));
    QTRY_VERIFY(!isSaveDue(rig));
    QCOMPARE(rig.settings->value(levelKey).toInt(), 64);
    QCOMPARE(rig.settings->value(colorKey).value<QColor>(), QColor(Qt::green));
}

QTEST_MAIN(TestGradualChangeCtrlWidgetSettings)
#include "tst_gradualchangectrlwidget_settings.moc"
