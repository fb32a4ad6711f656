#pragma once

#include "cabinetlayout.h"
#include "cellnumbers.h"
#include "linetrace.h"
#include "pictureinparts.h"

#include <array>

// The picture of a layout, which is painted again when the layout is another one.
class LayoutPicture : public PictureInParts
{
public:
    LayoutPicture()
        : PictureInParts(CabinetLayout::LayerCount)
    { }

    void show(QPainter &painter, const CabinetLayout &layout);

protected:
    void preparePainter(QPainter &painter) const override { m_layout.preparePainter(painter); }
    void drawBackground(QPainter &painter) override;
    qint64 itemCount(int layer) const override
    {
        return m_layout.itemCount(CabinetLayout::Layer(layer));
    }
    qint64 drawItems(QPainter &painter, int layer, qint64 from) override;

private:
    bool canFill(CabinetLayout::Layer layer) const;
    void fillLines(QPainter &painter, CabinetLayout::Layer layer, qint64 from, qint64 to);

    CabinetLayout m_layout;
    CellNumbers m_numbers;
    bool m_numbersReady = false;
    std::array<LineTrace, CabinetLayout::Numbers> m_traces; // by layer
};
