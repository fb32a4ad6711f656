#include "x11windows.h"

#include <QX11Info>

#include <algorithm>
#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>

namespace {

constexpr quint32 mostWindows = 10000;

// A frame, a layer inside the frame, the program's own window.
constexpr int deepestClient = 2;

xcb_connection_t *server()
{
    return QX11Info::connection();
}

xcb_window_t root()
{
    return static_cast<xcb_window_t>(QX11Info::appRootWindow());
}

template<typename Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply *reply)
{
    return {reply, &std::free};
}

// From the lowest to the highest.
QVector<xcb_window_t> managedWindows()
{
    constexpr char name[] = "_NET_CLIENT_LIST_STACKING";
    static const xcb_atom_t list =
        owned(xcb_intern_atom_reply(
                  server(), xcb_intern_atom(server(), false, sizeof name - 1, name), nullptr))
            ->atom;
    const auto cookie =
        xcb_get_property(server(), false, root(), list, XCB_ATOM_WINDOW, 0, mostWindows);
    const auto reply = owned(xcb_get_property_reply(server(), cookie, nullptr));
    QVector<xcb_window_t> windows;
    if (!reply)
        return windows;
    const auto *first = static_cast<xcb_window_t *>(xcb_get_property_value(reply.get()));
    std::copy_n(first, reply->value_len, std::back_inserter(windows));
    return windows;
}

// All others of the screen too, from the lowest to the highest.
QVector<xcb_window_t> allWindows()
{
    const auto tree =
        owned(xcb_query_tree_reply(server(), xcb_query_tree(server(), root()), nullptr));
    QVector<xcb_window_t> windows;
    if (tree)
        std::copy_n(xcb_query_tree_children(tree.get()), tree->children_len,
                    std::back_inserter(windows));
    return windows;
}

// The outermost windows around these, each itself if the window manager has put none there.
QVector<xcb_window_t> frames(QVector<xcb_window_t> windows)
{
    for (int depth = 0; depth <= deepestClient; ++depth) {
        QVector<xcb_query_tree_cookie_t> cookies;
        for (const xcb_window_t window : qAsConst(windows))
            cookies.append(xcb_query_tree(server(), window));
        for (int i = 0; i < windows.size(); ++i) {
            const auto tree = owned(xcb_query_tree_reply(server(), cookies.at(i), nullptr));
            if (tree && tree->parent != root() && tree->parent != 0)
                windows[i] = tree->parent;
        }
    }
    return windows;
}

bool isShown(xcb_window_t window)
{
    const auto cookie = xcb_get_window_attributes(server(), window);
    const auto reply = owned(xcb_get_window_attributes_reply(server(), cookie, nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

// The window, or the one that it is to be above, may just have gone or been hidden.
void ignoreErrors(xcb_void_cookie_t request)
{
    xcb_discard_reply(server(), request.sequence);
}

// Of the same program.
bool isAkin(xcb_window_t one, xcb_window_t other)
{
    return ((one ^ other) & ~xcb_get_setup(server())->resource_id_mask) == 0;
}

} // namespace

bool X11Windows::isAvailable()
{
    return QX11Info::isPlatformX11();
}

QRect X11Windows::geometry(WId window)
{
    if (!isAvailable())
        return {};
    const auto id = static_cast<xcb_window_t>(window);
    const auto size = xcb_get_geometry(server(), id);
    const auto corner = xcb_translate_coordinates(server(), id, root(), 0, 0);
    const auto sizeReply = owned(xcb_get_geometry_reply(server(), size, nullptr));
    const auto cornerReply = owned(xcb_translate_coordinates_reply(server(), corner, nullptr));
    if (!sizeReply || !cornerReply)
        return {};
    return {cornerReply->dst_x, cornerReply->dst_y, sizeReply->width, sizeReply->height};
}

bool X11Windows::isCovered(WId window)
{
    if (!isAvailable())
        return false;
    const QVector<xcb_window_t> all = allWindows();
    const QVector<xcb_window_t> managed = managedWindows();
    const QVector<xcb_window_t> around = frames(managed);
    const int own = managed.indexOf(static_cast<xcb_window_t>(window));
    const QRect place = geometry(window);
    for (int i = 0; own >= 0 && i < managed.size(); ++i) {
        if (all.indexOf(around.at(i)) > all.indexOf(around.at(own))
            && !isAkin(managed.at(i), managed.at(own)) && isShown(managed.at(i))
            && geometry(managed.at(i)).intersects(place))
            return true;
    }
    return false;
}

void X11Windows::place(WId window, const QRect &place)
{
    if (!isAvailable())
        return;
    constexpr quint16 all = XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH
                            | XCB_CONFIG_WINDOW_HEIGHT;
    const qint32 values[] = {place.x(), place.y(), place.width(), place.height()};
    xcb_configure_window(server(), static_cast<xcb_window_t>(window), all, values);
}

void X11Windows::unmap(WId window)
{
    if (isAvailable())
        xcb_unmap_window(server(), static_cast<xcb_window_t>(window));
}

void X11Windows::lift(const QVector<WId> &windows)
{
    if (!isAvailable())
        return;
    const QVector<xcb_window_t> all = allWindows();
    int highest = -1;
    // The frames of these windows, if any are left, are about to go.
    QVector<xcb_window_t> others = managedWindows();
    for (const WId window : windows)
        others.removeAll(static_cast<xcb_window_t>(window));
    const QVector<xcb_window_t> around = frames(others);
    for (const xcb_window_t frame : around)
        highest = qMax(highest, all.indexOf(frame));
    xcb_window_t below = all.value(highest);
    for (const WId window : windows) {
        const auto id = static_cast<xcb_window_t>(window);
        // A window manager may hide what it lets go of.
        xcb_map_window(server(), id);
        const int height = all.indexOf(id);
        if (height < 0)
            continue; // still in its frame
        const quint32 values[] = {below, XCB_STACK_MODE_ABOVE};
        if (height < highest)
            ignoreErrors(xcb_configure_window_checked(
                server(), id, XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE, values));
        highest = qMax(highest, height);
        below = id;
    }
}

void X11Windows::focus(WId window)
{
    if (isAvailable())
        ignoreErrors(xcb_set_input_focus_checked(
            server(), XCB_INPUT_FOCUS_PARENT, static_cast<xcb_window_t>(window), XCB_CURRENT_TIME));
}
