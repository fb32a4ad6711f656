#include "savesoon.h"

#include <utility>

SaveSoon::SaveSoon(std::function<void()> save, QObject *parent)
    : QObject(parent)
    , m_save(std::move(save))
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(delayMs);
    connect(&m_timer, &QTimer::timeout, this, [this] { m_save(); });
}

void SaveSoon::schedule()
{
    if (!m_isHeld && !isDue())
        m_timer.start();
}
