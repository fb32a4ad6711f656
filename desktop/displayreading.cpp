#include "displayreading.h"

#ifdef TARN_X11

#include "waylandoutputs.h"

#include <QGuiApplication>
#include <QScreen>
#include <QX11Info>

#include <cstdlib>
#include <memory>

#include <xcb/randr.h>

namespace DisplayReading {
namespace {

template<typename Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply *reply)
{
    return {reply, &std::free};
}

void appendRamps(QVector<QVector<quint16>> &ramps, xcb_randr_crtc_t crtc)
{
    xcb_connection_t *const server = QX11Info::connection();
    const auto gamma = owned(
        xcb_randr_get_crtc_gamma_reply(server, xcb_randr_get_crtc_gamma(server, crtc), nullptr));
    if (!gamma)
        return;
    for (const quint16 *ramp :
         {xcb_randr_get_crtc_gamma_red(gamma.get()), xcb_randr_get_crtc_gamma_green(gamma.get()),
          xcb_randr_get_crtc_gamma_blue(gamma.get())}) {
        QVector<quint16> levels(gamma->size);
        std::copy_n(ramp, gamma->size, levels.begin());
        ramps.append(levels);
    }
}

bool hasExtension(const char *name)
{
    xcb_connection_t *const server = QX11Info::connection();
    const auto length = static_cast<quint16>(qstrlen(name));
    const auto reply = owned(
        xcb_query_extension_reply(server, xcb_query_extension(server, length, name), nullptr));
    return reply && reply->present;
}

// A compositor's X server says so by an extension, one before version 23.1 by its outputs' names.
bool isCompositorsServer()
{
    return QX11Info::isPlatformX11()
           && (hasExtension("XWAYLAND")
               || QGuiApplication::primaryScreen()->name().startsWith(QLatin1String("XWAYLAND")));
}

} // namespace

QVector<QVector<quint16>> gammaRamps(const QRect &area)
{
    QVector<QVector<quint16>> ramps;
    // What a compositor's server keeps does not reach the screen.
    if (!QX11Info::isPlatformX11() || !hasExtension("RANDR") || isCompositorsServer())
        return ramps;
    xcb_connection_t *const server = QX11Info::connection();
    const auto resources = owned(xcb_randr_get_screen_resources_current_reply(
        server,
        xcb_randr_get_screen_resources_current(server,
                                               static_cast<quint32>(QX11Info::appRootWindow())),
        nullptr));
    if (!resources)
        return ramps;
    const xcb_randr_crtc_t *const crtcs =
        xcb_randr_get_screen_resources_current_crtcs(resources.get());
    for (int i = 0; i < resources->num_crtcs; ++i) {
        const auto crtc = owned(xcb_randr_get_crtc_info_reply(
            server, xcb_randr_get_crtc_info(server, crtcs[i], resources->config_timestamp),
            nullptr));
        if (crtc && area.intersects({crtc->x, crtc->y, crtc->width, crtc->height}))
            appendRamps(ramps, crtcs[i]);
    }
    return ramps;
}

QVector<QSize> compositorOutputs()
{
    return isCompositorsServer() ? WaylandOutputs::sizes() : QVector<QSize>();
}

} // namespace DisplayReading

#else

namespace DisplayReading {

QVector<QVector<quint16>> gammaRamps(const QRect & /*area*/)
{
    return {};
}

QVector<QSize> compositorOutputs()
{
    return {};
}

} // namespace DisplayReading

#endif
