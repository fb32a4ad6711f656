#include "managerecho.h"

#include "x11windows.h"

#include <QWindow>

namespace {

constexpr int numbers = 1000;

// Some window managers put off a part of what they do until they have read what is there to read.
constexpr int roundsForAll = 2;

} // namespace

ManagerEcho::ManagerEcho(QObject *parent)
    : QObject(parent)
{ }

ManagerEcho::~ManagerEcho() = default;

bool ManagerEcho::ask()
{
    if (!X11Windows::isAvailable())
        return false;
    if (!m_probe)
        createProbe();
    m_isAwaited = true;
    m_rounds = roundsForAll;
    send();
    return true;
}

void ManagerEcho::createProbe()
{
    m_probe = std::make_unique<QWindow>();
    m_probe->setGeometry(0, 0, 1, 1);
    m_probe->create();
    connect(m_probe.get(), &QWindow::xChanged, this, [this](int x) {
        if (x != m_number)
            return;
        if (--m_rounds > 0)
            send();
        else
            answer();
    });
}

void ManagerEcho::send()
{
    m_number = m_number % numbers + 1;
    m_probe->setPosition(m_number, 0);
}

void ManagerEcho::answer()
{
    m_isAwaited = false;
    emit answered();
}
