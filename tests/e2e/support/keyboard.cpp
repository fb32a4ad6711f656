#include "keyboard.h"

#include "xconnection.h"

#include <QtGlobal>

#include <utility>
#include <vector>

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>

Keyboard::Keyboard(XConnection &connection)
    : m_connection(connection)
{
    XAutoRepeatOff(m_connection.display());
}

void Keyboard::key(const char *keysymName, Qt::KeyboardModifiers modifiers)
{
    static const std::vector<std::pair<Qt::KeyboardModifier, const char *>> modifierKeys = {
        {Qt::ShiftModifier, "Shift_L"},
        {Qt::ControlModifier, "Control_L"},
        {Qt::AltModifier, "Alt_L"},
    };
    for (const auto &modifier : modifierKeys) {
        if (modifiers & modifier.first)
            send(modifier.second, true);
    }
    send(keysymName, true);
    send(keysymName, false);
    for (const auto &modifier : modifierKeys) {
        if (modifiers & modifier.first)
            send(modifier.second, false);
    }
    m_connection.sync();
}

void Keyboard::send(const char *keysymName, bool press)
{
    const KeySym symbol = XStringToKeysym(keysymName);
    const KeyCode code = XKeysymToKeycode(m_connection.display(), symbol);
    if (!code)
        qFatal("The keyboard has no key \"%s\"", keysymName);
    XTestFakeKeyEvent(m_connection.display(), code, press ? True : False, CurrentTime);
}
