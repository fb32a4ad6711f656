#pragma once

class QSlider;
class QSpinBox;
class QString;

// A slider and a spin box that always show the same value.
namespace SliderSpinBoxPair {

// Each sets the other from now on.
void link(QSlider *slider, QSpinBox *spinBox);

// Gives both the same range.
void setRange(QSlider *slider, QSpinBox *spinBox, int minimum, int maximum);

// What assistive technology reads for the two, since neither has a text of its own.
void setAccessibleName(QSlider *slider, QSpinBox *spinBox, const QString &name);

// The look and manners of every spin box of the panels: no focus ring of the
// platform, no context menu.
void prepare(QSpinBox *spinBox);

} // namespace SliderSpinBoxPair
