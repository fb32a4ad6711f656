#include "cabinetrig.h"

#include <QFile>
#include <QtTest>

#include <limits>

namespace {

const char *const boxKeys[] = {"tarnBoxWidth", "tarnBoxHeight", "tarnModelColumnCount",
                               "tarnModelRowCount"};

// Swatch, key of its style, key of its colour.
const char *const colorKeys[][3] = {
    {"buttonFont", "tarnFontColor", "tarnFontFontColor"},
    {"buttonModeLine", "tarnBoxLineColor", "tarnModuleLineColor"},
    {"buttonScan", "tarnModelColor", "tarnScanLineColor"},
    {"labelColor", "tarnBackgroundColor", "tarnBackColor"},
};

const char *const advancedKeys[] = {"advanceFontSize",  "advanceBeginRow",  "advanceBeginColumn",
                                    "advanceModeWidth", "advanceScanWidth", "advanceFontShape"};

QVector<int> advancedFields(const ScrGrid &drawer)
{
    return {drawer.m_fontSize,        drawer.m_beginRow,      drawer.m_beginColumn,
            drawer.m_moduleLineWidth, drawer.m_scanLineWidth, drawer.m_fontShape};
}

QVector<QColor> colors(const ScrGrid &drawer)
{
    return {drawer.m_fontColor, drawer.m_moduleLineColor, drawer.m_scanColor, drawer.m_bgColor};
}

const QVector<QColor> &defaultColors()
{
    static const QVector<QColor> all = {Qt::yellow, Qt::red, Qt::blue, Qt::black};
    return all;
}

// Values of the kinds that a damaged or written-over file holds.
QVector<QVariant> hostileValues()
{
    return {QString(),
            QStringLiteral("text"),
            QStringLiteral("99999999999999999999"),
            std::numeric_limits<int>::max(),
            std::numeric_limits<int>::min(),
            -1,
            0,
            1.5,
            QStringList({QStringLiteral("1"), QStringLiteral("2")}),
            QByteArray("\0\xff\x80", 3),
            QColor(Qt::white),
            QStringLiteral("background-image: url(/dev/zero)"),
            QStringLiteral("} QWidget {")};
}

// Another value than the one after a start.
void change(const CabinetRig &rig, const char *control)
{
    if (QSpinBox *box = rig.box(control))
        box->setValue(60);
    else
        rig.click(control);
}

} // namespace

class TestTarnToolSettings : public QObject
{
    Q_OBJECT

private slots:
    void firstStart_hasTheDefaults();
    void withoutAKeptPicture_theStoredChoiceOfOneIsIgnored();
    void rightToLeft_isStoredAndComesBack();
    void storedCount_isShownWithinItsLimits_data();
    void storedCount_isShownWithinItsLimits();
    void storedAdvancedValue_reachesTheDrawer_data();
    void storedAdvancedValue_reachesTheDrawer();
    void storedColour_countsOnlyWithItsStyle_data();
    void storedColour_countsOnlyWithItsStyle();
    void storedStyle_isWornOnlyIfItIsASwatchs();
    void everythingChosen_comesBackAfterARestart();
    void hostileValue_isSurvived_data();
    void hostileValue_isSurvived();
    void restoring_writesNothing();
    void destruction_savesTheBaseSettings();
    void change_isSavedSoon_data();
    void change_isSavedSoon();
    void changes_areSavedTogetherWithinASecond();
};

void TestTarnToolSettings::firstStart_hasTheDefaults()
{
    const CabinetRig rig;
    QCOMPARE(rig.box("boxWidth")->value(), 32);
    QCOMPARE(rig.box("boxHight")->value(), 16);
    QCOMPARE(rig.box("boxRow")->value(), 2);
    QCOMPARE(rig.box("boxColumn")->value(), 2);
    QVERIFY(rig.radio("radioBeginLeft")->isChecked());
    QVERIFY(rig.radio("radioBackground")->isChecked());
    QCOMPARE(rig.style("buttonFont"), QStringLiteral("background-color: rgb(255,255,0)"));
    QCOMPARE(rig.style("buttonModeLine"), QStringLiteral("background-color: rgb(255,0,0)"));
    QCOMPARE(rig.style("buttonScan"), QStringLiteral("background-color: rgb(0,0,255)"));
    QCOMPARE(rig.style("labelColor"), QStringLiteral("background-color: rgb(0,0,0)"));
    rig.layOut();
    QCOMPARE(colors(*rig.drawer), defaultColors());
    QCOMPARE(advancedFields(*rig.drawer), QVector<int>({10, 1, 1, 1, 4, 0}));
    QVERIFY(rig.drawer->m_leftToRight);
    QCOMPARE(rig.drawer->m_bgPicturePath, QString());
}

