#include "x11windows.h"

#include <QGuiApplication>

#ifdef TARN_XCB
#include <algorithm>
#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>

namespace {

// A frame, a layer inside the frame, the program's own window.
constexpr int deepestClient = 2;

// Marks events that come from another program.
constexpr quint8 sentBit = 0x80;

template<typename Reply>
using ReplyPtr = std::unique_ptr<Reply, decltype(&std::free)>;

template<typename Reply>
ReplyPtr<Reply> owned(Reply *reply)
{
    return {reply, &std::free};
}

} // namespace

X11Windows::X11Windows()
{
    if (!isAvailable())
        return;
    m_connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(m_connection))
        return;
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    const auto atom = [this](const QByteArray &name) {
        const auto cookie = xcb_intern_atom(m_connection, false, static_cast<quint16>(name.size()),
                                            name.constData());
        const auto reply = owned(xcb_intern_atom_reply(m_connection, cookie, nullptr));
        return reply ? reply->atom : 0;
    };
    m_state = atom(QByteArrayLiteral("WM_STATE"));
    m_strut = atom(QByteArrayLiteral("_NET_WM_STRUT"));
    m_partialStrut = atom(QByteArrayLiteral("_NET_WM_STRUT_PARTIAL"));
    qApp->installNativeEventFilter(this);
}

X11Windows::~X11Windows()
{
    if (m_connection)
        xcb_disconnect(m_connection);
}

bool X11Windows::isAvailable()
{
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

QRect X11Windows::geometry(WId window) const
{
    if (!m_root)
        return {};
    const auto id = static_cast<quint32>(window);
    const auto size = xcb_get_geometry(m_connection, id);
    const auto corner = xcb_translate_coordinates(m_connection, id, m_root, 0, 0);
    const auto sizeReply = owned(xcb_get_geometry_reply(m_connection, size, nullptr));
    const auto cornerReply = owned(xcb_translate_coordinates_reply(m_connection, corner, nullptr));
    if (!sizeReply || !cornerReply)
        return {};
    return {cornerReply->dst_x, cornerReply->dst_y, sizeReply->width, sizeReply->height};
}

bool X11Windows::nativeEventFilter(const QByteArray &type, void *message, long * /*result*/)
{
    if (type == "xcb_generic_event_t") {
        const auto *event = static_cast<xcb_configure_notify_event_t *>(message);
        if ((event->response_type & ~sentBit) == XCB_CONFIGURE_NOTIFY)
            emit configured(event->window);
    }
    return false;
}

bool X11Windows::isButtonHeld() const
{
    constexpr int buttons = XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3;
    if (!m_root)
        return false;
    const auto reply = owned(
        xcb_query_pointer_reply(m_connection, xcb_query_pointer(m_connection, m_root), nullptr));
    return reply && (reply->mask & buttons) != 0;
}

bool X11Windows::isBelowPanel(WId window) const
{
    if (!m_root)
        return false;
    const QRect place = geometry(window);
    const QVector<quint32> all = children(m_root);
    const int at = all.indexOf(frame(static_cast<quint32>(window)));
    return std::any_of(all.cbegin() + at + 1, all.cend(), [&](quint32 other) {
        return geometry(other).intersects(place) && isShown(other)
               && (hasProperty(other, m_strut, deepestClient)
                   || hasProperty(other, m_partialStrut, deepestClient));
    });
}

void X11Windows::place(WId window, const QRect &place)
{
    if (!m_root)
        return;
    constexpr quint16 all = XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH
                            | XCB_CONFIG_WINDOW_HEIGHT;
    const qint32 values[] = {place.x(), place.y(), place.width(), place.height()};
    const auto cookie =
        xcb_configure_window_checked(m_connection, static_cast<quint32>(window), all, values);
    std::free(xcb_request_check(m_connection, cookie));
}

void X11Windows::withdraw(WId window)
{
    if (!m_root)
        return;
    const auto id = static_cast<quint32>(window);
    xcb_unmap_window(m_connection, id);
    union {
        xcb_unmap_notify_event_t notice;
        char bytes[32];
    } event = {};
    event.notice.response_type = XCB_UNMAP_NOTIFY;
    event.notice.event = m_root;
    event.notice.window = id;
    xcb_send_event(m_connection, false, m_root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   event.bytes);
    xcb_flush(m_connection);
}

void X11Windows::map(WId window)
{
    if (!m_root)
        return;
    xcb_map_window(m_connection, static_cast<quint32>(window));
    xcb_flush(m_connection);
}

void X11Windows::focus(WId window)
{
    if (!m_root)
        return;
    xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, static_cast<quint32>(window),
                        XCB_CURRENT_TIME);
    xcb_flush(m_connection);
}

