#include "windowtree.h"

#include "waiting.h"

#include <algorithm>

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace {
/// The source indication of a pager: acts without asking for the user's time.
constexpr long FromPager = 2;

constexpr int MostSyncs = 1000;
} // namespace

WindowTree::WindowTree(XConnection &connection)
    : m_connection(connection)
{
    // Answers to pings go to the root window.
    XSelectInput(m_connection.display(), m_connection.root(),
                 StructureNotifyMask | SubstructureNotifyMask);
    m_ownWindow =
        XCreateSimpleWindow(m_connection.display(), m_connection.root(), 0, 0, 1, 1, 0, 0, 0);
}

QVector<WindowInfo> WindowTree::ofProcess(qint64 processId) const
{
    QVector<WindowInfo> found;
    const QVector<WindowId> all = topLevels();
    for (const WindowId window : all) {
        if (processId > 0
            && m_connection.firstItem(window, "_NET_WM_PID")
                   == static_cast<unsigned long>(processId))
            found.append(info(window));
    }
    return found;
}

/// Those that the window manager has in frames of its own it lists; the others are the root's.
QVector<WindowId> WindowTree::topLevels() const
{
    const QByteArray managed = m_connection.property(m_connection.root(), "_NET_CLIENT_LIST");
    QVector<WindowId> all(managed.size() / static_cast<int>(sizeof(WindowId)));
    std::copy_n(managed.constData(), all.size() * sizeof(WindowId),
                reinterpret_cast<char *>(all.data()));
    Window root = 0;
    Window above = 0;
    Window *children = nullptr;
    unsigned int count = 0;
    XQueryTree(m_connection.display(), m_connection.root(), &root, &above, &children, &count);
    for (unsigned int i = 0; i < count; ++i) {
        if (!all.contains(children[i]))
            all.append(children[i]);
    }
    if (children)
        XFree(children);
    return all;
}

WindowInfo WindowTree::info(WindowId window) const
{
    WindowInfo result;
    XWindowAttributes attributes;
    if (!XGetWindowAttributes(m_connection.display(), window, &attributes))
        return result;
    int x = 0;
    int y = 0;
    Window child = 0;
    XTranslateCoordinates(m_connection.display(), window, m_connection.root(), 0, 0, &x, &y,
                          &child);
    result.id = window;
    result.title = QString::fromUtf8(m_connection.property(window, "_NET_WM_NAME"));
    result.processId = static_cast<qint64>(m_connection.firstItem(window, "_NET_WM_PID"));
    result.geometry = QRect(x, y, attributes.width, attributes.height);
    result.isMapped = attributes.map_state == IsViewable;
    result.isPopup = attributes.override_redirect != 0;
    return result;
}

WindowId WindowTree::active() const
{
    return m_connection.firstItem(m_connection.root(), "_NET_ACTIVE_WINDOW");
}

void WindowTree::activate(WindowId window)
{
    askWindowManager(window, "_NET_ACTIVE_WINDOW", FromPager, CurrentTime);
}

void WindowTree::close(WindowId window)
{
    askWindowManager(window, "_NET_CLOSE_WINDOW", CurrentTime, FromPager);
}

void WindowTree::minimise(WindowId window)
{
    askWindowManager(window, "WM_CHANGE_STATE", IconicState, 0);
}

void WindowTree::endFullScreen(WindowId window)
{
    const auto fullScreen = static_cast<long>(m_connection.atom("_NET_WM_STATE_FULLSCREEN"));
    askWindowManager(window, "_NET_WM_STATE", 0, fullScreen);
}

void WindowTree::move(WindowId window, const QPoint &position)
{
    XMoveWindow(m_connection.display(), window, position.x(), position.y());
    m_connection.sync();
}

void WindowTree::place(WindowId window, const QRect &place)
{
    XMoveResizeWindow(m_connection.display(), window, place.x(), place.y(),
                      static_cast<unsigned>(place.width()), static_cast<unsigned>(place.height()));
    m_connection.sync();
}

