#pragma once

#include <QString>

class CustomerQlabel;
class QColor;

// A field of one colour that is clicked to choose another.
namespace Swatch {

// "background-color: rgb(1,2,3)": what the field wears, and what the settings file keeps of it.
QString style(const QColor &color);

// Whether the text is exactly such a style, of channels of up to three digits.
bool isStyle(const QString &text);

// Lets the keyboard reach the label and the Space key click it.
void makeClickable(CustomerQlabel *label);

} // namespace Swatch
