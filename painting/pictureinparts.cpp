#include "pictureinparts.h"

#include "painterscale.h"

#include <QElapsedTimer>
#include <QPainter>

#include <cmath>

namespace {

// Less than the time between two paintings of the test window; the blit is part of it.
constexpr qint64 partMs = 55;

int dotsPerMeter(int dotsPerInch)
{
    constexpr qreal inch = 0.0254; // metres
    return qRound(dotsPerInch / inch);
}

} // namespace

PictureInParts::PictureInParts(int layerCount)
    : m_layerCount(layerCount)
    , m_layer(layerCount)
{ }

bool PictureInParts::showPart(QPainter &painter, const QSize &size, bool isAnother)
{
    const qreal scale = plainScale(painter);
    if (scale <= 0) {
        drop();
        return false;
    }
    QElapsedTimer clock;
    clock.start();
    const QSize pixels(int(std::ceil(size.width() * scale)), int(std::ceil(size.height() * scale)));
    const int resolution = dotsPerMeter(painter.device()->logicalDpiY());
    if (isAnother || m_image.size() != pixels || m_scale != scale
        || m_image.dotsPerMeterY() != resolution) {
        m_scale = scale;
        restart(pixels, resolution);
    }
    if (!isComplete())
        paintPart(clock);
    if (m_image.isNull())
        return false;
    const QTransform before = painter.worldTransform();
    painter.scale(1 / scale, 1 / scale);
    const qint64 painted = clock.elapsed();
    painter.drawImage(0, 0, m_image);
    m_blitMs = clock.elapsed() - painted;
    painter.setWorldTransform(before);
    return true;
}

void PictureInParts::drop()
{
    m_image = QImage();
    m_layer = m_layerCount;
}

void PictureInParts::restart(const QSize &pixels, int resolution)
{
    if (m_image.size() != pixels) {
        drop(); // never two in memory at a time
        m_image = QImage(pixels, QImage::Format_RGB32);
        if (m_image.isNull())
            return;
    }
    // Points are as large as on the window.
    m_image.setDotsPerMeterX(resolution);
    m_image.setDotsPerMeterY(resolution);
    QPainter painter(&m_image);
    painter.scale(m_scale, m_scale);
    preparePainter(painter);
    drawBackground(painter);
    m_layer = 0;
    m_item = 0;
}

void PictureInParts::paintPart(const QElapsedTimer &clock)
{
    QPainter painter(&m_image);
    painter.scale(m_scale, m_scale);
    preparePainter(painter);
    do {
        if (m_item < itemCount(m_layer)) {
            m_item = drawItems(painter, m_layer, m_item);
        } else {
            ++m_layer;
            m_item = 0;
        }
    } while (!isComplete() && clock.elapsed() < partMs - m_blitMs);
}
