#include "purityrig.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

constexpr int white = 3;
constexpr int noColor = 256;

const QString baseColorKey = QStringLiteral("/setting/testWindowBaseColor");

QColor colorAt(const QSignalSpy &spy, int emission)
{
    return spy.at(emission).first().value<QColor>();
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
    void colourClick_selectsTheColour_data();
    void colourClick_selectsTheColour();
    void colourClick_onAnUncheckedButtonSaysItTwice_data();
    void colourClick_onAnUncheckedButtonSaysItTwice();
    void colourClick_onTheCheckedButtonSaysItOnceMore();
    void selectingAColour_checksItsButton_data();
    void selectingAColour_checksItsButton();
    void selectingWhite_clicksItsButton();
    void selectingTheCheckedColour_isSilent();
    void colourOutsideTheTable_doesNothing_data();
    void colourOutsideTheTable_doesNothing();

    void restoring_neverSetsPuritySelected_theFirstRealColourClickDoes_data();
    void restoring_neverSetsPuritySelected_theFirstRealColourClickDoes();
    void veryFirstColour_doesNotSetPuritySelected();
    void checkedColour_isStoredAgain();
    void puritySelect_setsTheFlag();
    void pageKeys_beforeAnyColourDoNothing();
    void pageKeys_selectTheFirstFour_data();
    void pageKeys_selectTheFirstFour();
    void pageKeys_neverReachYellowCyanAndPurple_data();
    void pageKeys_neverReachYellowCyanAndPurple();
    void leavingThePageKeys_staysSilent_data();
    void leavingThePageKeys_staysSilent();
};
void TestScrPurityCtrlDialogColors::colourClick_selectsTheColour_data()
{
    addColorRows();
}

void TestScrPurityCtrlDialogColors::colourClick_selectsTheColour()
{
    QFETCH(const int, index);
    PurityRig rig({{baseColorKey, QColor(colors[otherThan(index)])}});
    rig.click(rig.colorButton(index));

    QCOMPARE(rig.checkedColor(), index);
    QVERIFY(rig.manual()->isChecked()); // a colour is no mode
    QCOMPARE(rig.panel->colorIndex, index);
    QVERIFY(rig.panel->puritySelected);
    QCOMPARE(rig.shownColor(), QColor(colors[index]).rgba());
    QCOMPARE(rig.settings->value(baseColorKey).value<QColor>(), QColor(colors[index]));
}

void TestScrPurityCtrlDialogColors::colourClick_onAnUncheckedButtonSaysItTwice_data()
{
    addColorRows();
}

void TestScrPurityCtrlDialogColors::colourClick_onAnUncheckedButtonSaysItTwice()
{
    QFETCH(const int, index);
    const PurityRig rig({{baseColorKey, QColor(colors[otherThan(index)])}});
    QSignalSpy changed(rig.panel.get(), &ScrPurityCtrlDialog::signal_colorChanged);
    rig.click(rig.colorButton(index));

    QCOMPARE(changed.count(), 2);
    QCOMPARE(colorAt(changed, 0), QColor(colors[index]));
    QCOMPARE(colorAt(changed, 1), QColor(colors[index]));
}

void TestScrPurityCtrlDialogColors::colourClick_onTheCheckedButtonSaysItOnceMore()
{
    const PurityRig rig({{baseColorKey, QColor(Qt::blue)}});
    QSignalSpy changed(rig.panel.get(), &ScrPurityCtrlDialog::signal_colorChanged);
    rig.click(rig.colorButton(2));

    QCOMPARE(changed.count(), 1);
    QCOMPARE(colorAt(changed, 0), QColor(Qt::blue));
    QVERIFY(rig.colorButton(2)->isChecked());
}

void TestScrPurityCtrlDialogColors::selectingAColour_checksItsButton_data()
{
    addColorRows();
}

void TestScrPurityCtrlDialogColors::selectingAColour_checksItsButton()
{
    QFETCH(const int, index);
    PurityRig rig({{baseColorKey, QColor(colors[otherThan(index)])}});
    QSignalSpy changed(rig.panel.get(), &ScrPurityCtrlDialog::signal_colorChanged);
    rig.panel->slot_changeSelectedPurityColor(colors[index]);

    QVERIFY(rig.colorButton(index)->isChecked());
    QCOMPARE(rig.panel->colorIndex, index);
    QVERIFY(rig.panel->puritySelected);
    QCOMPARE(changed.count(), index == white ? 2 : 1);
    QCOMPARE(rig.shownColor(), QColor(colors[index]).rgba());
    QCOMPARE(rig.settings->value(baseColorKey).value<QColor>(), QColor(colors[index]));
}

void TestScrPurityCtrlDialogColors::selectingWhite_clicksItsButton()
{
    const PurityRig rig({{baseColorKey, QColor(Qt::white)}});
    QSignalSpy clicked(rig.colorButton(white), &QAbstractButton::clicked);
    QSignalSpy changed(rig.panel.get(), &ScrPurityCtrlDialog::signal_colorChanged);
    rig.panel->slot_changeSelectedPurityColor(Qt::white);

    QCOMPARE(clicked.count(), 1);
    QCOMPARE(changed.count(), 1);
}

