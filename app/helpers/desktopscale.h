#pragma once

#include <QFont>
#include <QString>

class QWidget;

// The size of the controls on the operator's desktop. The test window takes no part in it: there
// one pattern pixel is one screen pixel.
namespace DesktopScale {

// What the environment asks for instead of the desktop, a positive number; anything else asks for
// nothing. For windows that are built from now on.
void request(const QString &factor);

// From 1 to 4 in steps of a quarter: the one asked for, otherwise the primary screen's logical
// dots per inch over 96 at the first use.
qreal factor();

// A font of points in pixels: as many on every desktop, however dense its screens are.
QFont inPixels(QFont font);

// The same for a control; at a factor of 1 the font as it is.
QFont font(QFont unscaled);

// Rounded down.
int scaled(int length);

// The rest does nothing at a factor of 1.

// The style sheet with its lengths, and with images of four times the size in place of its own.
QString styleSheet(const QString &text);

// Scales a window once it is built, with all in it: places, sizes and their limits, margins and
// spacings. What a style sheet has sized stays as it is, and so do other windows.
void apply(QWidget *window);

} // namespace DesktopScale
