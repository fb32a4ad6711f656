#include "griddrawer.h"
#include "picturefolder.h"
#include "rows.h"
#include "scrgridwindow.h"
#include "scrpurity.h"

#include <QtTest>

class TestScrGridBackground : public QObject
{
    Q_OBJECT

private slots:
    void backgrounds_showOnTheScreenOneAfterAnother();
    void background_showsAfterAnotherTest();
    void windowsOwnBackground_isTheSame();
    void newStyleSheet_doesNotHideTheBackground();
    void window_isCoveredByTheLayout();
    void unchangedBackground_asksForNoPaint_data();
    void unchangedBackground_asksForNoPaint();
    void changedBackground_asksForOneMorePaint();
    void refresh_paintsOncePerTimeout();
    void oldTest_showsItsColourBehindTheLayout();
    void picture_startsFromAFreshPaletteAndAColourDoesNot();

private:
    PictureFolder m_pictures;
    const QString m_red = m_pictures.add(QColor(Qt::red));
};

void TestScrGridBackground::backgrounds_showOnTheScreenOneAfterAnother()
{
    ScrGridWindow rig;
    QTRY_VERIFY(rig.shows(LayoutColor::black));
    rig.drawer.m_bgColor = Qt::green;
    rig.drawer.update();
    QTRY_VERIFY(rig.shows(LayoutColor::green));
    rig.drawer.setBackgroundImage(m_red);
    rig.drawer.update();
    QTRY_VERIFY(rig.shows(LayoutColor::red));
    rig.drawer.setBackgroundImage(m_pictures.add(QColor(Qt::blue)));
    rig.drawer.update();
    QTRY_VERIFY(rig.shows(LayoutColor::blue));
    rig.drawer.m_bgPicturePath.clear();
    rig.drawer.update();
    QTRY_VERIFY(rig.shows(LayoutColor::green));
}

void TestScrGridBackground::background_showsAfterAnotherTest()
{
    ScrGridWindow rig;
    ScrPurity purity(&rig.window);
    GridDrawer lines(&rig.window);
    purity.slot_colorChanged(Qt::green);
    lines.slot_changeBgColor(Qt::green);
    for (const bool picture : {false, true}) {
        rig.window.setDrawer(picture ? static_cast<DrawerBase *>(&lines) : &purity, true);
        QTRY_VERIFY(rig.shows(LayoutColor::green));
        rig.window.setDrawer(&rig.drawer, true);
        if (picture)
            rig.drawer.setBackgroundImage(m_red);
        rig.drawer.update();
        QTRY_VERIFY(rig.shows(picture ? LayoutColor::red : LayoutColor::black));
    }
}

// With nothing over it: the window's palette wins over its style sheet.
void TestScrGridBackground::windowsOwnBackground_isTheSame()
{
    ScrGridWindow rig;
    QTRY_VERIFY(rig.shows(LayoutColor::black));
    rig.drawer.m_layoutOn = false;
    QTRY_VERIFY(onScreen(rig.window).pixel(0, 0) == LayoutColor::black);
    QVERIFY(rig.shows(LayoutColor::black));
    rig.drawer.setBackgroundImage(m_red);
    rig.drawer.loadBgPicture();
    QTRY_VERIFY(onScreen(rig.window).pixel(0, 0) == LayoutColor::red);
    QVERIFY(rig.shows(LayoutColor::red));
    rig.drawer.setBgColor(Qt::blue);
    QTRY_VERIFY(rig.shows(LayoutColor::blue));
}

void TestScrGridBackground::newStyleSheet_doesNotHideTheBackground()
{
    ScrGridWindow rig;
    QTRY_VERIFY(rig.shows(LayoutColor::black));
    rig.window.setStyleSheet(QStringLiteral("QWidget{background-color:#00ff00;}"));
    QVERIFY(rig.settle());
    QVERIFY(rig.shows(LayoutColor::black));
    QCOMPARE(rig.window.palette().color(QPalette::Window), QColor(Qt::black));
}

void TestScrGridBackground::window_isCoveredByTheLayout()
{
    ScrGridRig rig;
    QVERIFY(rig.canvas.isCovered());
    rig.drawer.setBackgroundImage(m_red);
    QVERIFY(rig.canvas.isCovered());
    rig.drawer.m_layoutOn = false;
    QVERIFY(!rig.canvas.isCovered());
}

