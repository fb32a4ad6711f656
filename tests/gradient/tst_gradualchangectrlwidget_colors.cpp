#include "gradientrig.h"
#include "rows.h"
#include "scrpurityctrldialog.h"

#include <QtTest>

namespace {

using Panel = GradualChangeCtrlWidget;
using ColorSlot = void (Panel::*)();

constexpr ColorSlot colorSlots[colorCount] = {
    &Panel::slot_changeGradualColorRed,    &Panel::slot_changeGradualColorGreen,
    &Panel::slot_changeGradualColorBlue,   &Panel::slot_changeGradualColorWhite,
    &Panel::slot_changeGradualColorYellow, &Panel::slot_changeGradualColorCyan,
    &Panel::slot_changeGradualColorPurple};

// Another colour than the one at the index.
int otherThan(int index)
{
    return index == 1 ? 2 : 1;
}

QString announced(int colorIndex)
{
    return QStringLiteral("signal_selectColorChanged(%1)").arg(QColor(colors[colorIndex]).name());
}

QVariantMap stored(int colorIndex, int level = 256)
{
    return {{colorKey, QColor(colors[colorIndex])}, {levelKey, level}};
}

} // namespace

class TestGradualChangeCtrlWidgetColors : public QObject
{
    Q_OBJECT

private slots:
    void pageDownFromWhite_doesNotChangeTheColour();

    void colourClick_showsTheColourAndAnnouncesItOnce_data() { addColorRows(); }
    void colourClick_showsTheColourAndAnnouncesItOnce();
    void colourClick_onTheCheckedButtonAnnouncesItAgain();
    void colourSlots_setTheColour_data() { addColorRows(); }
    void colourSlots_setTheColour();
    void updateSelectedColor_announcesTheColour();
    void selectingAColour_checksItsButtonAndAnnouncesNothing_data() { addColorRows(); }
    void selectingAColour_checksItsButtonAndAnnouncesNothing();
    void colourOutsideTheTable_isIgnored_data();
    void colourOutsideTheTable_isIgnored();

    void veryFirstColour_doesNotSetUserChanged();
    void restoredColour_doesNotSetUserChanged_theNextColourDoes();
    void pageKeys_showAndAnnounceTheFirstFourWithTheLevelsOfThePanel_data() { addColorRows(4); }
    void pageKeys_showAndAnnounceTheFirstFourWithTheLevelsOfThePanel();
    void pageKeys_showAColourThatIsCheckedAlready();
    void pageKeys_neverReachYellowCyanAndPurple_data();
    void pageKeys_neverReachYellowCyanAndPurple();
    void sharedColour_settlesBetweenTwoPanels_data() { addColorRows(); }
    void sharedColour_settlesBetweenTwoPanels();
};

void TestGradualChangeCtrlWidgetColors::pageDownFromWhite_doesNotChangeTheColour()
{
    GradientRig rig(stored(3));
    QCOMPARE(rig.panel->m_colorIndex, 3);
    QVERIFY(rig.shows(256, Qt::white));
    // The page keys step the index to 4 at most, and then go to the next tab.
    for (const int index : {3, 4}) {
        rig.panel->m_colorIndex = index;
        rig.panel->slot_changeColorByPageDown();
        QCOMPARE(rig.checkedColor(), 3);
        QVERIFY(rig.shows(256, Qt::white));
    }
}

void TestGradualChangeCtrlWidgetColors::colourClick_showsTheColourAndAnnouncesItOnce()
{
    QFETCH(const int, index);
    GradientRig rig(stored(otherThan(index), 64));
    rig.panel->getDrawer()->active = false;
    rig.click(rig.colorButton(index));

    QCOMPARE(rig.checkedColor(), index);
    QCOMPARE(rig.panel->m_colorIndex, index);
    QVERIFY(rig.panel->m_userChanged);
    QVERIFY(rig.panel->getDrawer()->active);
    QVERIFY(rig.shows(64, colors[index]));
    QCOMPARE(rig.emitted(), announced(index));
}

void TestGradualChangeCtrlWidgetColors::colourClick_onTheCheckedButtonAnnouncesItAgain()
{
    const GradientRig rig(stored(2));
    rig.click(rig.colorButton(2));

    QCOMPARE(rig.emitted(), announced(2));
    QCOMPARE(rig.checkedColor(), 2);
    QVERIFY(!rig.panel->m_userChanged);
}

void TestGradualChangeCtrlWidgetColors::colourSlots_setTheColour()
{
    QFETCH(const int, index);
    GradientRig rig(stored(otherThan(index), 128));
    (rig.panel.get()->*colorSlots[index])();

    QCOMPARE(rig.panel->m_colorIndex, index);
    QVERIFY(rig.panel->m_userChanged);
    QVERIFY(rig.shows(128, colors[index]));
    QCOMPARE(rig.emitted(), QString());
}

void TestGradualChangeCtrlWidgetColors::updateSelectedColor_announcesTheColour()
{
    const GradientRig rig(stored(5));
    rig.panel->slot_updateSelectedColor();

    QCOMPARE(rig.emitted(), announced(5));
}

void TestGradualChangeCtrlWidgetColors::selectingAColour_checksItsButtonAndAnnouncesNothing()
{
    QFETCH(const int, index);
    GradientRig rig(stored(otherThan(index)));
    rig.panel->slot_changeSelectedGradualColor(colors[index]);

    QCOMPARE(rig.checkedColor(), index);
    QCOMPARE(rig.panel->m_colorIndex, index);
    QVERIFY(rig.panel->m_userChanged);
    QVERIFY(rig.shows(256, colors[index]));
    QCOMPARE(rig.emitted(), QString());
}

