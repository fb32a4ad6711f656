#include "placementtest.h"
#include "waiting.h"

#include <QTest>

/// The test window lies where the operator puts it, whatever window manager runs.
class tst_e2e_managers : public PlacementTest
{
    Q_OBJECT

private slots:
    void firstStart_isAtTheOrigin();
    void storedPlace_isRestored();
    void placeLeftOfTheDesktop_isKept();
    void placeBeyondTheRightEdge_isKept();
    void ctrlArrows_moveByOnePixel();
    void shiftArrows_resizeByOnePixel();
    void growingPastTheEdge_keepsThePlace();
    void hidingAndShowing_keepThePlace();
    void drag_movesAndResizes();
    void dragBeyondTheEdge_isObeyed();
    void click_onEitherWindowGivesTheKeyboard();
    void contextMenu_liesAboveTheTestWindow();
    void dialog_liesAboveTheTestWindow();
    void anotherProgramsWindow_liesBelowTheTestWindow();
    void moveByTheManager_isFollowedByThePanel();
    void movedWhileMinimised_staysWithTheManager();
    void closingTheControlWindow_endsTheProgram();

private:
    bool hasMenu(WindowInfo *menu);
};

namespace {
constexpr QRgb TitleBar = qRgb(34, 33, 38);
/// A place without a control, and the grid panel's button for the mix dialog, from the control
/// window's corner.
constexpr QPoint BlankPlace = QPoint(60, 225);
constexpr QPoint MixButton = QPoint(530, 221);
} // namespace

void tst_e2e_managers::firstStart_isAtTheOrigin()
{
    QVERIFY(startTool());
    QVERIFY(covers({0, 0, 256, 256}));
}

void tst_e2e_managers::storedPlace_isRestored()
{
    QVERIFY(startToolAt(Inside));
    QVERIFY(covers(Inside));
}

void tst_e2e_managers::placeLeftOfTheDesktop_isKept()
{
    QVERIFY(startToolAt(BeyondTheLeft));
    QVERIFY(covers(BeyondTheLeft));
    pressAndExpect("Left", Qt::ControlModifier, BeyondTheLeft.translated(-1, 0));
    QVERIFY(isStored(BeyondTheLeft.translated(-1, 0)));
}

void tst_e2e_managers::placeBeyondTheRightEdge_isKept()
{
    QVERIFY(startToolAt(BeyondTheRight));
    QVERIFY(covers(BeyondTheRight));
    pressAndExpect("Right", Qt::ControlModifier, BeyondTheRight.translated(1, 0));
    QVERIFY(isStored(BeyondTheRight.translated(1, 0)));
}

void tst_e2e_managers::ctrlArrows_moveByOnePixel()
{
    QVERIFY(startToolAt(Inside));
    pressAndExpect("Right", Qt::ControlModifier, Inside.translated(1, 0));
    pressAndExpect("Down", Qt::ControlModifier, Inside.translated(1, 1));
    pressAndExpect("Left", Qt::ControlModifier, Inside.translated(0, 1));
    pressAndExpect("Up", Qt::ControlModifier, Inside);
    QVERIFY(isStored(Inside));
}

void tst_e2e_managers::shiftArrows_resizeByOnePixel()
{
    QVERIFY(startToolAt(Inside));
    pressAndExpect("Right", Qt::ShiftModifier, Inside.adjusted(0, 0, 1, 0));
    pressAndExpect("Down", Qt::ShiftModifier, Inside.adjusted(0, 0, 1, 1));
    pressAndExpect("Left", Qt::ShiftModifier, Inside.adjusted(0, 0, 0, 1));
    pressAndExpect("Up", Qt::ShiftModifier, Inside);
    QVERIFY(isStored(Inside));
}

void tst_e2e_managers::growingPastTheEdge_keepsThePlace()
{
    const QRect place(1619, 700, 300, 300);
    QVERIFY(startToolAt(place));
    pressAndExpect("Right", Qt::ShiftModifier, place.adjusted(0, 0, 1, 0));
    pressAndExpect("Right", Qt::ShiftModifier, place.adjusted(0, 0, 2, 0));
    pressAndExpect("Right", Qt::ShiftModifier, place.adjusted(0, 0, 3, 0));
    for (int press = 0; press < 81; ++press)
        desktop().keyboard().key("Down", Qt::ShiftModifier);
    QVERIFY(covers(place.adjusted(0, 0, 3, 81)));
    QVERIFY(isStored(place.adjusted(0, 0, 3, 81)));
}