void TestScrGridBackground::unchangedBackground_asksForNoPaint_data()
{
    const Table<bool, bool> row("picture", "oldTest");
    row("colour", false, false);
    row("picture", true, false);
    row("old test over a colour", false, true);
    row("old test over a picture", true, true);
}

void TestScrGridBackground::unchangedBackground_asksForNoPaint()
{
    QFETCH(const bool, picture);
    QFETCH(const bool, oldTest);
    ScrGridWindow rig;
    if (picture)
        rig.drawer.setBackgroundImage(m_red);
    rig.drawer.m_oldTest = oldTest;
    rig.drawer.m_oldTestColor = Qt::blue;
    rig.drawer.update();
    QTRY_VERIFY(rig.paints.count > 1);
    QVERIFY(rig.settle());
    for (int i = 0; i < 3; ++i) {
        rig.paints.count = 0;
        rig.drawer.update();
        QVERIFY(rig.settle());
        QCOMPARE(rig.paints.count, 1);
    }
}

void TestScrGridBackground::changedBackground_asksForOneMorePaint()
{
    ScrGridWindow rig;
    QTRY_VERIFY(rig.shows(LayoutColor::black));
    QVERIFY(rig.settle());
    rig.paints.count = 0;
    rig.drawer.m_bgColor = Qt::green;
    rig.drawer.update();
    QVERIFY(rig.settle());
    QCOMPARE(rig.paints.count, 2);
    rig.drawer.setBackgroundImage(m_red);
    rig.drawer.update();
    QVERIFY(rig.settle());
    QCOMPARE(rig.paints.count, 4);
}

void TestScrGridBackground::refresh_paintsOncePerTimeout()
{
    ScrGridWindow rig;
    QTRY_VERIFY(rig.shows(LayoutColor::black));
    QVERIFY(rig.settle());
    rig.paints.count = 0;
    QSignalSpy timeouts(rig.refreshTimer(), &QTimer::timeout);
    connect(rig.refreshTimer(), &QTimer::timeout, rig.refreshTimer(), [&] {
        if (timeouts.count() == 5)
            rig.refreshTimer()->stop();
    });
    rig.refreshTimer()->start();
    QTRY_COMPARE(timeouts.count(), 5);
    QVERIFY(rig.settle());
    QCOMPARE(rig.paints.count, 5);
}

void TestScrGridBackground::oldTest_showsItsColourBehindTheLayout()
{
    ScrGridWindow rig;
    rig.drawer.m_oldTest = true;
    rig.drawer.m_oldTestColor = Qt::green;
    rig.drawer.update();
    QTRY_VERIFY(rig.shows(LayoutColor::green));
    QCOMPARE(onScreen(rig.window).pixel(1, 1), LayoutColor::blue);
    rig.drawer.m_layoutOn = false;
    rig.drawer.m_oldTestColor = Qt::red;
    rig.drawer.update();
    QTRY_VERIFY(rig.shows(LayoutColor::red));
    QCOMPARE(onScreen(rig.window).pixel(1, 1), LayoutColor::red);
}

void TestScrGridBackground::picture_startsFromAFreshPaletteAndAColourDoesNot()
{
    constexpr QPalette::ColorGroup groups[] = {QPalette::Active, QPalette::Inactive,
                                               QPalette::Disabled};
    ScrGridRig rig;
    QPalette palette = rig.canvas.palette();
    palette.setColor(QPalette::Button, Qt::magenta);
    rig.canvas.setPalette(palette);
    rig.drawer.setBgColor(Qt::cyan);
    for (const QPalette::ColorGroup group : groups)
        QCOMPARE(rig.canvas.palette().brush(group, QPalette::Window), QBrush(Qt::cyan));
    QCOMPARE(rig.canvas.palette().color(QPalette::Button), QColor(Qt::magenta));

    rig.drawer.setBackgroundImage(m_red);
    rig.drawer.loadBgPicture();
    for (const QPalette::ColorGroup group : groups)
        QCOMPARE(rig.canvas.palette().brush(group, QPalette::Window).texture().cacheKey(),
                 rig.drawer.m_bgPixmap.cacheKey());
    QVERIFY(rig.canvas.palette().color(QPalette::Button) != QColor(Qt::magenta));
}

QTEST_MAIN(TestScrGridBackground)
#include "tst_scrgrid_background.moc"
