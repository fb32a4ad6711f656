#pragma once

#include <QSize>
#include <QVector>

// The outputs of the Wayland compositor that the environment names.
namespace WaylandOutputs {

// Their sizes in pixels, before any scaling and turning; empty without a compositor.
QVector<QSize> sizes();

} // namespace WaylandOutputs
