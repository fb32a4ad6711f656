#pragma once

#include "canvas.h"
#include "griddrawer.h"

#include <QImage>
#include <QString>

enum Family {
    Horizontal = 1,
    Vertical = 2,
    SlantLeft = 4,
    SlantRight = 8,
    EveryFamily = 15,
};

namespace GridColor {

constexpr QRgb backdrop = 0xff0a141e; // what stands on the canvas before it is painted
constexpr QRgb black = 0xff000000;
constexpr QRgb red = 0xffff0000;
constexpr QRgb blue = 0xff0000ff;

} // namespace GridColor

// What a widget shows once its drawer is done with what it paints in parts.
QImage rendered(QWidget &widget, const GridDrawer &drawer, QImage image);

// A grid drawer on a canvas that shows it.
struct GridCanvas
{
    explicit GridCanvas(const QSize &size = QSize(33, 17));

    // These families (bits of Family) and no others, without touching the background.
    void enable(int families);
    void showRedOnBlue(int families);
    void scroll(int steps);
    // On an image, in full.
    QImage rendered(QImage image) { return ::rendered(canvas, drawer, image); }
    QImage painted();

    Canvas canvas;
    GridDrawer drawer;
};

// Empty if the image shows exactly these families, one pixel wide and red on blue; otherwise
// says where it does not. Worked out from coordinates alone.
QString difference(const QImage &image, int families, int distance, int offset);

bool everyPixelIs(const QImage &image, QRgb expected);

// What a drawer with the lines ten pixels apart shows. Families are letters: H horizontal,
// V vertical, L slant left, R slant right; "?" for a picture that is none of theirs.
struct Picture
{
    QString families;
    int offset = 0; // of the lines
    QRgb background = 0;
    QRgb line = 0; // the background if there are no lines
};
Picture picture(const QImage &image);

// The background's name, or the letters of the families.
QString summary(const QImage &image);
