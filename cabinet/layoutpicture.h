#pragma once

#include "cabinetlayout.h"
#include "cellnumbers.h"
#include "linetrace.h"

#include <QImage>

#include <array>

class QPainter;

// Shows a layout from a finished picture, at the cost of a copy, and paints the picture anew
// when the layout is another one. A picture that takes long is painted a part at a time, one
// at every show, so that the control window goes on answering.
class LayoutPicture
{
public:
    void show(QPainter &painter, const CabinetLayout &layout);

    bool isComplete() const { return m_layer == CabinetLayout::LayerCount; }

private:
    void begin(const CabinetLayout &layout, const QSize &pixels, qreal scale);
    void proceed();
    void drawStrokes(QPainter &painter, CabinetLayout::Layer layer, qint64 from, qint64 to);
    bool canFill(const QPen &linePen, CabinetLayout::Layer layer) const;
    void fillLines(QPainter &painter, CabinetLayout::Layer layer, qint64 from, qint64 to);

    CabinetLayout m_layout; // of the picture
    QImage m_image; // in device pixels, of the window's resolution
    qreal m_scale = 0; // device pixels to a pixel
    CellNumbers m_numbers;
    bool m_numbersReady = false;
    std::array<LineTrace, CabinetLayout::Numbers> m_traces; // by layer
    // The next stroke.
    int m_layer = CabinetLayout::LayerCount;
    qint64 m_stroke = 0;
};