void TestTarnToolSettings::withoutAKeptPicture_theStoredChoiceOfOneIsIgnored()
{
    const CabinetRig rig({{QStringLiteral("tarnBackgroundSelect"), false}});
    QVERIFY(rig.radio("radioBackground")->isChecked());
    QVERIFY(!rig.radio("radioPicture")->isChecked());
}

void TestTarnToolSettings::rightToLeft_isStoredAndComesBack()
{
    CabinetRig rig;
    rig.layOut();
    rig.click("radioBeginRight");
    rig.restart();
    QCOMPARE(rig.stored("tarnLeftToRight"), QVariant(QStringLiteral("true")));
    QVERIFY(rig.radio("radioBeginRight")->isChecked());
    QVERIFY(!rig.radio("radioBeginLeft")->isChecked());
    rig.layOut();
    QVERIFY(!rig.drawer->m_leftToRight);
    rig.click("radioBeginLeft");
    rig.restart();
    QVERIFY(rig.radio("radioBeginLeft")->isChecked());
}

void TestTarnToolSettings::storedCount_isShownWithinItsLimits_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("count");
    QTest::newRow("zero") << QVariant(0) << 32 << 16 << 2;
    QTest::newRow("five") << QVariant(5) << 16 << 16 << 5;
    QTest::newRow("within") << QVariant(64) << 64 << 64 << 64;
    QTest::newRow("greatest") << QVariant(100) << 100 << 100 << 100;
    QTest::newRow("beyond") << QVariant(101) << 100 << 100 << 100;
    QTest::newRow("huge") << QVariant(std::numeric_limits<int>::max()) << 100 << 100 << 100;
    QTest::newRow("beyond an int") << QVariant(QStringLiteral("4294967328")) << 32 << 16 << 2;
    QTest::newRow("negative") << QVariant(-5) << 16 << 16 << 1;
    QTest::newRow("text") << QVariant(QStringLiteral("wide")) << 32 << 16 << 2;
    QTest::newRow("list") << QVariant(QStringList({QStringLiteral("40"), QStringLiteral("41")}))
                          << 32 << 16 << 2;
}

void TestTarnToolSettings::storedCount_isShownWithinItsLimits()
{
    QFETCH(const QVariant, stored);
    QVariantMap values;
    for (const char *key : boxKeys)
        values[QLatin1String(key)] = stored;
    const CabinetRig rig(values);
    QTEST(rig.box("boxWidth")->value(), "width");
    QTEST(rig.box("boxHight")->value(), "height");
    QTEST(rig.box("boxColumn")->value(), "count");
    QTEST(rig.box("boxRow")->value(), "count");
}

void TestTarnToolSettings::storedAdvancedValue_reachesTheDrawer_data()
{
    QTest::addColumn<int>("field");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("value");
    for (int field = 0; field < 6; ++field) {
        const QByteArray name(advancedKeys[field]);
        QTest::newRow(name + ", int") << field << QVariant(7) << 7;
        QTest::newRow(name + ", text") << field << QVariant(QStringLiteral("7")) << 7;
        QTest::newRow(name + ", no number") << field << QVariant(QStringLiteral("x")) << 0;
        QTest::newRow(name + ", unclamped") << field << QVariant(-12345) << -12345;
    }
}

// At the start, and again when the layout is switched on.
void TestTarnToolSettings::storedAdvancedValue_reachesTheDrawer()
{
    QFETCH(const int, field);
    QFETCH(const QVariant, stored);
    const CabinetRig rig({{QLatin1String(advancedKeys[field]), stored}});
    QVector<int> expected = {10, 1, 1, 1, 4, 0};
    QTEST(advancedFields(*rig.drawer).at(field), "value");
    rig.drawer->m_fontSize = rig.drawer->m_beginRow = rig.drawer->m_beginColumn = 55;
    rig.drawer->m_moduleLineWidth = rig.drawer->m_scanLineWidth = rig.drawer->m_fontShape = 55;
    rig.layOut();
    QTEST(advancedFields(*rig.drawer).at(field), "value");
    expected[field] = advancedFields(*rig.drawer).at(field);
    QCOMPARE(advancedFields(*rig.drawer), expected);
}

