#pragma once

class QSlider;
class QSpinBox;
class QString;

// A slider and a spin box that always show the same value.
class SliderSpinBoxPair
{
public:
    // Both are borrowed. Each sets the other from now on.
    SliderSpinBoxPair(QSlider *slider, QSpinBox *spinBox);

    int value() const;
    void setValue(int value);
    // Neither tells that its value has changed for this.
    void setRange(int minimum, int maximum);
    void setQuietly(int value);

    // What assistive technology reads for the two, since neither has a text of its own.
    void setAccessibleName(const QString &name);

    // The look and manners of every spin box of the program, in a pair or not: no focus ring of
    // the platform, no context menu.
    static void prepare(QSpinBox *spinBox);

private:
    QSlider *m_slider;
    QSpinBox *m_spinBox;
};