void TestScrPurityCtrlDialogColors::selectingTheCheckedColour_isSilent()
{
    const PurityRig rig({{baseColorKey, QColor(Qt::yellow)}});
    QSignalSpy changed(rig.panel.get(), &ScrPurityCtrlDialog::signal_colorChanged);
    rig.panel->slot_changeSelectedPurityColor(Qt::yellow);

    QCOMPARE(changed.count(), 0);
    QVERIFY(!rig.panel->puritySelected);
}

void TestScrPurityCtrlDialogColors::colourOutsideTheTable_doesNothing_data()
{
    QTest::addColumn<QColor>("color");
    QTest::newRow("black") << QColor(Qt::black);
    QTest::newRow("invalid") << QColor();
    QTest::newRow("translucent green") << QColor(0, 255, 0, 254);
    QTest::newRow("green of the other colour model") << QColor::fromHsv(120, 255, 255);
}

void TestScrPurityCtrlDialogColors::colourOutsideTheTable_doesNothing()
{
    QFETCH(const QColor, color);
    PurityRig rig({{baseColorKey, QColor(Qt::blue)}});
    QSignalSpy changed(rig.panel.get(), &ScrPurityCtrlDialog::signal_colorChanged);
    rig.panel->slot_changeSelectedPurityColor(color);

    QCOMPARE(changed.count(), 0);
    QVERIFY(rig.colorButton(2)->isChecked());
    QCOMPARE(rig.panel->colorIndex, 2);
    QVERIFY(!rig.panel->puritySelected);
    QCOMPARE(rig.shownColor(), QColor(Qt::blue).rgba());
    QCOMPARE(rig.settings->value(baseColorKey).value<QColor>(), QColor(Qt::blue));
}

void TestScrPurityCtrlDialogColors::
    restoring_neverSetsPuritySelected_theFirstRealColourClickDoes_data()
{
    QTest::addColumn<QVariantMap>("stored");
    const QString mode = QStringLiteral("AutoTest");
    QTest::newRow("nothing") << QVariantMap();
    QTest::newRow("red") << QVariantMap{{baseColorKey, QColor(Qt::red)}};
    QTest::newRow("white") << QVariantMap{{baseColorKey, QColor(Qt::white)}};
    QTest::newRow("purple") << QVariantMap{{baseColorKey, QColor(Qt::magenta)}};
    QTest::newRow("none of the seven") << QVariantMap{{baseColorKey, QColor(Qt::gray)}};
    QTest::newRow("automatic") << QVariantMap{{mode, true}};
    QTest::newRow("white, automatic, greys")
        << QVariantMap{{baseColorKey, QColor(Qt::white)},
                       {mode, true},
                       {QStringLiteral("testPurityGreyLevel"), 12},
                       {QStringLiteral("testAutoScale"), 34}};
    QTest::newRow("manual greys") << QVariantMap{{mode, false},
                                                 {QStringLiteral("testPurityGreyLevel"), 12},
                                                 {QStringLiteral("testAutoScale"), 34}};
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
    QSignalSpy changed(rig.panel.get(), &ScrPurityCtrlDialog::signal_colorChanged);
    rig.panel->slot_changeColorByPageUpDown();

    QCOMPARE(changed.count(), 0);
    QCOMPARE(rig.panel->colorIndex, noColor);
    for (int index = 0; index < colorCount; ++index)
        QVERIFY(!rig.colorButton(index)->isChecked());
}

void TestScrPurityCtrlDialogColors::pageKeys_selectTheFirstFour_data()
{
    addColorRows(4);
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
    QTest::addColumn<int>("index");
    QTest::newRow("yellow") << 4;
    QTest::newRow("cyan") << 5;
    QTest::newRow("purple") << 6;
    QTest::newRow("one too few") << -1;
    QTest::newRow("one too many") << 7;
}

void TestScrPurityCtrlDialogColors::pageKeys_neverReachYellowCyanAndPurple()
{
    QFETCH(const int, index);
    const PurityRig rig({{baseColorKey, QColor(Qt::blue)}});
    QSignalSpy changed(rig.panel.get(), &ScrPurityCtrlDialog::signal_colorChanged);
    rig.panel->colorIndex = index;
    rig.panel->slot_changeColorByPageUpDown();

    QCOMPARE(changed.count(), 0);
    QVERIFY(rig.colorButton(2)->isChecked());
}

void TestScrPurityCtrlDialogColors::leavingThePageKeys_staysSilent_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("white") << 3;
    QTest::newRow("blue") << 2;
}

void TestScrPurityCtrlDialogColors::leavingThePageKeys_staysSilent()
{
    // Qt keeps the checked button of an exclusive group checked.
    QFETCH(const int, index);
    const PurityRig rig({{baseColorKey, QColor(colors[index])}});
    QSignalSpy changed(rig.panel.get(), &ScrPurityCtrlDialog::signal_colorChanged);
    rig.panel->canclePageUpDownSelect();

    QCOMPARE(changed.count(), 0);
    QCOMPARE(rig.panel->colorIndex, index);
    QVERIFY(rig.colorButton(index)->isChecked());
}

QTEST_MAIN(TestScrPurityCtrlDialogColors)
#include "tst_scrpurityctrldialog_colors.moc"
