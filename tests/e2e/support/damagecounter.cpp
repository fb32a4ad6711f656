#include "damagecounter.h"

#include <X11/Xlib.h>
#include <X11/extensions/Xdamage.h>

DamageCounter::DamageCounter(XConnection &connection, WindowId window)
    : m_connection(connection)
{
    int errorBase = 0;
    if (!XDamageQueryExtension(m_connection.display(), &m_eventBase, &errorBase))
        qFatal("The X server reports no damage");
    m_damage = XDamageCreate(m_connection.display(), window, XDamageReportRawRectangles);
    m_connection.sync();
    // The first report covers the whole window, painted or not.
    XEvent event;
    while (XCheckTypedEvent(m_connection.display(), m_eventBase + XDamageNotify, &event)) { }
}

DamageCounter::~DamageCounter()
{
    XDamageDestroy(m_connection.display(), m_damage);
}

const QVector<DamageCounter::Report> &DamageCounter::reports()
{
    m_connection.sync();
    XEvent event;
    while (XCheckTypedEvent(m_connection.display(), m_eventBase + XDamageNotify, &event)) {
        const auto *notice = reinterpret_cast<const XDamageNotifyEvent *>(&event);
        if (notice->damage != m_damage)
            continue;
        const XRectangle &area = notice->area;
        m_reports.append({notice->timestamp, QRect(area.x, area.y, area.width, area.height)});
    }
    return m_reports;
}
