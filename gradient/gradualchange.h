#pragma once

#include "drawerbase.h"

#include <QBrush>

// Fills the test window with ramps from black to one colour, side by side; one ramp is
// as many pixels long as it has levels.
class GradualChange : public DrawerBase
{
    Q_OBJECT

public:
    explicit GradualChange(QWidget *target);

    void draw(bool paint) override;
    bool coversWindow() const override;

public slots:
    // The length of a ramp in pixels (below 1 all is black), and the colour at its end.
    void slot_gradualChangeColor(short level, const QColor &color);

private:
    void paintRows(QPainter &painter) const;

    QBrush m_ramps = Qt::black; // as the painter shows a ramp without extent
};
