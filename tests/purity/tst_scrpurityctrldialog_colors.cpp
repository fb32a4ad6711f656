#include "purityrig.h"
#include "rows.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

constexpr int white = 3;
constexpr int noColor = 256;

const QString baseColorKey = QStringLiteral("/setting/testWindowBaseColor");

QString told(int index)
{
    return QStringLiteral("signal_colorChanged(%1)").arg(QColor(colors[index]).name());
}

// Another colour than the one at the index, and not white.
int otherThan(int index)
{
    return index == 1 ? 2 : 1;
}

} // namespace

class TestScrPurityCtrlDialogColors : public QObject
{
    Q_OBJECT

private slots:
    void colourClick_selectsTheColour_data() { addColorRows(); }
    void colourClick_selectsTheColour();
    void colourClick_onTheCheckedButtonSaysItOnceMore();
    void selectingAColour_checksItsButton_data() { addColorRows(); }
    void selectingAColour_checksItsButton();
    void selectingTheCheckedColour_isSilentUnlessItIsWhite();
    void colourOutsideTheTable_doesNothing_data();
    void colourOutsideTheTable_doesNothing();

    void restoring_neverSetsPuritySelected_theFirstRealColourClickDoes_data();
    void restoring_neverSetsPuritySelected_theFirstRealColourClickDoes();
    void veryFirstColour_doesNotSetPuritySelected();
    void checkedColour_isStoredAgain();
    void puritySelect_setsTheFlag();
    void pageKeys_beforeAnyColourDoNothing();
    void pageKeys_selectTheFirstFour_data() { addColorRows(4); }
    void pageKeys_selectTheFirstFour();
    void pageKeys_neverReachYellowCyanAndPurple_data();
    void pageKeys_neverReachYellowCyanAndPurple();
    void leavingThePageKeys_staysSilent_data();
    void leavingThePageKeys_staysSilent();
};
void TestScrPurityCtrlDialogColors::colourClick_selectsTheColour()
{
    QFETCH(const int, index);
    PurityRig rig({{baseColorKey, QColor(colors[otherThan(index)])}});
    rig.click(rig.colorButton(index));

    QCOMPARE(rig.emitted(), told(index) + QLatin1Char(' ') + told(index)); // checked, and clicked
    QCOMPARE(rig.checkedColor(), index);
    QVERIFY(rig.manual()->isChecked()); // a colour is no mode
    QCOMPARE(rig.panel->colorIndex, index);
    QVERIFY(rig.panel->puritySelected);
    QCOMPARE(rig.shownColor(), QColor(colors[index]).rgba());
    QCOMPARE(rig.settings->value(baseColorKey).value<QColor>(), QColor(colors[index]));
}

void TestScrPurityCtrlDialogColors::colourClick_onTheCheckedButtonSaysItOnceMore()
{
    const PurityRig rig({{baseColorKey, QColor(Qt::blue)}});
    rig.click(rig.colorButton(2));

    QCOMPARE(rig.emitted(), told(2));
    QVERIFY(rig.colorButton(2)->isChecked());
}

void TestScrPurityCtrlDialogColors::selectingAColour_checksItsButton()
{
    QFETCH(const int, index);
    PurityRig rig({{baseColorKey, QColor(colors[otherThan(index)])}});
    rig.panel->slot_changeSelectedPurityColor(colors[index]);

    QVERIFY(rig.colorButton(index)->isChecked());
    QCOMPARE(rig.panel->colorIndex, index);
    QVERIFY(rig.panel->puritySelected);
    QCOMPARE(rig.emitted(), index == white ? told(white) + QLatin1Char(' ') + told(white)
                                           : told(index)); // it clicks the button of white
    QCOMPARE(rig.shownColor(), QColor(colors[index]).rgba());
    QCOMPARE(rig.settings->value(baseColorKey).value<QColor>(), QColor(colors[index]));
}

void TestScrPurityCtrlDialogColors::selectingTheCheckedColour_isSilentUnlessItIsWhite()
{
    for (const int index : {4, white}) {
        const PurityRig rig({{baseColorKey, QColor(colors[index])}});
        QSignalSpy clicked(rig.colorButton(index), &QAbstractButton::clicked);
        rig.panel->slot_changeSelectedPurityColor(colors[index]);

        QCOMPARE(clicked.count(), index == white ? 1 : 0);
        QCOMPARE(rig.emitted(), index == white ? told(white) : QString());
        QVERIFY(index == white || !rig.panel->puritySelected);
    }
}

void TestScrPurityCtrlDialogColors::colourOutsideTheTable_doesNothing_data()
{
    addRows<QColor>("color", {{"black", Qt::black},
                              {"invalid", QColor()},
                              {"translucent green", {0, 255, 0, 254}},
                              {"green of the other colour model", QColor::fromHsv(120, 255, 255)}});
}

void TestScrPurityCtrlDialogColors::colourOutsideTheTable_doesNothing()
{
    QFETCH(const QColor, color);
    PurityRig rig({{baseColorKey, QColor(Qt::blue)}});
    rig.panel->slot_changeSelectedPurityColor(color);

    QCOMPARE(rig.emitted(), QString());
    QVERIFY(rig.colorButton(2)->isChecked());
    QCOMPARE(rig.panel->colorIndex, 2);
    QVERIFY(!rig.panel->puritySelected);
    QCOMPARE(rig.shownColor(), QColor(Qt::blue).rgba());
    QCOMPARE(rig.settings->value(baseColorKey).value<QColor>(), QColor(Qt::blue));
}

