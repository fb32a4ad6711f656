#include "layoutpicture.h"

#include <QElapsedTimer>
#include <QPainter>

#include <cmath>

using Layer = CabinetLayout::Layer;

namespace {

// Less than the time between two paintings of the test window.
constexpr int partMs = 60;
constexpr qint64 strokesAtATime = 4;
constexpr int widestFilledLine = 255;

bool isWhole(qreal value)
{
    return qFuzzyIsNull(value - std::round(value));
}

int dotsPerMeter(int dotsPerInch)
{
    constexpr qreal inch = 0.0254; // metres
    return qRound(dotsPerInch / inch);
}

// Device pixels to a pixel if the painter does no more than move by whole numbers and enlarge;
// otherwise 0.
qreal plainScale(const QPainter &painter)
{
    const QTransform &transform = painter.deviceTransform();
    if (transform.type() > QTransform::TxScale || transform.m11() <= 0
        || !qFuzzyCompare(transform.m11(), transform.m22()) || !isWhole(transform.dx())
        || !isWhole(transform.dy()))
        return 0;
    return transform.m11();
}

int devicePixels(int length, qreal scale)
{
    return int(std::ceil(length * scale));
}

void paintDirectly(QPainter &painter, const CabinetLayout &layout)
{
    layout.preparePainter(painter);
    layout.drawBackground(painter);
    for (int layer = 0; layer < CabinetLayout::LayerCount; ++layer)
        layout.drawLayer(painter, Layer(layer));
}

} // namespace

void LayoutPicture::show(QPainter &painter, const CabinetLayout &layout)
{
    if (layout.size.isEmpty())
        return;
    const qreal scale = plainScale(painter);
    if (scale > 0) {
        const QSize pixels(devicePixels(layout.size.width(), scale),
                           devicePixels(layout.size.height(), scale));
        if (m_image.size() != pixels || m_scale != scale || m_layout != layout)
            begin(layout, pixels, scale);
        if (!isComplete())
            proceed();
    }
    if (scale <= 0 || m_image.isNull()) {
        paintDirectly(painter, layout);
        return;
    }
    const QTransform before = painter.worldTransform();
    painter.scale(1 / scale, 1 / scale);
    painter.drawImage(0, 0, m_image);
    painter.setWorldTransform(before);
}

void LayoutPicture::begin(const CabinetLayout &layout, const QSize &pixels, qreal scale)
{
    m_layout = layout;
    m_scale = scale;
    m_layer = 0;
    m_stroke = 0;
    if (m_image.size() != pixels) {
        m_image = QImage(); // never two in memory at a time
        m_image = QImage(pixels, QImage::Format_RGB32);
    }
    if (m_image.isNull()) {
        m_layer = CabinetLayout::LayerCount;
        return;
    }
    // Points are as large as on the window.
    m_image.setDotsPerMeterX(dotsPerMeter(layout.dotsPerInch.width()));
    m_image.setDotsPerMeterY(dotsPerMeter(layout.dotsPerInch.height()));
    QPainter painter(&m_image);
    painter.scale(m_scale, m_scale);
    layout.preparePainter(painter);
    layout.drawBackground(painter);
    m_numbersReady = isWhole(m_scale) && m_numbers.prepare(layout, painter);
}

void LayoutPicture::proceed()
{
    QElapsedTimer clock;
    clock.start();
    QPainter painter(&m_image);
    painter.scale(m_scale, m_scale);
    m_layout.preparePainter(painter);
    while (!isComplete()) {
        const auto layer = Layer(m_layer);
        const qint64 count = m_layout.strokeCount(layer);
        const bool byRow = layer == CabinetLayout::Numbers && m_numbersReady;
        const qint64 step = byRow ? m_layout.columnCount() : strokesAtATime;
        for (; m_stroke < count; m_stroke += step) {
            if (clock.hasExpired(partMs))
                return;
            drawStrokes(painter, layer, m_stroke, qMin(m_stroke + step, count));
        }
        ++m_layer;
        m_stroke = 0;
    }
}

void LayoutPicture::drawStrokes(QPainter &painter, Layer layer, qint64 from, qint64 to)
{
    if (layer == CabinetLayout::Numbers && m_numbersReady) {
        m_numbers.drawRow(painter, m_layout, from / m_layout.columnCount());
    } else if (layer != CabinetLayout::Numbers
               && canFill(m_layout.linePen(m_layout.pen, layer), layer)) {
        fillLines(painter, layer, from, to);
    } else {
        m_layout.drawStrokes(painter, layer, from, to);
    }
}

// Lines that have nothing special about them are rectangles, which are filled many times faster.
// Wide rows are fast anyway.
bool LayoutPicture::canFill(const QPen &linePen, Layer layer) const
{
    const bool rows = layer == CabinetLayout::ModuleRows || layer == CabinetLayout::ScanRows;
    const bool columns =
        layer == CabinetLayout::ModuleColumns || layer == CabinetLayout::ScanColumns;
    QPen plain(linePen.color());
    plain.setWidth(linePen.width());
    return (columns || (rows && linePen.width() <= 1)) && linePen == plain
           && linePen.width() <= widestFilledLine && isWhole(m_scale);
}

// In device pixels.
void LayoutPicture::fillLines(QPainter &painter, Layer layer, qint64 from, qint64 to)
{
    const bool rows = layer == CabinetLayout::ModuleRows || layer == CabinetLayout::ScanRows;
    const QPen pen = m_layout.linePen(m_layout.pen, layer);
    LineTrace &trace = m_traces[size_t(layer)];
    trace.measure(rows ? Qt::Horizontal : Qt::Vertical, pen,
                  rows ? m_layout.size.width() : m_layout.size.height(), m_layout.reach(layer),
                  int(std::round(m_scale)));
    const QTransform before = painter.worldTransform();
    for (qint64 stroke = from; stroke < to; ++stroke) {
        const int position = m_layout.position(layer, stroke);
        if (position < 0) {
            m_layout.drawStrokes(painter, layer, stroke, stroke + 1);
            continue;
        }
        const PixelRun run = trace.covered(position);
        painter.resetTransform();
        if (rows)
            painter.fillRect(0, run.first, m_image.width(), run.count, pen.color());
        else
            painter.fillRect(run.first, 0, run.count, m_image.height(), pen.color());
        painter.setWorldTransform(before);
    }
}
