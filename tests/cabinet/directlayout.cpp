#include "directlayout.h"

#include <QPainter>
#include <QWidget>

#include <cmath>

namespace DirectLayout {

namespace {

// What stands on an image before it is painted.
constexpr QRgb backdrop = 0xff553311;

void paintLines(QPainter &painter, const ScrGrid &drawer, const QSize &step, const QColor &color,
                int lineWidth)
{
    const int w = drawer.targetWidget->width();
    const int h = drawer.targetWidget->height();
    const QPen oldPen = painter.pen();
    QPen pen = oldPen;
    pen.setColor(color);
    pen.setWidth(lineWidth);
    painter.setPen(pen);
    for (int y = drawer.m_lineStart; y <= h; y += step.height())
        painter.drawLine(0, y, w, y);
    if (drawer.m_leftToRight) {
        for (int x = drawer.m_lineStart; x <= w; x += step.width())
            painter.drawLine(x, 0, x, h);
    } else {
        for (int x = w; x >= drawer.m_lineStart; x -= step.width())
            painter.drawLine(x, 0, x, h);
    }
    painter.setPen(oldPen);
}

QSize cellSize(const ScrGrid &drawer)
{
    return {drawer.m_moduleColumnCount * drawer.m_moduleWidth,
            drawer.m_moduleRowCount * drawer.m_moduleHeight};
}

void paintNumber(QPainter &painter, const QRect &cell, int row, int column)
{
    painter.drawText(cell, Qt::AlignCenter,
                     QStringLiteral("%1%2")
                         .arg(row, 2, 10, QLatin1Char('0'))
                         .arg(column, 2, 10, QLatin1Char('0')));
}

void paintText(QPainter &painter, const ScrGrid &drawer)
{
    const QPen oldPen = painter.pen();
    const QFont oldFont = painter.font();
    QPen pen = oldPen;
    pen.setColor(drawer.m_fontColor);
    pen.setWidth(drawer.m_fontSize);
    painter.setPen(pen);
    QFont font = oldFont;
    // As many pixels as at 96 dots per inch.
    font.setPointSizeF(drawer.m_fontSize * 96.0 / painter.device()->logicalDpiY());
    if (drawer.m_fontShape >= 0 && drawer.m_fontShape <= 2) {
        font.setWeight(drawer.m_fontShape == 1 ? 75 : 50);
        font.setStyle(drawer.m_fontShape == 2 ? QFont::StyleItalic : QFont::StyleNormal);
    }
    painter.setFont(font);
    const int w = drawer.targetWidget->width();
    const int h = drawer.targetWidget->height();
    const QSize cell = cellSize(drawer);
    for (int row = 0, y = 0; y <= h; ++row, y += cell.height()) {
        int column = drawer.m_beginColumn;
        if (drawer.m_leftToRight) {
            for (int x = 0; x <= w; x += cell.width())
                paintNumber(painter, {QPoint(x, y), cell}, drawer.m_beginRow + row, column++);
        } else {
            for (int x = w - cell.width(); x >= -cell.width(); x -= cell.width())
                paintNumber(painter, {QPoint(x, y), cell}, drawer.m_beginRow + row, column++);
        }
    }
    painter.setPen(oldPen);
    painter.setFont(oldFont);
}

void paintGeneralLines(QPainter &painter, const ScrGrid &drawer)
{
    const int w = drawer.targetWidget->width();
    const int h = drawer.targetWidget->height();
    const int m = qMax(w, h);
    const int step = drawer.m_lineStep;
    for (int d = drawer.m_lineStart; drawer.m_horiLines && d <= h; d += step)
        painter.drawLine(0, d, w, d);
    for (int d = drawer.m_lineStart; drawer.m_vertLines && d <= w; d += step)
        painter.drawLine(d, 0, d, h);
    for (int d = drawer.m_lineStart; drawer.m_slantLeftLines && d <= 2 * m; d += step)
        painter.drawLine(0, d, d, 0);
    for (int d = drawer.m_lineStart; drawer.m_slantRightLines && d < 2 * m; d += step)
        painter.drawLine(0, m - d, d, m);
}

} // namespace

void paintLayers(QPainter &painter, const ScrGrid &drawer)
{
    paintGeneralLines(painter, drawer);
    paintLines(painter, drawer, {drawer.m_moduleWidth, drawer.m_moduleHeight},
               drawer.m_moduleLineColor, drawer.m_moduleLineWidth);
    paintLines(painter, drawer, cellSize(drawer), drawer.m_scanColor, drawer.m_scanLineWidth);
    paintText(painter, drawer);
}

void setResolution(QImage &image, int dotsPerInch)
{
    constexpr double inch = 0.0254; // metres
    image.setDotsPerMeterX(qRound(dotsPerInch / inch));
    image.setDotsPerMeterY(qRound(dotsPerInch / inch));
}

QImage blank(const QSize &size, qreal scale)
{
    QImage image(int(std::ceil(size.width() * scale)), int(std::ceil(size.height() * scale)),
                 QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(backdrop);
    return image;
}

void paint(QPainter &painter, const ScrGrid &drawer)
{
    const QRect window = drawer.targetWidget->rect();
    painter.setFont(drawer.targetWidget->font());
    painter.setLayoutDirection(drawer.targetWidget->layoutDirection());
    painter.fillRect(window, Qt::black);
    if (drawer.m_bgPicturePath.isEmpty())
        painter.fillRect(window, drawer.m_bgColor);
    else
        painter.drawTiledPixmap(window, drawer.m_bgPixmap);
    painter.setPen(drawer.m_pen);
    painter.setBrush(drawer.m_brush);
    paintLayers(painter, drawer);
}

QImage image(const ScrGrid &drawer, qreal scale)
{
    QImage image = blank(drawer.targetWidget->size(), scale);
    image.fill(Qt::black);
    // Points are as large as on the window.
    setResolution(image, drawer.targetWidget->logicalDpiY());
    QPainter painter(&image);
    paint(painter, drawer);
    // Qt draws the outlines of large characters a trifle differently the first time.
    paint(painter, drawer);
    return image;
}

} // namespace DirectLayout
