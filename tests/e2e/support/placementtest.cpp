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

bool PlacementTest::settleHidden()
{
    const WindowId control = tool().controlWindow().id;
    return settle(control) && waitFor([&] { return desktop().windows().active() == control; });
}

void PlacementTest::shiftH(bool shown)
{
    QVERIFY(shown ? settleHidden() : settle(tool().testWindow().id));
    desktop().keyboard().key("h", Qt::ShiftModifier);
    QVERIFY(waitFor([&] { return tool().testWindow().isMapped == shown; }));
}