void tst_e2e_managers::hidingAndShowing_keepThePlace()
{
    for (const QRect &place : {Inside, BeyondTheRight}) {
        newTool();
        QVERIFY(startToolAt(place));
        for (int turn = 0; turn < 2; ++turn) {
            QVERIFY(tool().focusControlWindow());
            shiftH(false);
            shiftH(true);
            QVERIFY(covers(place));
        }
        QVERIFY(isStored(place));
    }
}

void tst_e2e_managers::drag_movesAndResizes()
{
    QVERIFY(startToolAt(Inside));
    QVERIFY(covers(Inside));
    desktop().mouse().drag(Inside.center(), Inside.center() + QPoint(30, 20));
    const QRect moved = Inside.translated(30, 20);
    QVERIFY(covers(moved));
    desktop().mouse().drag(moved.bottomRight(), moved.bottomRight() + QPoint(15, 25));
    QVERIFY(covers(moved.adjusted(0, 0, 15, 25)));
    QVERIFY(isStored(moved.adjusted(0, 0, 15, 25)));
}

void tst_e2e_managers::dragBeyondTheEdge_isObeyed()
{
    QVERIFY(startToolAt(Inside));
    QVERIFY(covers(Inside));
    desktop().mouse().drag(Inside.center(), {50, 40});
    const QRect moved = Inside.translated(QPoint(50, 40) - Inside.center());
    QVERIFY(covers(moved));
    desktop().mouse().drag({60, 50}, {70, 70});
    QVERIFY(covers(moved.translated(10, 20)));
    QVERIFY(isStored(moved.translated(10, 20)));
}

void tst_e2e_managers::click_onEitherWindowGivesTheKeyboard()
{
    for (const QRect &place : {Inside, BeyondTheLeft}) {
        newTool();
        QVERIFY(startToolAt(place));
        QVERIFY(covers(place));
        desktop().mouse().click(place.center());
        QVERIFY(covers(place));
        pressAndExpect("Right", Qt::ControlModifier, place.translated(1, 0));
        desktop().mouse().click(tool().controlWindow().geometry.topLeft() + BlankPlace);
        QVERIFY(covers(place.translated(1, 0)));
        pressAndExpect("Right", Qt::ControlModifier, place.translated(2, 0));
        desktop().mouse().click(place.center());
        QVERIFY(covers(place.translated(2, 0)));
        shiftH(false);
        shiftH(true);
        QVERIFY(covers(place.translated(2, 0)));
    }
}

bool tst_e2e_managers::hasMenu(WindowInfo *menu)
{
    for (const WindowInfo &window : tool().mappedWindows()) {
        if (window.isPopup && window.id != tool().testWindow().id)
            *menu = window;
    }
    return menu->id != 0;
}

void tst_e2e_managers::contextMenu_liesAboveTheTestWindow()
{
    for (const QRect &place : {Inside, BeyondTheLeft}) {
        newTool();
        QVERIFY(startToolAt(place));
        QVERIFY(covers(place));
        desktop().mouse().click(place.center(), Qt::RightButton);
        WindowInfo menu;
        QVERIFY(waitFor([&] { return hasMenu(&menu); }));
        const int half = menu.geometry.width() * menu.geometry.height() / 2;
        QVERIFY(waitFor(
            [&] { return desktop().screen().count(menu.geometry, qRgb(255, 255, 255)) > half; }));
        desktop().mouse().click(menu.geometry.center());
        QVERIFY(waitFor([&] { return !tool().testWindow().isMapped; }));
    }
}

