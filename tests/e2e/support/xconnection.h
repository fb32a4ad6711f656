#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

// Xlib's own headers define macros (Bool, None, KeyPress, ...) that Qt's
// headers do not survive, so no header of this library includes them.
struct _XDisplay;

using WindowId = unsigned long;
using AtomId = unsigned long;

/// The test's own connection to the X server.
class XConnection
{
public:
    /// Check isOpen(): a server that cannot be reached leaves it closed.
    explicit XConnection(const QString &displayName);
    ~XConnection();
    Q_DISABLE_COPY(XConnection)

    bool isOpen() const { return m_display != nullptr; }
    _XDisplay *display() const { return m_display; }
    WindowId root() const { return m_root; }
    AtomId atom(const char *name);

    /// Returns when the server has handled everything sent so far.
    void sync();

    /// The raw value of a property of a window; empty when there is none.
    /// 32-bit items come as an array of unsigned long, as Xlib has it.
    QByteArray property(WindowId window, const char *name);

    /// The first item of a 32-bit property; 0 when there is none.
    unsigned long firstItem(WindowId window, const char *name);

private:
    _XDisplay *m_display = nullptr;
    WindowId m_root = 0;
    QHash<QByteArray, AtomId> m_atoms;
};
