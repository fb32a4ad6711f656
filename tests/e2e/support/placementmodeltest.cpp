#include "placementmodeltest.h"

#include "dummyserver.h"
#include "waiting.h"

#include <QRegion>
#include <QtDebug>

std::unique_ptr<VirtualDesktop> PlacementModelTest::createDesktop() const
{
    auto server = std::make_unique<DummyServer>();
    m_server = server.get();
    return std::make_unique<VirtualDesktop>(std::move(server));
}

QRegion PlacementModelTest::desktopRegion() const
{
    QRegion region;
    for (const QRect &screen : m_screens)
        region += screen;
    return region;
}

QSize PlacementModelTest::sums() const
{
    QSize sum(0, 0);
    for (const QRect &screen : m_screens)
        sum += screen.size();
    return sum;
}

QString PlacementModelTest::screenOfCentre() const
{
    for (auto screen = m_screens.cbegin(); screen != m_screens.cend(); ++screen) {
        if (screen->contains(m_place.center()))
            return screen.key();
    }
    return {};
}

bool PlacementModelTest::isAway() const
{
    if (!m_screen.isEmpty() && !m_screens.contains(m_screen))
        return true;
    const QSize most = sums();
    const QRect ranges(1 - most.width(), 1 - most.height(), 2 * most.width() - 1,
                       2 * most.height() - 1);
    return !desktopRegion().intersects(m_place) || !ranges.contains(m_place.topLeft())
           || m_place.width() > most.width() || m_place.height() > most.height();
}

QString PlacementModelTest::pressArrow()
{
    struct Arrow
    {
        const char *key;
        QMargins growth; // what Shift adds to the place
        QPoint move; // what Ctrl does
    };
    const Arrow arrows[] = {{"Left", {0, 0, -1, 0}, {-1, 0}},
                            {"Right", {0, 0, 1, 0}, {1, 0}},
                            {"Up", {0, 0, 0, -1}, {0, -1}},
                            {"Down", {0, 0, 0, 1}, {0, 1}}};
    const Arrow &arrow = arrows[random(4)];
    const bool isShift = random(2) != 0;
    const int count = 1 + random(5);
    for (int press = 0; press < count; ++press) {
        desktop().keyboard().key(arrow.key, isShift ? Qt::ShiftModifier : Qt::ControlModifier);
        m_place = isShift ? m_place + arrow.growth : m_place.translated(arrow.move);
    }
    return QStringLiteral("%1 %2 x %3")
        .arg(QLatin1String(isShift ? "Shift" : "Ctrl"), QLatin1String(arrow.key))
        .arg(count);
}

QString PlacementModelTest::toggleVisibility()
{
    desktop().keyboard().key("h", Qt::ShiftModifier);
    m_isShown = !m_isShown;
    return QStringLiteral("Shift+H");
}

QString PlacementModelTest::toggleFullScreen()
{
    if (m_screen.isEmpty() && screenOfCentre().isEmpty())
        return {};
    desktop().keyboard().key("f", Qt::ShiftModifier);
    m_screen = m_screen.isEmpty() ? screenOfCentre() : QString();
    m_isShown = true;
    return QStringLiteral("Shift+F");
}

QString PlacementModelTest::drag(const QRect &area, const QPoint &to)
{
    const QRect inside = m_place.adjusted(10, 10, -10, -10) & area;
    if (!m_isShown || !m_screen.isEmpty() || inside.width() < 1 || inside.height() < 1)
        return {};
    desktop().mouse().drag(inside.center(), to);
    const QPoint by = to - inside.center();
    m_place.translate(by);
    return QStringLiteral("drag by %1, %2").arg(by.x()).arg(by.y());
}

bool PlacementModelTest::agrees()
{
    const auto isRight = [&] {
        const WindowInfo window = tool().testWindow();
        return window.isMapped == m_isShown
               && (isAway() || !m_isShown || window.geometry == target());
    };
    if (!waitFor([&] { return isRight() && settle() && isRight(); })) {
        qWarning() << "The window," << (tool().testWindow().isMapped ? "shown" : "hidden") << "at"
                   << tool().testWindow().geometry << "should be"
                   << (m_isShown ? "shown" : "hidden") << "at" << target();
        return false;
    }
    const auto isHidden = [&] {
        return tool().configValue(QStringLiteral("/setting/testWindowVisible")).toBool();
    };
    return isStored(m_place) && waitFor([&] { return isHidden() != m_isShown; });
}
