#include "xconnection.h"

#include <cstring>

#include <X11/Xlib.h>

namespace {
/// A window may vanish between being listed and being asked, and then the
/// answer is empty; Xlib's own handler would end the test instead.
int ignoreError(Display *, XErrorEvent *)
{
    return 0;
}

constexpr long MaximumPropertyItems = 4096;
} // namespace

XConnection::XConnection(const QString &displayName)
    : m_display(XOpenDisplay(displayName.toLocal8Bit().constData()))
{
    XSetErrorHandler(ignoreError);
    if (m_display)
        m_root = DefaultRootWindow(m_display);
}

XConnection::~XConnection()
{
    if (m_display)
        XCloseDisplay(m_display);
}

AtomId XConnection::atom(const char *name)
{
    AtomId &known = m_atoms[QByteArray(name)];
    if (!known)
        known = XInternAtom(m_display, name, False);
    return known;
}

void XConnection::sync()
{
    XSync(m_display, False);
}

QByteArray XConnection::property(WindowId window, const char *name)
{
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char *data = nullptr;
    const int result =
        XGetWindowProperty(m_display, window, atom(name), 0, MaximumPropertyItems, False,
                           AnyPropertyType, &type, &format, &count, &left, &data);
    QByteArray value;
    if (result == Success && data) {
        const unsigned long itemSize =
            format == 32 ? sizeof(unsigned long) : static_cast<unsigned long>(format / 8);
        value =
            QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(count * itemSize));
    }
    if (data)
        XFree(data);
    return value;
}

unsigned long XConnection::firstItem(WindowId window, const char *name)
{
    const QByteArray value = property(window, name);
    unsigned long item = 0;
    if (value.size() >= static_cast<int>(sizeof item))
        std::memcpy(&item, value.constData(), sizeof item);
    return item;
}
