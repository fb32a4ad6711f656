#pragma once

#include <QColor>

// The seven pure colours, in the order in which every panel numbers them:
// red, green, blue, white, yellow, cyan, purple.
namespace PureColor {

constexpr int count = 7;

// The colours that the page keys walk through: the first four of the table.
constexpr int pageColorCount = 4;

// The colour at index 0 to count - 1; an invalid colour for any other index.
QColor at(int index);

// The index of a colour that equals one of the seven exactly (alpha and colour
// model included), or -1.
int indexOf(const QColor &color);

// The untranslated name ("红", "绿", ...), a null string for an index outside the table.
QString sourceName(int index);

// The name in the interface language, a null string for an index outside the table.
QString translatedName(int index);

} // namespace PureColor

// A pure colour at a grey level of 0 to 255 (clamped): its lit channels take the
// level, and it is opaque. Any other colour comes back unchanged, its alpha included.
QColor getGrayScaleColor(const QColor &color, int grey);
