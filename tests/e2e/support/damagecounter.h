#pragma once

#include "xconnection.h"

#include <QRect>
#include <QVector>

/// Watches how often a window is painted on, through the X server's damage
/// reports.
class DamageCounter
{
public:
    /// One piece of painting.
    struct Report
    {
        /// The server's clock, in milliseconds.
        unsigned long time = 0;
        /// In the window's coordinates.
        QRect area;
    };

    /// Counts from now on. \a connection must outlive it.
    DamageCounter(XConnection &connection, WindowId window);
    ~DamageCounter();
    Q_DISABLE_COPY(DamageCounter)

    /// All reports until now, the oldest first.
    const QVector<Report> &reports();

private:
    XConnection &m_connection;
    int m_eventBase = 0;
    unsigned long m_damage = 0;
    QVector<Report> m_reports;
};
