#include "placementtest.h"

#include "waiting.h"

#include <QTest>

std::unique_ptr<VirtualDesktop> PlacementTest::createDesktop() const
{
    return std::make_unique<VirtualDesktop>(QSize(1920, 1080));
}

bool PlacementTest::settle(WindowId window)
{
    for (int turn = 0; turn < 3; ++turn) {
        if (!desktop().windows().syncWithWindowManager()
            || !desktop().windows().answersPing(window))
            return false;
    }
    return true;
}

bool PlacementTest::covers(const QRect &place)
{
    const auto isShown = [this] { return tool().testWindow().isMapped; };
    return waitFor(isShown) && testWindowCovers(place) && settle(tool().testWindow().id)
           && testWindowCovers(place) && isShown();
}

void PlacementTest::pressAndExpect(const char *key, Qt::KeyboardModifier modifier,
                                   const QRect &place)
{
    desktop().keyboard().key(key, modifier);
    QVERIFY(covers(place));
}

void PlacementTest::shiftH(bool shown)
{
    // Hidden, it leaves the keyboard to the control window, once the window manager is through.
    const WindowId control = tool().controlWindow().id;
    QVERIFY(settle(shown ? control : tool().testWindow().id));
    QVERIFY(!shown || waitFor([&] { return desktop().windows().active() == control; }));
    desktop().keyboard().key("h", Qt::ShiftModifier);
    QVERIFY(waitFor([&] { return tool().testWindow().isMapped == shown; }));
}