void TestTarnToolSettings::storedColour_countsOnlyWithItsStyle_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<QVariant>("color");
    QTest::addColumn<bool>("counts");
    const QString style = QStringLiteral("background-color: rgb(1,2,3)");
    QTest::newRow("both") << style << QVariant(QColor(1, 2, 3)) << true;
    QTest::newRow("colour by name") << style << QVariant(QStringLiteral("#010203")) << true;
    QTest::newRow("without style") << QString() << QVariant(QColor(1, 2, 3)) << false;
    QTest::newRow("without colour") << style << QVariant() << false;
    QTest::newRow("no colour") << style << QVariant(QStringLiteral("x")) << false;
    QTest::newRow("invalid colour") << style << QVariant(QColor()) << false;
    QTest::newRow("number") << style << QVariant(77) << false;
}

void TestTarnToolSettings::storedColour_countsOnlyWithItsStyle()
{
    QFETCH(const QString, style);
    QFETCH(const QVariant, color);
    QFETCH(const bool, counts);
    const CabinetRig defaults;
    QVariantMap values;
    for (const auto &keys : colorKeys) {
        values[QLatin1String(keys[1])] = style;
        values[QLatin1String(keys[2])] = color;
    }
    const CabinetRig rig(values);
    rig.layOut();
    for (int index = 0; index < 4; ++index) {
        const char *swatch = colorKeys[index][0];
        QCOMPARE(rig.style(swatch), counts ? style : defaults.style(swatch));
        QCOMPARE(colors(*rig.drawer).at(index),
                 counts ? QColor(1, 2, 3) : defaultColors().at(index));
    }
}

void TestTarnToolSettings::storedStyle_isWornOnlyIfItIsASwatchs()
{
    const CabinetRig rig(
        {{QStringLiteral("tarnFontColor"), QStringLiteral("background-image: url(/dev/zero)")},
         {QStringLiteral("tarnFontFontColor"), QColor(1, 2, 3)}});
    QCOMPARE(rig.style("buttonFont"), QStringLiteral("background-color: rgb(1,2,3)"));
    rig.layOut();
    QCOMPARE(rig.drawer->m_fontColor, QColor(1, 2, 3));
}

void TestTarnToolSettings::everythingChosen_comesBackAfterARestart()
{
    const DialogAnswers answers;
    CabinetRig rig({}, pictureFile(Qt::cyan));
    rig.layOut();
    int value = 60;
    for (const char *name : {"boxWidth", "boxHight", "boxRow", "boxColumn"})
        rig.box(name)->setValue(++value);
    rig.click("radioBeginRight");
    rig.click("radioBackground");
    for (const auto &keys : colorKeys) {
        DialogAnswers::color(QColor(++value, 5, 6));
        rig.click(keys[0]);
    }
    rig.restart();

    rig.layOut();
    QCOMPARE(QSize(rig.drawer->m_moduleWidth, rig.drawer->m_moduleHeight), QSize(61, 62));
    QCOMPARE(rig.drawer->m_moduleRowCount, 63);
    QCOMPARE(rig.drawer->m_moduleColumnCount, 64);
    QVERIFY(!rig.drawer->m_leftToRight);
    QVERIFY(rig.radio("radioBackground")->isChecked());
    QCOMPARE(rig.drawer->m_bgPicturePath, QString());
    value = 64;
    for (int index = 0; index < 4; ++index) {
        ++value;
        QCOMPARE(colors(*rig.drawer).at(index), QColor(value, 5, 6));
        QCOMPARE(rig.style(colorKeys[index][0]),
                 QStringLiteral("background-color: rgb(%1,5,6)").arg(value));
    }
}

void TestTarnToolSettings::hostileValue_isSurvived_data()
{
    QTest::addColumn<QVariant>("value");
    const QVector<QVariant> values = hostileValues();
    for (int row = 0; row < values.size(); ++row)
        QTest::addRow("%d", row) << values.at(row);
}