void TestGradualChangeCtrlWidgetColors::colourOutsideTheTable_isIgnored_data()
{
    addRows<QColor>("color", {{"black", Qt::black},
                              {"invalid", QColor()},
                              {"translucent red", {255, 0, 0, 254}},
                              {"red of the other colour model", QColor::fromHsv(0, 255, 255)}});
}

void TestGradualChangeCtrlWidgetColors::colourOutsideTheTable_isIgnored()
{
    QFETCH(const QColor, color);
    GradientRig rig(stored(2));
    rig.panel->getDrawer()->active = false;
    rig.panel->slot_changeSelectedGradualColor(color);

    QCOMPARE(rig.checkedColor(), 2);
    QCOMPARE(rig.panel->m_colorIndex, 2);
    QVERIFY(!rig.panel->m_userChanged);
    QVERIFY(!rig.panel->getDrawer()->active);
    QVERIFY(rig.shows(256, Qt::blue));
    rig.panel->saveGradualChangeInfo();
    QCOMPARE(rig.settings->value(colorKey).value<QColor>(), QColor(Qt::blue));
}

void TestGradualChangeCtrlWidgetColors::veryFirstColour_doesNotSetUserChanged()
{
    // No button is checked for a stored colour that is none of the seven.
    const GradientRig rig({{colorKey, QColor(Qt::gray)}});
    QCOMPARE(rig.checkedColor(), -1);
    rig.panel->slot_changeSelectedGradualColor(Qt::green);
    QVERIFY(!rig.panel->m_userChanged);
    rig.panel->slot_changeSelectedGradualColor(Qt::red);
    QVERIFY(rig.panel->m_userChanged);
}

void TestGradualChangeCtrlWidgetColors::restoredColour_doesNotSetUserChanged_theNextColourDoes()
{
    const GradientRig rig(stored(4));
    QVERIFY(!rig.panel->m_userChanged);
    rig.click(rig.colorButton(0));
    QVERIFY(rig.panel->m_userChanged);
}

void TestGradualChangeCtrlWidgetColors::
    pageKeys_showAndAnnounceTheFirstFourWithTheLevelsOfThePanel()
{
    QFETCH(const int, index);
    GradientRig rig(stored(6, 32));
    rig.click(rig.levelButton(0));
    rig.emitted();
    rig.panel->m_level = 256;
    rig.panel->m_colorIndex = index;
    rig.panel->slot_changeColorByPageDown();

    QCOMPARE(rig.checkedColor(), index);
    QCOMPARE(rig.panel->m_colorIndex, index);
    QVERIFY(rig.shows(256, colors[index]));
    QCOMPARE(rig.emitted(), announced(index));
}

void TestGradualChangeCtrlWidgetColors::pageKeys_showAColourThatIsCheckedAlready()
{
    GradientRig rig(stored(0));
    rig.click(rig.levelButton(0));
    QVERIFY(rig.shows(32, Qt::red));
    rig.panel->getDrawer()->active = false;
    rig.panel->m_level = 256;
    rig.panel->m_colorIndex = 0;
    rig.panel->slot_changeColorByPageDown();

    QVERIFY(rig.panel->getDrawer()->active);
    QVERIFY(rig.shows(256, Qt::red));
}

void TestGradualChangeCtrlWidgetColors::pageKeys_neverReachYellowCyanAndPurple_data()
{
    addRows<int>(
        "index",
        {{"yellow", 4}, {"cyan", 5}, {"purple", 6}, {"one too few", -1}, {"one too many", 7}});
}

void TestGradualChangeCtrlWidgetColors::pageKeys_neverReachYellowCyanAndPurple()
{
    QFETCH(const int, index);
    GradientRig rig(stored(2));
    rig.panel->getDrawer()->active = false;
    rig.panel->m_colorIndex = index;
    rig.panel->slot_changeColorByPageDown();

    QCOMPARE(rig.checkedColor(), 2);
    QCOMPARE(rig.panel->m_colorIndex, index);
    QVERIFY(!rig.panel->getDrawer()->active);
    QVERIFY(rig.shows(256, Qt::blue));
    QCOMPARE(rig.emitted(), QString());
}

void TestGradualChangeCtrlWidgetColors::sharedColour_settlesBetweenTwoPanels()
{
    QFETCH(const int, index);
    GradientRig rig(stored(otherThan(index)));
    Canvas purityCanvas;
    ScrPurityCtrlDialog purity(&purityCanvas, nullptr, nullptr);
    connect(&purity, &ScrPurityCtrlDialog::signal_colorChanged, rig.panel.get(),
            &Panel::slot_changeSelectedGradualColor);
    connect(rig.panel.get(), &Panel::signal_selectColorChanged, &purity,
            &ScrPurityCtrlDialog::slot_changeSelectedPurityColor);

    rig.click(rig.colorButton(index));
    QCOMPARE(purity.colorIndex, index);
    QCOMPARE(rig.checkedColor(), index);
    QCOMPARE(rig.emitted(), announced(index));

    const int other = otherThan(index);
    purity.slot_changeSelectedPurityColor(colors[other]);
    QCOMPARE(purity.colorIndex, other);
    QCOMPARE(rig.checkedColor(), other);
    QVERIFY(rig.shows(256, colors[other]));
    QCOMPARE(rig.emitted(), QString());
}

QTEST_MAIN(TestGradualChangeCtrlWidgetColors)
#include "tst_gradualchangectrlwidget_colors.moc"
