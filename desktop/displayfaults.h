#pragma once

#include <QRect>
#include <QSize>
#include <QVector>

// What makes a screen show something else than what is painted. Each check takes plain numbers;
// one that a platform cannot tell is left empty, and counts as right.
namespace DisplayFaults {

// Whether the ramp, which maps evenly spaced levels to 0 to 65535, is a whole 8-bit level or more
// off the straight line. One that is level, or goes up and down, is memory of a server that keeps
// no ramps, and counts as right.
bool isGammaAltered(const QVector<quint16> &ramp);

// Whether a compositor's output, in pixels, is none of the sizes that its X server tells
// programs about: then it scales what they paint. A turned output has the sides swapped.
bool isScaled(const QVector<QSize> &outputs, const QVector<QSize> &screens);

// Whether the screen's pixels, of this many bits, have fewer than 8 bits a channel.
bool isDepthTooLow(int bitsPerPixel);

// Whether a part of the window lies on none of the screens.
bool isPartlyOffScreen(const QRect &window, const QVector<QRect> &screens);

} // namespace DisplayFaults
