#pragma once

#include "childprocess.h"

/// A session bus of the test's own, which starts none of the machine's services.
class SessionBus
{
public:
    /// Starts it. False if dbus-daemon does not come up.
    bool start();
    /// Empty before start().
    QString address() const { return m_address; }

private:
    ChildProcess m_daemon;
    QString m_address;
};