void TestScrPurityCtrlDialogColors::
    restoring_neverSetsPuritySelected_theFirstRealColourClickDoes_data()
{
    const QString mode = QStringLiteral("AutoTest");
    const Table<QVariantMap> row("stored");
    row("nothing", QVariantMap());
    row("red", QVariantMap{{baseColorKey, QColor(Qt::red)}});
    row("white", QVariantMap{{baseColorKey, QColor(Qt::white)}});
    row("purple", QVariantMap{{baseColorKey, QColor(Qt::magenta)}});
    row("none of the seven", QVariantMap{{baseColorKey, QColor(Qt::gray)}});
    row("automatic", QVariantMap{{mode, true}});
    row("white, automatic, greys", QVariantMap{{baseColorKey, QColor(Qt::white)},
                                               {mode, true},
                                               {QStringLiteral("testPurityGreyLevel"), 12},
                                               {QStringLiteral("testAutoScale"), 34}});
    row("manual greys", QVariantMap{{mode, false},
                                    {QStringLiteral("testPurityGreyLevel"), 12},
                                    {QStringLiteral("testAutoScale"), 34}});
}

void TestScrPurityCtrlDialogColors::restoring_neverSetsPuritySelected_theFirstRealColourClickDoes()
{
    QFETCH(const QVariantMap, stored);
    const PurityRig rig(stored);
    QVERIFY(!rig.panel->puritySelected);

    rig.click(rig.colorButton(1));
    QVERIFY(rig.panel->puritySelected);
}

void TestScrPurityCtrlDialogColors::veryFirstColour_doesNotSetPuritySelected()
{
    Canvas canvas;
    ScrPurityCtrlDialog panel(&canvas, nullptr, nullptr);
    panel.slot_changeSelectedPurityColor(Qt::green);
    QCOMPARE(panel.colorIndex, 1);
    QVERIFY(!panel.puritySelected);

    panel.slot_changeSelectedPurityColor(Qt::red);
    QVERIFY(panel.puritySelected);
}

// Other panels store theirs under the same key.
void TestScrPurityCtrlDialogColors::checkedColour_isStoredAgain()
{
    PurityRig rig({{baseColorKey, QColor(Qt::green)}});
    rig.settings->setValue(baseColorKey, QColor(Qt::blue));
    rig.panel->slot_changeSelectedPurityColor(Qt::green);
    QCOMPARE(rig.settings->value(baseColorKey).value<QColor>(), QColor(Qt::green));
}

void TestScrPurityCtrlDialogColors::puritySelect_setsTheFlag()
{
    const PurityRig rig;
    rig.panel->slot_puritySelect(true);
    QVERIFY(rig.panel->puritySelected);
    rig.panel->slot_puritySelect(false);
    QVERIFY(!rig.panel->puritySelected);
}

void TestScrPurityCtrlDialogColors::pageKeys_beforeAnyColourDoNothing()
{
    // No button is checked for a stored colour that is none of the seven.
    const PurityRig rig({{baseColorKey, QColor(Qt::gray)}});
    QCOMPARE(rig.panel->colorIndex, noColor);
    rig.panel->slot_changeColorByPageUpDown();

    QCOMPARE(rig.emitted(), QString());
    QCOMPARE(rig.panel->colorIndex, noColor);
    QCOMPARE(rig.checkedColor(), -1);
}

void TestScrPurityCtrlDialogColors::pageKeys_selectTheFirstFour()
{
    QFETCH(const int, index);
    PurityRig rig({{baseColorKey, QColor(Qt::cyan)}});
    rig.panel->colorIndex = index;
    rig.panel->slot_changeColorByPageUpDown();

    QVERIFY(rig.colorButton(index)->isChecked());
    QCOMPARE(rig.panel->colorIndex, index);
    QCOMPARE(rig.shownColor(), QColor(colors[index]).rgba());
}

void TestScrPurityCtrlDialogColors::pageKeys_neverReachYellowCyanAndPurple_data()
{
    addRows<int>(
        "index",
        {{"yellow", 4}, {"cyan", 5}, {"purple", 6}, {"one too few", -1}, {"one too many", 7}});
}

void TestScrPurityCtrlDialogColors::pageKeys_neverReachYellowCyanAndPurple()
{
    QFETCH(const int, index);
    const PurityRig rig({{baseColorKey, QColor(Qt::blue)}});
    rig.panel->colorIndex = index;
    rig.panel->slot_changeColorByPageUpDown();

    QCOMPARE(rig.emitted(), QString());
    QVERIFY(rig.colorButton(2)->isChecked());
}

void TestScrPurityCtrlDialogColors::leavingThePageKeys_staysSilent_data()
{
    addRows<int>("index", {{"white", 3}, {"blue", 2}});
}

void TestScrPurityCtrlDialogColors::leavingThePageKeys_staysSilent()
{
    // Qt keeps the checked button of an exclusive group checked.
    QFETCH(const int, index);
    const PurityRig rig({{baseColorKey, QColor(colors[index])}});
    rig.panel->canclePageUpDownSelect();

    QCOMPARE(rig.emitted(), QString());
    QCOMPARE(rig.panel->colorIndex, index);
    QVERIFY(rig.colorButton(index)->isChecked());
}

QTEST_MAIN(TestScrPurityCtrlDialogColors)
#include "tst_scrpurityctrldialog_colors.moc"
