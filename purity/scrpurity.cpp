#include "scrpurity.h"

#include "purecolor.h"

#include <QPainter>
#include <QWidget>

ScrPurity::ScrPurity(QWidget *target)
    : DrawerBase(target)
{ }

void ScrPurity::draw(bool paint)
{
    if (!paint)
        return;
    QPainter painter(targetWidget);
    painter.fillRect(0, 0, targetWidget->width(), targetWidget->height(),
                     getGrayScaleColor(color, alpha));
}

bool ScrPurity::coversWindow() const
{
    return color.alpha() == 255; // dimming keeps it
}

void ScrPurity::slot_colorChanged(const QColor &newColor)
{
    active = true;
    color = newColor;
    targetWidget->update();
}

void ScrPurity::slot_AlphaChanged(int newAlpha)
{
    active = true;
    alpha = newAlpha;
    targetWidget->update();
    emit signal_puritySelect(true);
}
