#include "sliderspinboxpair.h"

#include <QSlider>
#include <QSpinBox>

namespace SliderSpinBoxPair {

void link(QSlider *slider, QSpinBox *spinBox)
{
    QObject::connect(slider, &QSlider::valueChanged, spinBox, &QSpinBox::setValue);
    QObject::connect(spinBox, qOverload<int>(&QSpinBox::valueChanged), slider, &QSlider::setValue);
}

void setRange(QSlider *slider, QSpinBox *spinBox, int minimum, int maximum)
{
    slider->setRange(minimum, maximum);
    spinBox->setRange(minimum, maximum);
}

void setAccessibleName(QSlider *slider, QSpinBox *spinBox, const QString &name)
{
    slider->setAccessibleName(name);
    spinBox->setAccessibleName(name);
}

void prepare(QSpinBox *spinBox)
{
    spinBox->setAttribute(Qt::WA_MacShowFocusRect, false);
    spinBox->setContextMenuPolicy(Qt::NoContextMenu);
}

} // namespace SliderSpinBoxPair
