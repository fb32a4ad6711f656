#include "layoutpicture.h"

#include "painterscale.h"

#include <QPainter>

#include <utility>

using Layer = CabinetLayout::Layer;

namespace {

constexpr qint64 itemsAtATime = 4;
constexpr int widestFilledLine = 255;

} // namespace

void LayoutPicture::show(QPainter &painter, const CabinetLayout &layout)
{
    if (layout.size.isEmpty())
        return;
    const bool isAnother = std::exchange(m_layout, layout) != layout;
    if (showPart(painter, layout.size, isAnother))
        return;
    layout.drawBackground(painter);
    layout.draw(painter);
}

void LayoutPicture::drawBackground(QPainter &painter)
{
    m_layout.drawBackground(painter);
    m_numbersReady = isWhole(scale()) && m_numbers.prepare(m_layout, painter);
}

qint64 LayoutPicture::drawItems(QPainter &painter, int layer, qint64 from)
{
    if (layer == CabinetLayout::Numbers && m_numbersReady)
        return m_numbers.drawRow(painter, m_layout, from);
    const qint64 to = qMin(from + itemsAtATime, itemCount(layer));
    if (canFill(Layer(layer)))
        fillLines(painter, Layer(layer), from, to);
    else
        m_layout.drawItems(painter, Layer(layer), from, to);
    return to;
}

// Lines that have nothing special about them are rectangles, which are filled many times faster.
// Wide rows are fast anyway.
bool LayoutPicture::canFill(Layer layer) const
{
    if (layer < CabinetLayout::ModuleRows || layer == CabinetLayout::Numbers)
        return false;
    const QPen linePen = m_layout.linePen(m_layout.m_pen, layer);
    const QPen plain(linePen.color(), linePen.width());
    const bool isWideRow =
        m_layout.family(layer).direction() == LineFamily::Horizontal && linePen.width() > 1;
    return !isWideRow && linePen == plain && linePen.width() <= widestFilledLine
           && isWhole(scale());
}

// In device pixels.
void LayoutPicture::fillLines(QPainter &painter, Layer layer, qint64 from, qint64 to)
{
    const LineFamily family = m_layout.family(layer);
    const QPen pen = m_layout.linePen(m_layout.m_pen, layer);
    LineTrace &trace = m_traces[size_t(layer)];
    trace.measure(family, pen.width(), qRound(scale()));
    const QTransform before = painter.worldTransform();
    painter.resetTransform();
    for (qint64 item = from; item < to; ++item)
        painter.fillRect(trace.covered(family.position(item)), pen.color());
    painter.setWorldTransform(before);
}
