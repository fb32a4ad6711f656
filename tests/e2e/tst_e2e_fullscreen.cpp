#include "placementtest.h"
#include "waiting.h"

#include <QTest>

/// The test window fills the screen and comes back, whatever window manager runs.
class tst_e2e_fullscreen : public PlacementTest
{
    Q_OBJECT

private slots:
    void fullScreen_coversTheScreenAndComesBack() { fullScreenAndBack(Inside); }
    void fullScreenOfAWindowBeyondTheEdge_comesBack() { fullScreenAndBack(BeyondTheLeft); }
    void fullScreenEndedByTheManager_isFollowed();
    void fullScreenEndedWhileHidden_comesBack();
    void fullScreenHiddenAndShown_comesBack();
    void fullScreen_liesAboveADock();

private:
    void fullScreenAndBack(const QRect &place);
};

void tst_e2e_fullscreen::fullScreenAndBack(const QRect &place)
{
    QVERIFY(startToolAt(place));
    for (int turn = 0; turn < 2; ++turn) {
        toggleFullScreen();
        QVERIFY(covers(desktop().screen().rect()));
        desktop().keyboard().key("Next");
        toggleFullScreen();
        QVERIFY(covers(place));
    }
    pressAndExpect("Right", Qt::ControlModifier, place.translated(1, 0));
    QVERIFY(isStored(place.translated(1, 0)));
}

void tst_e2e_fullscreen::fullScreenEndedByTheManager_isFollowed()
{
    QVERIFY(startToolAt(Inside));
    desktop().mouse().click(Inside.center());
    toggleFullScreen();
    QVERIFY(covers(desktop().screen().rect()));
    desktop().windows().endFullScreen(tool().testWindow().id);
    QVERIFY(covers(Inside));
    pressAndExpect("Right", Qt::ControlModifier, Inside.translated(1, 0));
}

void tst_e2e_fullscreen::fullScreenEndedWhileHidden_comesBack()
{
    QVERIFY(startToolAt(Inside));
    toggleFullScreen();
    QVERIFY(covers(desktop().screen().rect()));
    shiftH(false);
    QVERIFY(settleHidden());
    toggleFullScreen();
    QVERIFY(covers(Inside));
}

void tst_e2e_fullscreen::fullScreenHiddenAndShown_comesBack()
{
    QVERIFY(startToolAt(Inside));
    toggleFullScreen();
    QVERIFY(covers(desktop().screen().rect()));
    shiftH(false);
    shiftH(true);
    QVERIFY(covers(desktop().screen().rect()));
    toggleFullScreen();
    QVERIFY(covers(Inside));
}

void tst_e2e_fullscreen::fullScreen_liesAboveADock()
{
    const auto dock = desktop().windows().addDock({0, 1040, 1920, 40}, OtherColour);
    QRect dockPlace; // some window managers have an idea of their own
    QVERIFY(waitFor([&] {
        dockPlace = desktop().windows().info(dock->id()).geometry & desktop().screen().rect();
        return desktop().screen().count(dockPlace, OtherColour) > 1000;
    }));
    QVERIFY(startToolAt(Inside));
    const WindowId control = tool().controlWindow().id;
    desktop().keyboard().key("Next");
    QVERIFY(testWindowTurns(Green));

    toggleFullScreen();
    QVERIFY(covers(desktop().screen().rect()));
    QVERIFY(testWindowTurns(Green));
    // The operator may work with another window meanwhile.
    desktop().windows().activate(control);
    QVERIFY(covers(desktop().screen().rect()));
    QVERIFY(waitFor([&] { return desktop().screen().isFilled(dockPlace, Green); }));
    toggleFullScreen();
    QVERIFY(covers(Inside));
}

QTEST_GUILESS_MAIN(tst_e2e_fullscreen)
#include "tst_e2e_fullscreen.moc"
