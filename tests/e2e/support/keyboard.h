#pragma once

#include <QtGlobal>
#include <qnamespace.h>

class XConnection;

/// The keyboard of the X server: what it presses goes to the focused window
/// just as from a real keyboard.
class Keyboard
{
public:
    /// Also switches the server's key repetition off, so that a slow machine
    /// adds no presses of its own. \a connection must outlive the keyboard.
    explicit Keyboard(XConnection &connection);

    /// Presses and releases a key, with Shift, Control and Alt of \a modifiers
    /// held around it. \a keysymName is X's name ("Next", "f", "KP_Enter");
    /// an unknown one ends the test.
    void key(const char *keysymName, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

private:
    void send(const char *keysymName, bool press);

    XConnection &m_connection;
};
