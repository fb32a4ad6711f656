#pragma once

#include "canvas.h"
#include "directramp.h"
#include "gradualchange.h"

#include <QImage>

// The gradient drawer on a canvas of its own.
struct DrawerRig
{
    static constexpr QRgb backdrop = 0xff0a141e;

    explicit DrawerRig(const QSize &size = QSize(300, 40))
        : canvas(size)
        , drawer(&canvas)
    {
        canvas.setDrawer(&drawer);
    }

    void set(int level, const QColor &color)
    {
        drawer.slot_gradualChangeColor(short(level), color);
    }

    // What it paints on an image of a format that windows have.
    QImage painted(QImage::Format format = QImage::Format_RGB32)
    {
        QImage image(canvas.size(), format);
        image.fill(backdrop);
        canvas.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        return image;
    }

    bool isExact(const DirectRamp &ramp, QImage::Format format = QImage::Format_RGB32)
    {
        set(ramp.level, ramp.color);
        return painted(format) == ramp.image(canvas.size(), format);
    }

    Canvas canvas;
    GradualChange drawer;
};
