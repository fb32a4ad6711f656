#pragma once

#include <QRect>
#include <QSize>
#include <QVector>

// What the X server and the compositor that it runs on tell about the screens. All of it is empty
// where there is neither.
namespace DisplayReading {

// The gamma ramps, red, green and blue, of every screen that a part of this area lies on.
QVector<QVector<quint16>> gammaRamps(const QRect &area);

// The sizes in pixels of the outputs of the compositor that the X server shows its windows
// through; none on an X server that has the screens to itself.
QVector<QSize> compositorOutputs();

} // namespace DisplayReading
