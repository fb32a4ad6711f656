#include "cabinetrig.h"
#include "colordialog.h"
#include "picturefolder.h"
#include "rows.h"

#include <QtTest>

#include <limits>

namespace {

// Swatch, key of its style, key of its colour.
const char *const colorKeys[][3] = {
    {"buttonFont", "tarnFontColor", "tarnFontFontColor"},
    {"buttonModeLine", "tarnBoxLineColor", "tarnModuleLineColor"},
    {"buttonScan", "tarnModelColor", "tarnScanLineColor"},
    {"labelColor", "tarnBackgroundColor", "tarnBackColor"},
};

QVector<QColor> shownColors(const ScrGrid &drawer)
{
    return {drawer.m_fontColor, drawer.m_moduleLineColor, drawer.m_scanColor, drawer.m_bgColor};
}

const QVector<QColor> &defaultColors()
{
    static const QVector<QColor> all = {Qt::yellow, Qt::red, Qt::blue, Qt::black};
    return all;
}

} // namespace

class TestTarnToolSettings : public QObject
{
    Q_OBJECT

private slots:
    void firstStart_hasTheDefaults();
    void withoutAKeptPicture_theStoredChoiceOfOneIsIgnored();
    void storedCount_isShownWithinItsLimits_data();
    void storedCount_isShownWithinItsLimits();
    void storedAdvancedValue_reachesTheDrawer_data();
    void storedAdvancedValue_reachesTheDrawer();
    void colour_isChosenStoredAndShown_data();
    void colour_isChosenStoredAndShown();
    void cancelledColour_changesNothing_data() { colour_isChosenStoredAndShown_data(); }
    void cancelledColour_changesNothing();
    void clickOnTheColourLabelWhilePictureIsSelected_doesNothing();
    void spaceKey_opensTheColourOfTheLabel();
    void storedColour_countsOnlyWithItsStyle_data();
    void storedColour_countsOnlyWithItsStyle();
    void storedStyle_isWornOnlyIfItIsASwatchs();
    void chosenColours_comeBackAfterARestart();
};

void TestTarnToolSettings::firstStart_hasTheDefaults()
{
    const CabinetRig rig;
    QVERIFY(rig.radio("radioBeginLeft")->isChecked());
    QVERIFY(rig.radio("radioBackground")->isChecked());
    QCOMPARE(rig.style("buttonFont"), QStringLiteral("background-color: rgb(255,255,0)"));
    QCOMPARE(rig.style("buttonModeLine"), QStringLiteral("background-color: rgb(255,0,0)"));
    QCOMPARE(rig.style("buttonScan"), QStringLiteral("background-color: rgb(0,0,255)"));
    QCOMPARE(rig.style("labelColor"), QStringLiteral("background-color: rgb(0,0,0)"));
    rig.layOut();
    QCOMPARE(shownColors(*rig.drawer), defaultColors());
    QCOMPARE(advancedFields(*rig.drawer), QVector<int>({10, 1, 1, 1, 4, 0}));
}

void TestTarnToolSettings::withoutAKeptPicture_theStoredChoiceOfOneIsIgnored()
{
    const CabinetRig rig({{QStringLiteral("tarnBackgroundSelect"), false}});
    QVERIFY(rig.radio("radioBackground")->isChecked());
    rig.radio("radioPicture")->setChecked(true);
    rig.panel->initTarnStatus(); // at any time
    QVERIFY(rig.radio("radioBackground")->isChecked());
}

void TestTarnToolSettings::storedCount_isShownWithinItsLimits_data()
{
    const Table<QVariant, int, int, int> row("stored", "width", "height", "count");
    row("zero", 0, 32, 16, 2);
    row("five", 5, 16, 16, 5);
    row("within", 64, 64, 64, 64);
    row("greatest", 100, 100, 100, 100);
    row("beyond", 101, 100, 100, 100);
    row("huge", std::numeric_limits<int>::max(), 100, 100, 100);
    row("negative", -5, 16, 16, 1);
}

void TestTarnToolSettings::storedCount_isShownWithinItsLimits()
{
    QFETCH(const QVariant, stored);
    QVariantMap values;
    for (const char *key : countKeys)
        values[QLatin1String(key)] = stored;
    const CabinetRig rig(values);
    QTEST(rig.box("boxWidth")->value(), "width");
    QTEST(rig.box("boxHight")->value(), "height");
    QTEST(rig.box("boxColumn")->value(), "count");
    QTEST(rig.box("boxRow")->value(), "count");
}

void TestTarnToolSettings::storedAdvancedValue_reachesTheDrawer_data()
{
    const Table<int, QVariant, int> row("field", "stored", "value");
    for (int field = 0; field < 6; ++field) {
        const QByteArray name(advancedKeys[field]);
        row(name + ", int", field, 7, 7);
        row(name + ", text", field, QStringLiteral("7"), 7);
        row(name + ", no number", field, QStringLiteral("x"), 0);
        row(name + ", unclamped", field, -12345, -12345);
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

void TestTarnToolSettings::colour_isChosenStoredAndShown_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index < 4; ++index)
        QTest::newRow(colorKeys[index][0]) << index;
}

