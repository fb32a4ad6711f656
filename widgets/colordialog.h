#pragma once

#include <functional>

class QColor;
class QWidget;

// The one place where the program asks the operator for a colour.
namespace ColorDialog {

// Waits for the operator's choice; an invalid colour when there was none. The dialog is a child
// of parent, if there is one.
QColor getColor(const QColor &initial, QWidget *parent = nullptr);

// The same with the choice of an alpha value.
QColor getRgba(const QColor &initial, QWidget *parent = nullptr);

// What a test lets the operator choose, given the initial colour. No dialog opens as long as
// there is an answer; an empty function takes it away.
using Answer = std::function<QColor(const QColor &initial)>;
void setAnswer(Answer answer);

} // namespace ColorDialog