void tst_e2e_managers::dialog_liesAboveTheTestWindow()
{
    // Over the upper part of the dialog, and not over the control window.
    for (const QRect &place : {QRect(700, 100, 370, 370), QRect(900, -600, 1070, 1070)}) {
        newTool();
        tool().writeConfig({{QStringLiteral("/setting/currentTabIndex"), 3}});
        QVERIFY(startToolAt(place));
        QVERIFY(covers(place));
        const WindowId control = tool().controlWindow().id;
        desktop().mouse().click(tool().controlWindow().geometry.topLeft() + MixButton);
        const auto dialog = [&] {
            for (const WindowInfo &window : tool().mappedWindows()) {
                if (window.geometry.height() > 300 && window.id != tool().testWindow().id
                    && window.id != control)
                    return window;
            }
            return WindowInfo();
        };
        const auto isInFront = [&] {
            const QRect area = dialog().geometry;
            return desktop().screen().isFilled({area.topRight() + QPoint(-90, 2), QSize(50, 5)},
                                               TitleBar);
        };
        QVERIFY(waitFor([&] { return dialog().id != 0; }));
        desktop().windows().move(dialog().id, {960, 300});
        QVERIFY(waitFor([&] { return place.intersects(dialog().geometry) && isInFront(); }));
        desktop().mouse().click(QPoint(1000, 200));
        QVERIFY(covers(place));
        QVERIFY(waitFor(isInFront));
        auto other = desktop().windows().addWindow(dialog().geometry, OtherColour);
        desktop().windows().activate(other->id());
        QVERIFY(waitFor([&] { return desktop().windows().active() == other->id(); }));
        QVERIFY(covers(place));
        QVERIFY(waitFor(isInFront));
        other.reset();
        const QRect area = dialog().geometry;
        desktop().mouse().click({area.center().x(), area.bottom() - 30});
        QVERIFY(waitFor([&] { return dialog().id == 0; }));
        QVERIFY(waitFor([&] {
            const WindowId active = desktop().windows().active();
            return active == control || active == tool().testWindow().id;
        }));
        QVERIFY(covers(place));
        pressAndExpect("Right", Qt::ControlModifier, place.translated(1, 0));
    }
}

void tst_e2e_managers::anotherProgramsWindow_liesBelowTheTestWindow()
{
    for (const QRect &place : {Inside, BeyondTheLeft}) {
        newTool();
        QVERIFY(startToolAt(place));
        desktop().keyboard().key("Next");
        const QRect visible = place & desktop().screen().rect();
        QVERIFY(waitFor([&] { return desktop().screen().isFilled(visible, Green); }));
        const auto other =
            desktop().windows().addWindow(Inside.adjusted(20, 20, 20, 20), OtherColour);
        QVERIFY(waitFor([&] {
            return desktop().screen().count(desktop().screen().rect(), OtherColour) > 1000;
        }));
        QVERIFY(waitFor([&] { return desktop().screen().isFilled(visible, Green); }));
        desktop().windows().activate(other->id());
        QVERIFY(waitFor([&] { return desktop().windows().active() == other->id(); }));
        QVERIFY(covers(place));
        QVERIFY(waitFor([&] { return desktop().screen().isFilled(visible, Green); }));
    }
}

void tst_e2e_managers::moveByTheManager_isFollowedByThePanel()
{
    QVERIFY(startToolAt(Inside));
    QVERIFY(covers(Inside));
    const QRect moved(400, 300, 320, 310);
    desktop().windows().place(tool().testWindow().id, moved);
    QVERIFY(covers(moved));
    QVERIFY(isStored(moved));
    pressAndExpect("Right", Qt::ControlModifier, moved.translated(1, 0));
    QVERIFY(isStored(moved.translated(1, 0)));
}

void tst_e2e_managers::movedWhileMinimised_staysWithTheManager()
{
    QVERIFY(startToolAt(Inside));
    QVERIFY(covers(Inside));
    desktop().windows().minimise(tool().testWindow().id);
    QVERIFY(desktop().windows().syncWithWindowManager());
    QVERIFY(tool().focusControlWindow());
    for (int press = 0; press < 5; ++press)
        desktop().keyboard().key("Right", Qt::ControlModifier);
    QVERIFY(isStored(Inside.translated(5, 0)));
    QVERIFY(!tool().testWindow().isPopup);
    desktop().windows().activate(tool().testWindow().id);
    QVERIFY(covers(Inside.translated(5, 0)));
    QVERIFY(!tool().testWindow().isPopup);
}

void tst_e2e_managers::closingTheControlWindow_endsTheProgram()
{
    for (const QRect &place : {Inside, BeyondTheLeft}) {
        newTool();
        QVERIFY(startToolAt(place));
        QVERIFY2(tool().quit(), qPrintable(tool().problem()));
    }
}

QTEST_GUILESS_MAIN(tst_e2e_managers)
#include "tst_e2e_managers.moc"
