#pragma once

#include "gridtiles.h"
#include "pictureinparts.h"

// The picture of a grid. It is put together from tiles, at every step of a scrolling grid; but
// where the first lines are further from the edge than the next ones from them, which lasts up
// to the next step, it is painted once.
class GridPicture : public PictureInParts
{
public:
    GridPicture();

    void show(QPainter &painter, const GridPattern &pattern);

protected:
    void preparePainter(QPainter &painter) const override;
    void drawBackground(QPainter &painter) override;
    qint64 itemCount(int layer) const override;
    qint64 drawItems(QPainter &painter, int layer, qint64 from) override;

private:
    GridTiles m_tiles;
    GridPattern m_pattern; // of the picture that is painted once
};
