#pragma once

#include <QImage>

class QElapsedTimer;
class QPainter;

// A picture that is painted once and then shown at the price of a blit. One that takes long is
// painted in parts, one at every show, so that the control window goes on answering.
//
// It has items in layers, one above the other, over a background.
class PictureInParts
{
public:
    virtual ~PictureInParts() = default;

    bool isComplete() const { return m_layer == m_layerCount; }

    // Not shown for now: its memory is given back, and it is painted again when it is shown.
    void drop();

protected:
    explicit PictureInParts(int layerCount);

    // Begins from the background if the picture is another one, of another size in pixels, or
    // for another screen. False where it cannot be shown so: by a painter that does more than
    // move and scale, or where memory does not suffice.
    bool showPart(QPainter &painter, const QSize &size, bool isAnother);

    // Device pixels to a pixel.
    qreal scale() const { return m_scale; }

    // Before anything is painted, on a painter whose units are pixels.
    virtual void preparePainter(QPainter &painter) const = 0;
    virtual void drawBackground(QPainter &painter) = 0;
    virtual qint64 itemCount(int layer) const = 0;
    // A few from this one on, which take a few milliseconds at most; the next one.
    virtual qint64 drawItems(QPainter &painter, int layer, qint64 from) = 0;

private:
    void restart(const QSize &pixels, int resolution);
    void paintPart(const QElapsedTimer &clock);

    const int m_layerCount;
    QImage m_image; // in device pixels, of the resolution of what it is shown on
    qreal m_scale = 0;
    qint64 m_blitMs = 15; // of the last show; a guess before the first
    // The next item.
    int m_layer;
    qint64 m_item = 0;
};