WindowId WindowTree::createWindow(const QRect &place, QRgb colour)
{
    const WindowId window =
        XCreateSimpleWindow(m_connection.display(), m_connection.root(), place.x(), place.y(),
                            static_cast<unsigned>(place.width()),
                            static_cast<unsigned>(place.height()), 0, 0, colour & RGB_MASK);
    XSizeHints hints = {};
    hints.flags = USPosition | USSize;
    hints.x = place.x();
    hints.y = place.y();
    hints.width = place.width();
    hints.height = place.height();
    XSetWMNormalHints(m_connection.display(), window, &hints);
    return window;
}

std::unique_ptr<WindowTree::OwnWindow> WindowTree::show(WindowId window)
{
    XMapWindow(m_connection.display(), window);
    m_connection.sync();
    return std::make_unique<OwnWindow>(m_connection, window);
}

WindowTree::OwnWindow::~OwnWindow()
{
    XDestroyWindow(m_connection.display(), m_id);
    m_connection.sync();
}

std::unique_ptr<WindowTree::OwnWindow> WindowTree::addWindow(const QRect &place, QRgb colour)
{
    return show(createWindow(place, colour));
}

std::unique_ptr<WindowTree::OwnWindow> WindowTree::addDock(const QRect &place, QRgb colour)
{
    const WindowId window = createWindow(place, colour);
    const Atom type = m_connection.atom("_NET_WM_WINDOW_TYPE_DOCK");
    XChangeProperty(m_connection.display(), window, m_connection.atom("_NET_WM_WINDOW_TYPE"),
                    XA_ATOM, 32, PropModeReplace, reinterpret_cast<const unsigned char *>(&type),
                    1);
    const long strut[12] = {0, 0, 0, place.height(), 0, 0, 0, 0, 0, 0, place.left(), place.right()};
    XChangeProperty(m_connection.display(), window, m_connection.atom("_NET_WM_STRUT_PARTIAL"),
                    XA_CARDINAL, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char *>(strut), 12);
    return show(window);
}

void WindowTree::askWindowManager(WindowId window, const char *message, long first, long second)
{
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = m_connection.atom(message);
    event.xclient.format = 32;
    event.xclient.data.l[0] = first;
    event.xclient.data.l[1] = second;
    XSendEvent(m_connection.display(), m_connection.root(), False,
               SubstructureNotifyMask | SubstructureRedirectMask, &event);
    m_connection.sync();
}

bool WindowTree::answersPing(WindowId window, int deadlineMs)
{
    XEvent ping = {};
    ping.xclient.type = ClientMessage;
    ping.xclient.window = window;
    ping.xclient.message_type = m_connection.atom("WM_PROTOCOLS");
    ping.xclient.format = 32;
    ping.xclient.data.l[0] = static_cast<long>(m_connection.atom("_NET_WM_PING"));
    ping.xclient.data.l[1] = ++m_pingNumber;
    ping.xclient.data.l[2] = static_cast<long>(window);
    XSendEvent(m_connection.display(), window, False, NoEventMask, &ping);
    m_connection.sync();

    const auto isAnswered = [&] {
        XEvent answer;
        while (XCheckTypedEvent(m_connection.display(), ClientMessage, &answer)) {
            if (answer.xclient.data.l[0] == ping.xclient.data.l[0]
                && answer.xclient.data.l[1] == m_pingNumber)
                return true;
        }
        return false;
    };
    return waitFor(isAnswered, deadlineMs);
}

bool WindowTree::hasWindowManager() const
{
    return m_connection.firstItem(m_connection.root(), "_NET_SUPPORTING_WM_CHECK") != 0;
}

void WindowTree::useOneDesktop()
{
    askWindowManager(m_connection.root(), "_NET_NUMBER_OF_DESKTOPS", 1, 0);
}

bool WindowTree::syncWithWindowManager()
{
    // Every window manager has to let a window that it does not manage have its way. Places have
    // 16 bits.
    m_syncNumber = m_syncNumber % MostSyncs + 1;
    XMoveWindow(m_connection.display(), m_ownWindow, m_syncNumber, 0);
    m_connection.sync();
    return waitFor([this] { return info(m_ownWindow).geometry.x() == m_syncNumber; });
}
