#include "waylandoutputs.h"

#include <wayland-client.h>

namespace WaylandOutputs {
namespace {

// What the compositor has told until now.
struct Answers
{
    QVector<wl_output *> outputs;
    QVector<QSize> sizes;
};

void addMode(void *answers, wl_output * /*output*/, uint32_t flags, int32_t width, int32_t height,
             int32_t /*refresh*/)
{
    if (flags & WL_OUTPUT_MODE_CURRENT)
        static_cast<Answers *>(answers)->sizes.append({width, height});
}

void ignoreGeometry(void * /*answers*/, wl_output * /*output*/, int32_t /*x*/, int32_t /*y*/,
                    int32_t /*width*/, int32_t /*height*/, int32_t /*subpixel*/,
                    const char * /*maker*/, const char * /*model*/, int32_t /*transform*/)
{ }

void addOutput(void *answers, wl_registry *registry, uint32_t name, const char *interface,
               uint32_t /*version*/)
{
    if (qstrcmp(interface, wl_output_interface.name) != 0)
        return;
    static const wl_output_listener listener = [] {
        wl_output_listener first = {}; // of the interface's first version, which is asked for
        first.geometry = ignoreGeometry;
        first.mode = addMode;
        return first;
    }();
    auto *output =
        static_cast<wl_output *>(wl_registry_bind(registry, name, &wl_output_interface, 1));
    wl_output_add_listener(output, &listener, answers);
    static_cast<Answers *>(answers)->outputs.append(output);
}

void ignoreRemoval(void * /*answers*/, wl_registry * /*registry*/, uint32_t /*name*/) { }

constexpr wl_registry_listener registryListener = {addOutput, ignoreRemoval};

} // namespace

QVector<QSize> sizes()
{
    Answers answers;
    wl_display *const display = wl_display_connect(nullptr);
    if (!display)
        return {};
    wl_registry *const registry = wl_display_get_registry(display);
    wl_registry_add_listener(registry, &registryListener, &answers);
    wl_display_roundtrip(display); // tells the outputs
    wl_display_roundtrip(display); // and then their modes
    for (wl_output *output : qAsConst(answers.outputs))
        wl_output_destroy(output);
    wl_registry_destroy(registry);
    wl_display_disconnect(display);
    return answers.sizes;
}

} // namespace WaylandOutputs
