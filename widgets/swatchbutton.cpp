#include "swatchbutton.h"

#include <QStyle>
#include <QStyleOptionButton>
#include <QStylePainter>

SwatchButton::SwatchButton(QWidget *parent)
    : QRadioButton(parent)
{ }

bool SwatchButton::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

void SwatchButton::paintEvent(QPaintEvent * /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawPrimitive(QStyle::PE_Widget, option);
    painter.drawItemText(rect(), Qt::AlignCenter, option.palette, isEnabled(), text(),
                         QPalette::WindowText);
}