// The same nonsense under every key: the panel comes up, and lays out what is within its limits.
void TestTarnToolSettings::hostileValue_isSurvived()
{
    QFETCH(const QVariant, value);
    QVariantMap values;
    for (const char *key : boxKeys)
        values[QLatin1String(key)] = value;
    for (const char *key : advancedKeys)
        values[QLatin1String(key)] = value;
    for (const auto &keys : colorKeys) {
        values[QLatin1String(keys[1])] = value;
        values[QLatin1String(keys[2])] = value;
    }
    values[QStringLiteral("tarnLeftToRight")] = value;
    values[QStringLiteral("tarnBackgroundSelect")] = value;
    CabinetRig rig(values, pictureFile(Qt::cyan));
    rig.layOut();
    QVERIFY(rig.drawer->m_moduleWidth >= 16 && rig.drawer->m_moduleWidth <= 100);
    QVERIFY(rig.drawer->m_moduleRowCount >= 1 && rig.drawer->m_moduleRowCount <= 100);
    const QVector<QColor> shown = colors(*rig.drawer);
    for (const QColor &color : shown.mid(0, 3))
        QVERIFY(color.isValid());
    for (const auto &keys : colorKeys)
        QVERIFY(rig.style(keys[0]).startsWith(QStringLiteral("background-color: rgb(")));
    QVERIFY(rig.radio("radioBeginLeft")->isChecked() != rig.radio("radioBeginRight")->isChecked());
    QVERIFY(rig.radio("radioPicture")->isChecked() != rig.radio("radioBackground")->isChecked());
    QVERIFY(!rig.canvas.painted().isNull());
}

void TestTarnToolSettings::restoring_writesNothing()
{
    const QVariantMap values = {{QStringLiteral("tarnBoxWidth"), 5},
                                {QStringLiteral("tarnLeftToRight"), true},
                                {QStringLiteral("tarnFontColor"), QStringLiteral("x")}};
    const CabinetRig rig(values, pictureFile(Qt::cyan));
    QVERIFY(!rig.isSaveDue());
    QVERIFY(!rig.panel->m_userChanged);
    QCOMPARE(rig.settings.stored().size(), values.size());
    QCOMPARE(rig.stored("tarnBoxWidth").toInt(), 5);
}

void TestTarnToolSettings::destruction_savesTheBaseSettings()
{
    CabinetRig rig;
    rig.box("boxHight")->setValue(20);
    rig.box("boxWidth")->setValue(21);
    rig.box("boxColumn")->setValue(22);
    rig.box("boxRow")->setValue(23);
    QVERIFY(rig.settings.stored().isEmpty());
    rig.canvas.setDrawer(nullptr);
    rig.panel.reset();

    QCOMPARE(rig.settings.stored().size(), 6);
    QCOMPARE(rig.stored("tarnBoxHeight").toInt(), 20);
    QCOMPARE(rig.stored("tarnBoxWidth").toInt(), 21);
    QCOMPARE(rig.stored("tarnModelColumnCount").toInt(), 22);
    QCOMPARE(rig.stored("tarnModelRowCount").toInt(), 23);
    QCOMPARE(rig.stored("tarnLeftToRight").toBool(), false);
    QCOMPARE(rig.stored("tarnBackgroundSelect").toBool(), true);
}

void TestTarnToolSettings::change_isSavedSoon_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QString>("value");
    const auto row = [](const char *control, const char *key, const char *value) {
        QTest::newRow(control) << QByteArray(control) << QByteArray(key)
                               << QString::fromLatin1(value);
    };
    row("boxWidth", "tarnBoxWidth", "60");
    row("boxHight", "tarnBoxHeight", "60");
    row("boxColumn", "tarnModelColumnCount", "60");
    row("boxRow", "tarnModelRowCount", "60");
    row("radioBeginRight", "tarnLeftToRight", "true");
    row("radioBackground", "tarnBackgroundSelect", "true");
}

void TestTarnToolSettings::change_isSavedSoon()
{
    QFETCH(const QByteArray, control);
    QFETCH(const QByteArray, key);
    QFETCH(const QString, value);
    const CabinetRig rig({}, pictureFile(Qt::cyan));
    rig.layOut();
    change(rig, control.constData());
    QVERIFY(rig.isSaveDue());
    QVERIFY(rig.settings.stored().isEmpty()); // not at once
    rig.panel->saveTarnBaseInfo();
    QCOMPARE(rig.stored(key.constData()).toString(), value);
}

void TestTarnToolSettings::changes_areSavedTogetherWithinASecond()
{
    const CabinetRig rig;
    rig.layOut();
    change(rig, "boxWidth");
    change(rig, "radioBeginRight");
    QTRY_VERIFY_WITH_TIMEOUT(!rig.settings.stored().isEmpty(), 1000);
    QCOMPARE(rig.stored("tarnBoxWidth").toInt(), 60);
    QVERIFY(rig.stored("tarnLeftToRight").toBool());
    QVERIFY(!rig.isSaveDue());
}

QTEST_MAIN(TestTarnToolSettings)
#include "tst_tarntool_settings.moc"
