#include "sliderspinboxpair.h"

#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>

SliderSpinBoxPair::SliderSpinBoxPair(QSlider *slider, QSpinBox *spinBox)
    : m_slider(slider)
    , m_spinBox(spinBox)
{
    QObject::connect(slider, &QSlider::valueChanged, spinBox, &QSpinBox::setValue);
    QObject::connect(spinBox, qOverload<int>(&QSpinBox::valueChanged), slider, &QSlider::setValue);
    prepare(spinBox);
}

int SliderSpinBoxPair::value() const
{
    return m_slider->value();
}

void SliderSpinBoxPair::setValue(int value)
{
    m_slider->setValue(value);
}

void SliderSpinBoxPair::setRange(int minimum, int maximum)
{
    const QSignalBlocker quietSlider(m_slider);
    const QSignalBlocker quietSpinBox(m_spinBox);
    m_slider->setRange(minimum, maximum);
    m_spinBox->setRange(minimum, maximum);
}

void SliderSpinBoxPair::setQuietly(int value)
{
    const QSignalBlocker quietSlider(m_slider);
    const QSignalBlocker quietSpinBox(m_spinBox);
    m_slider->setValue(value);
    m_spinBox->setValue(value);
}

void SliderSpinBoxPair::setAccessibleName(const QString &name)
{
    m_slider->setAccessibleName(name);
    m_spinBox->setAccessibleName(name);
}

void SliderSpinBoxPair::prepare(QSpinBox *spinBox)
{
    spinBox->setAttribute(Qt::WA_MacShowFocusRect, false);
    spinBox->setContextMenuPolicy(Qt::NoContextMenu);
}