void TestTarnToolSettings::colour_isChosenStoredAndShown()
{
    QFETCH(const int, index);
    const auto &[swatch, styleKey, colorKey] = colorKeys[index];
    const DialogAnswers answers;
    const CabinetRig rig;
    rig.layOut();
    rig.panel->getDrawer();
    QColor initial;
    ColorDialog::setAnswer([&initial](const QColor &color) {
        initial = color;
        return QColor(1, 20, 255);
    });
    rig.click(swatch);

    QCOMPARE(initial, QColor(Qt::green));
    const QString style = QStringLiteral("background-color: rgb(1,20,255)");
    QCOMPARE(rig.style(swatch), style);
    QCOMPARE(rig.stored(styleKey).toString(), style);
    QCOMPARE(rig.stored(colorKey).value<QColor>(), QColor(1, 20, 255));
    for (int each = 0; each < 4; ++each)
        QCOMPARE(shownColors(*rig.drawer).at(each) == QColor(1, 20, 255), each == index);
    QVERIFY(rig.drawer->active);
}

void TestTarnToolSettings::cancelledColour_changesNothing()
{
    QFETCH(const int, index);
    const char *swatch = colorKeys[index][0];
    const DialogAnswers answers;
    const CabinetRig rig;
    rig.layOut();
    rig.panel->getDrawer();
    const QString style = rig.style(swatch);
    const QVariantMap before = rig.settings.stored();
    DialogAnswers::color(QColor());
    rig.click(swatch);

    QCOMPARE(rig.style(swatch), style);
    QCOMPARE(rig.settings.stored(), before);
    QVERIFY(!rig.drawer->active);
    QVERIFY(!rig.isSaveDue());
}

void TestTarnToolSettings::clickOnTheColourLabelWhilePictureIsSelected_doesNothing()
{
    const DialogAnswers answers;
    DialogAnswers::none();
    const CabinetRig rig({}, PictureFolder::file(Qt::cyan));
    rig.layOut();
    QVERIFY(rig.radio("radioPicture")->isChecked());
    rig.panel->getDrawer();
    rig.click("labelColor");
    QVERIFY(!rig.drawer->active);
    QCOMPARE(rig.drawer->m_bgPicturePath, KeptPicture::path());
}

void TestTarnToolSettings::spaceKey_opensTheColourOfTheLabel()
{
    const DialogAnswers answers;
    DialogAnswers::color(Qt::magenta);
    const CabinetRig rig;
    rig.panel->show();
    QVERIFY(QTest::qWaitForWindowActive(rig.panel.get()));
    rig.layOut();
    rig.control("labelColor")->setFocus();
    QTest::keyClick(rig.control("labelColor"), Qt::Key_Space);
    QCOMPARE(rig.drawer->m_bgColor, QColor(Qt::magenta));
}

void TestTarnToolSettings::storedColour_countsOnlyWithItsStyle_data()
{
    const QString style = QStringLiteral("background-color: rgb(1,2,3)");
    const Table<QString, QVariant, bool> row("style", "color", "counts");
    row("both", style, QColor(1, 2, 3), true);
    row("colour by name", style, QStringLiteral("#010203"), true);
    row("without style", QString(), QColor(1, 2, 3), false);
    row("without colour", style, QVariant(), false);
    row("no colour", style, QStringLiteral("x"), false);
    row("invalid colour", style, QColor(), false);
    row("number", style, 77, false);
}

void TestTarnToolSettings::storedColour_countsOnlyWithItsStyle()
{
    QFETCH(const QString, style);
    QFETCH(const QVariant, color);
    QFETCH(const bool, counts);
    const DialogAnswers answers;
    DialogAnswers::color(Qt::magenta);
    const CabinetRig defaults;
    const CabinetRig rig;
    rig.layOut();
    for (const auto &[swatch, styleKey, colorKey] : colorKeys) {
        rig.click(swatch); // another colour before
        const QString group = QStringLiteral("/setting/");
        rig.settings->setValue(group + QLatin1String(styleKey), style);
        rig.settings->setValue(group + QLatin1String(colorKey), color);
    }
    rig.panel->initTarnStatus();
    rig.layOut();
    for (int index = 0; index < 4; ++index) {
        const char *swatch = colorKeys[index][0];
        QCOMPARE(rig.style(swatch), counts ? style : defaults.style(swatch));
        QCOMPARE(shownColors(*rig.drawer).at(index),
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

void TestTarnToolSettings::chosenColours_comeBackAfterARestart()
{
    const DialogAnswers answers;
    CabinetRig rig({}, PictureFolder::file(Qt::cyan));
    rig.layOut();
    rig.click("radioBeginRight");
    rig.click("radioBackground");
    for (int index = 0; index < 4; ++index) {
        DialogAnswers::color(QColor(index, 5, 6));
        rig.click(colorKeys[index][0]);
    }
    rig.restart();

    QVERIFY(!rig.panel->m_userChanged);
    QVERIFY(rig.radio("radioBeginRight")->isChecked());
    QVERIFY(rig.radio("radioBackground")->isChecked());
    rig.layOut();
    QVERIFY(!rig.drawer->m_leftToRight);
    QCOMPARE(rig.drawer->m_bgPicturePath, QString());
    for (int index = 0; index < 4; ++index) {
        QCOMPARE(shownColors(*rig.drawer).at(index), QColor(index, 5, 6));
        QCOMPARE(rig.style(colorKeys[index][0]),
                 QStringLiteral("background-color: rgb(%1,5,6)").arg(index));
    }
}

QTEST_MAIN(TestTarnToolSettings)
#include "tst_tarntool_settings.moc"
