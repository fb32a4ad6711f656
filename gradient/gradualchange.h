#pragma once

#include "drawerbase.h"
#include "paintedpicture.h"

#include <QColor>
#include <QPen>

#include <tuple>

class QPainter;
class QSize;

// Fills the test window with ramps from black to one colour, side by side; one ramp is
// as many pixels long as it has levels.
class GradualChange : public DrawerBase
{
    Q_OBJECT

public:
    explicit GradualChange(QWidget *target);

    void draw(bool paint) override;

    // The pattern of a window of this size, computed by the painter for every pixel.
    // draw() shows exactly this, from a copy.
    void paintReference(QPainter &painter, const QSize &size) const;

public slots:
    // The length of a ramp in pixels, any number, and the colour at its end.
    void slot_gradualChangeColor(short level, const QColor &color);

private:
    void paintCopies(QPainter &painter, const QSize &size);

    qint16 m_level = 0;
    QColor m_color = Qt::red;
    PaintedPicture<std::tuple<qint16, QColor, QPen>> m_strip;
};
