#include "gridcanvas.h"

#include <QElapsedTimer>

using namespace GridColor;

namespace {

// Whether a line one pixel wide runs through the pixel, worked out from its coordinates.
bool isOnLine(const QPoint &pixel, const QSize &size, int families, int distance, int offset)
{
    const auto isLine = [=](int position) {
        return position >= offset && (position - offset) % distance == 0;
    };
    const int side = qMax(size.width(), size.height());
    const int rightward = side + pixel.x() - pixel.y();
    return ((families & Horizontal) && isLine(pixel.y()))
           || ((families & Vertical) && isLine(pixel.x()))
           || ((families & SlantLeft) && isLine(pixel.x() + pixel.y()))
           || ((families & SlantRight) && rightward < 2 * side && isLine(rightward));
}

// Whether these families are what the image shows away from its border, in two colours.
bool isPicture(const QImage &image, int families, int offset, Picture *found)
{
    constexpr int distance = 10;
    QVector<QRgb> colors[2]; // without and with a line
    for (int y = distance; y < image.height() - distance; ++y) {
        for (int x = distance; x < image.width() - distance; ++x) {
            QVector<QRgb> &same =
                colors[isOnLine({x, y}, image.size(), families, distance, offset)];
            if (same.isEmpty())
                same << image.pixel(x, y);
            if (image.pixel(x, y) != same.constFirst())
                return false;
        }
    }
    *found = {
        {}, families == 0 ? 0 : offset, colors[0].value(0), colors[1].value(0, colors[0].value(0))};
    return families == 0 || found->line != found->background;
}

} // namespace

QImage rendered(QWidget &widget, const GridDrawer &drawer, QImage image)
{
    constexpr int deadlineMs = 60000;
    QElapsedTimer clock;
    clock.start();
    do {
        widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    } while (!drawer.isDrawnInFull() && !clock.hasExpired(deadlineMs));
    return image;
}

GridCanvas::GridCanvas(const QSize &size)
    : canvas(size)
    , drawer(&canvas)
{
    canvas.setDrawer(&drawer);
}

void GridCanvas::enable(int families)
{
    drawer.setHoriLinesEnabled(families & Horizontal);
    drawer.setVertLinesEnabled(families & Vertical);
    drawer.setSlantLeftLinesEnabled(families & SlantLeft);
    drawer.setSlantRightLinesEnabled(families & SlantRight);
}

void GridCanvas::showRedOnBlue(int families)
{
    drawer.slot_colorChanged(Qt::red);
    drawer.slot_changeBgColor(Qt::blue);
    enable(families);
}

void GridCanvas::scroll(int steps)
{
    for (int step = 0; step < steps; ++step)
        drawer.scrollLines();
}

QImage GridCanvas::painted()
{
    QImage image(canvas.size(), QImage::Format_ARGB32);
    image.fill(backdrop);
    return rendered(image);
}

QString difference(const QImage &image, int families, int distance, int offset)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool line = isOnLine({x, y}, image.size(), families, distance, offset);
            if (image.pixel(x, y) != (line ? red : blue))
                return QStringLiteral("wrong at (%1, %2) of %3 x %4")
                    .arg(x)
                    .arg(y)
                    .arg(image.width())
                    .arg(image.height());
        }
    }
    return image.isNull() ? QStringLiteral("no image") : QString();
}

bool everyPixelIs(const QImage &image, QRgb expected)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != expected)
                return false;
        }
    }
    return !image.isNull();
}

Picture picture(const QImage &image)
{
    Picture found;
    for (int families = 0; families <= EveryFamily; ++families) {
        for (int offset = 0; offset < 10; ++offset) {
            if (!isPicture(image, families, offset, &found))
                continue;
            for (const auto &[family, letter] :
                 {std::pair(Horizontal, 'H'), std::pair(Vertical, 'V'), std::pair(SlantLeft, 'L'),
                  std::pair(SlantRight, 'R')}) {
                if (families & family)
                    found.families += QLatin1Char(letter);
            }
            return found;
        }
    }
    found.families = QStringLiteral("?");
    return found;
}

QString summary(const QImage &image)
{
    const Picture shown = picture(image);
    return shown.families.isEmpty() ? QColor(shown.background).name() : shown.families;
}
