#include "exactgrid.h"

#include <QPainter>

namespace {

constexpr QRgb emptyColor = 0xff553311;

void paintLineByLine(QPainter &painter, const QSize &size, const GridSettings &settings)
{
    const auto line = [&painter](int x1, int y1, int x2, int y2) {
        const QLine one(x1, y1, x2, y2);
        painter.drawLines(&one, 1);
    };
    const int w = size.width();
    const int h = size.height();
    const int m = qMax(w, h);
    QPen pen;
    pen.setColor(settings.line);
    pen.setWidth(settings.width);
    painter.setPen(pen);
    painter.fillRect(0, 0, w, h, settings.background);
    for (int y = settings.offset; (settings.families & Horizontal) && y <= h;
         y += settings.distance)
        line(0, y, w, y);
    for (int x = settings.offset; (settings.families & Vertical) && x <= w; x += settings.distance)
        line(x, 0, x, h);
    for (int d = settings.offset; (settings.families & SlantLeft) && d <= 2 * m;
         d += settings.distance)
        line(0, d, d, 0);
    for (int d = settings.offset; (settings.families & SlantRight) && d < 2 * m;
         d += settings.distance)
        line(0, m - d, d, m);
}

} // namespace

QImage drawnLineByLine(QImage image, const QSize &size, const GridSettings &settings)
{
    QPainter painter(&image);
    painter.setClipRect(QRect(QPoint(), size)); // thin lines are much faster with a clip
    paintLineByLine(painter, size, settings);
    painter.end();
    return image;
}

QImage blank(const QSize &size, QImage::Format format, qreal scale)
{
    QImage image((QSizeF(size) * scale).toSize(), format);
    image.setDevicePixelRatio(scale);
    image.fill(emptyColor);
    return image;
}

void apply(GridDrawer &drawer, GridSettings &current, const GridSettings &wanted)
{
    // The offset is reached by scrolling, at a distance that lets it get that far.
    drawer.slot_changeDistance(qMax(wanted.distance, wanted.offset + 1));
    int offset = current.offset;
    while (offset != wanted.offset) {
        drawer.scrollLines();
        offset = (offset + 1) % drawer.getLineDistance();
    }
    drawer.slot_changeDistance(wanted.distance);
    drawer.slot_changePix(wanted.width);
    drawer.slot_colorChanged(wanted.line);
    drawer.slot_changeBgColor(wanted.background);
    drawer.setHoriLinesEnabled(wanted.families & Horizontal);
    drawer.setVertLinesEnabled(wanted.families & Vertical);
    drawer.setSlantLeftLinesEnabled(wanted.families & SlantLeft);
    drawer.setSlantRightLinesEnabled(wanted.families & SlantRight);
    current = wanted;
}

void scroll(GridDrawer &drawer, GridSettings &current)
{
    drawer.scrollLines();
    current.offset = (current.offset + 1) % current.distance;
}

QString description(const QSize &size, const GridSettings &settings)
{
    return QStringLiteral("%1 x %2, distance %3, offset %4, width %5, families %6, %7 on %8")
        .arg(size.width())
        .arg(size.height())
        .arg(settings.distance)
        .arg(settings.offset)
        .arg(settings.width)
        .arg(settings.families)
        .arg(settings.line.name(QColor::HexArgb), settings.background.name(QColor::HexArgb));
}

int Lot::between(int low, int high)
{
    // Not a distribution of the standard library, whose numbers differ among libraries.
    return low + int(m_engine() % unsigned(high - low + 1));
}

QSize Lot::size()
{
    switch (between(0, 9)) {
    case 0:
        return {1, 1};
    case 1:
        return {between(1, 30), between(1, 30)};
    case 2:
        return {between(300, 900), between(1, 60)};
    case 3:
        return {between(1, 60), between(300, 900)};
    case 4: {
        const int side = between(1, 600);
        return {side, side};
    }
    default:
        return {between(20, 500), between(20, 500)};
    }
}

GridSettings Lot::settings()
{
    GridSettings settings;
    const int farthest[] = {10, 40, 150, 700};
    settings.distance = between(3, farthest[between(0, 3)]);
    // Sometimes further than a distance: the one before was larger.
    settings.offset = between(0, 7) == 0 ? between(0, 699) : between(0, settings.distance - 1);
    settings.width = between(1, 5);
    settings.families = between(0, 3) == 0 ? EveryFamily : between(0, EveryFamily);
    settings.line = color();
    settings.background = color();
    return settings;
}

QColor Lot::color()
{
    switch (between(0, 11)) {
    case 0:
        return {};
    case 1: // translucent
        return {between(0, 255), between(0, 255), between(0, 255), between(0, 254)};
    default:
        return opaqueColor();
    }
}

QColor Lot::opaqueColor()
{
    switch (between(0, 9)) {
    case 0:
        return QColor::fromHsv(between(0, 359), between(0, 255), between(0, 255));
    case 1:
        return Qt::white;
    case 2:
        return Qt::black;
    default:
        return {between(0, 255), between(0, 255), between(0, 255)};
    }
}
