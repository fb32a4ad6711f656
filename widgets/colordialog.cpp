#include "colordialog.h"

#include "desktopscale.h"

#include <QColorDialog>

#include <utility>

namespace ColorDialog {
namespace {

Answer &givenAnswer()
{
    static Answer answer;
    return answer;
}

// As the static functions of QColorDialog, but in front of the test window, which is always on
// top and may cover the whole desktop.
QColor ask(const QColor &initial, QWidget *parent, QColorDialog::ColorDialogOptions options)
{
    if (const Answer &answer = givenAnswer())
        return answer(initial);
    QColorDialog dialog(parent);
    dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
    dialog.setFont(DesktopScale::font(dialog.font()));
    dialog.setOptions(options);
    dialog.setCurrentColor(initial);
    dialog.exec();
    return dialog.selectedColor();
}

} // namespace

QColor getColor(const QColor &initial, QWidget *parent)
{
    return ask(initial, parent, {});
}

QColor getRgba(const QColor &initial, QWidget *parent)
{
    return ask(QColor::fromRgba(initial.rgba()), parent, QColorDialog::ShowAlphaChannel);
}

void setAnswer(Answer answer)
{
    givenAnswer() = std::move(answer);
}

} // namespace ColorDialog
