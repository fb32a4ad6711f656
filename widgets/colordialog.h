#pragma once

#include <functional>

class QColor;

// The one place where the program asks the operator for a colour.
namespace ColorDialog {

// Waits for the operator's choice; an invalid colour when there was none.
QColor getColor(const QColor &initial);

// What a test lets the operator choose, given the initial colour. No dialog opens as long as
// there is an answer; an empty function takes it away.
using Answer = std::function<QColor(const QColor &initial)>;
void setAnswer(Answer answer);

} // namespace ColorDialog
