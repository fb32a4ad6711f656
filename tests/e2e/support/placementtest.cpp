#include "placementtest.h"

#include "waiting.h"

#include <QTest>

std::unique_ptr<VirtualDesktop> PlacementTest::createDesktop() const
{
    return std::make_unique<VirtualDesktop>(QSize(1920, 1080));
}

bool PlacementTest::covers(const QRect &place)
{
    const auto isShown = [this] { return tool().testWindow().isMapped; };
    return waitFor(isShown) && testWindowCovers(place) && settle() && testWindowCovers(place)
           && isShown();
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
    return settle() && waitFor([&] { return desktop().windows().active() == control; });
}

void PlacementTest::shiftH(bool shown)
{
    QVERIFY(shown ? settleHidden() : settle());
    desktop().keyboard().key("h", Qt::ShiftModifier);
    QVERIFY(waitFor([&] { return tool().testWindow().isMapped == shown; }));
}
