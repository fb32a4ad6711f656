#include "colordialog.h"

#include <QColorDialog>

#include <utility>

namespace ColorDialog {
namespace {

Answer &givenAnswer()
{
    static Answer answer;
    return answer;
}

} // namespace

// As QColorDialog::getColor() with no parent, no title of its own and no options, but in front
// of the test window, which is always on top and may cover the whole desktop.
QColor getColor(const QColor &initial)
{
    if (const Answer &answer = givenAnswer())
        return answer(initial);
    QColorDialog dialog;
    dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
    dialog.setCurrentColor(initial);
    dialog.exec();
    return dialog.selectedColor();
}

void setAnswer(Answer answer)
{
    givenAnswer() = std::move(answer);
}

} // namespace ColorDialog
