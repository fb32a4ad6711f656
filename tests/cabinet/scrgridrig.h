#pragma once

#include "canvas.h"
#include "directlayout.h"
#include "scrgrid.h"

#include <QElapsedTimer>
#include <QImage>

namespace LayoutColor {

constexpr QRgb black = 0xff000000;
constexpr QRgb red = 0xffff0000;
constexpr QRgb green = 0xff00ff00;
constexpr QRgb blue = 0xff0000ff;

} // namespace LayoutColor

// The colours of a first start; the layout is shown.
inline void showFirstStart(ScrGrid &drawer)
{
    drawer.m_bgColor = Qt::black;
    drawer.m_fontColor = Qt::yellow;
    drawer.m_moduleLineColor = Qt::red;
    drawer.m_scanColor = Qt::blue;
    drawer.m_layoutOn = true;
    drawer.active = true;
}

// A cabinet drawer on a canvas that shows it.
struct ScrGridRig
{
    explicit ScrGridRig(const QSize &size = QSize(256, 256))
        : canvas(size)
        , drawer(&canvas)
    {
        canvas.setDrawer(&drawer);
        showFirstStart(drawer);
    }

    // After one paint, which suffices for a small window on a quick machine only.
    QImage paintedOnce(qreal scale = 1)
    {
        QImage image = DirectLayout::blank(canvas.size(), scale);
        canvas.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        return image;
    }

    // In full.
    QImage painted(qreal scale = 1)
    {
        constexpr int deadlineMs = 60000;
        QElapsedTimer clock;
        clock.start();
        QImage image = paintedOnce(scale);
        while (!drawer.isDrawnInFull() && !clock.hasExpired(deadlineMs))
            image = paintedOnce(scale);
        return image;
    }

    bool isExact(qreal scale = 1) { return painted(scale) == DirectLayout::image(drawer, scale); }

    Canvas canvas;
    ScrGrid drawer;
};