// From the lowest to the highest.
QVector<quint32> X11Windows::children(quint32 window) const
{
    const auto tree =
        owned(xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
    QVector<quint32> found;
    if (!tree)
        return found;
    const xcb_window_t *first = xcb_query_tree_children(tree.get());
    found.reserve(xcb_query_tree_children_length(tree.get()));
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i)
        found.append(first[i]);
    return found;
}

// The outermost window around it, itself if the window manager has put none there.
quint32 X11Windows::frame(quint32 window) const
{
    for (;;) {
        const auto tree = owned(
            xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
        if (!tree || tree->parent == m_root || tree->parent == 0)
            return window;
        window = tree->parent;
    }
}

// It or a window inside it.
bool X11Windows::hasProperty(quint32 window, quint32 property, int depth) const
{
    const auto cookie = xcb_get_property(m_connection, false, window, property, 0, 0, 1);
    const auto reply = owned(xcb_get_property_reply(m_connection, cookie, nullptr));
    if (reply && reply->type)
        return true;
    const QVector<quint32> inside = depth > 0 ? children(window) : QVector<quint32>();
    return std::any_of(inside.cbegin(), inside.cend(),
                       [&](quint32 child) { return hasProperty(child, property, depth - 1); });
}

bool X11Windows::isShown(quint32 window) const
{
    const auto cookie = xcb_get_window_attributes(m_connection, window);
    const auto reply = owned(xcb_get_window_attributes_reply(m_connection, cookie, nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

void X11Windows::stack(quint32 window, quint32 sibling, quint32 mode)
{
    const quint32 values[] = {sibling, mode};
    xcb_configure_window(m_connection, window,
                         XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE, values);
    xcb_flush(m_connection);
}

void X11Windows::lift(WId window, const QVector<WId> &above)
{
    if (!m_root)
        return;
    const auto own = static_cast<quint32>(window);
    const QVector<quint32> all = children(m_root);
    const int at = all.indexOf(own);
    int ceiling = all.size();
    for (const WId one : above) {
        const int found = all.indexOf(frame(static_cast<quint32>(one)));
        ceiling = found < 0 ? ceiling : qMin(ceiling, found);
    }
    if (at < 0)
        return;
    if (ceiling < at) {
        stack(own, all.at(ceiling), XCB_STACK_MODE_BELOW);
        return;
    }
    for (int i = ceiling - 1; i > at; --i) {
        if (isShown(all.at(i)) && hasProperty(all.at(i), m_state, deepestClient)) {
            stack(own, all.at(i), XCB_STACK_MODE_ABOVE);
            return;
        }
    }
}

#else

X11Windows::X11Windows() = default;
X11Windows::~X11Windows() = default;

bool X11Windows::isAvailable()
{
    return false;
}

bool X11Windows::nativeEventFilter(const QByteArray & /*type*/, void * /*message*/,
                                   long * /*result*/)
{
    return false;
}

bool X11Windows::isButtonHeld() const
{
    return false;
}

QRect X11Windows::geometry(WId /*window*/) const
{
    return {};
}

bool X11Windows::isBelowPanel(WId /*window*/) const
{
    return false;
}

void X11Windows::place(WId /*window*/, const QRect & /*place*/) { }

void X11Windows::withdraw(WId /*window*/) { }

void X11Windows::map(WId /*window*/) { }

void X11Windows::focus(WId /*window*/) { }

void X11Windows::lift(WId /*window*/, const QVector<WId> & /*above*/) { }

#endif
