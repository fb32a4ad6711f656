#include "filedialog.h"

#include "desktopscale.h"

#include <QFileDialog>

#include <utility>

namespace FileDialog {
namespace {

Answer &givenAnswer()
{
    static Answer answer;
    return answer;
}

} // namespace

// As QFileDialog::getOpenFileName(), but in front of the test window, which is always on top and
// may cover the whole desktop.
QString getOpenFileName(QWidget *parent, const QString &title, const QString &start,
                        const QString &filter)
{
    if (const Answer &answer = givenAnswer())
        return answer(start);
    QFileDialog dialog(parent, title, start, filter);
    dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
    dialog.setFont(DesktopScale::font(dialog.font()));
    dialog.setFileMode(QFileDialog::ExistingFile);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return dialog.selectedFiles().value(0);
}

void setAnswer(Answer answer)
{
    givenAnswer() = std::move(answer);
}

} // namespace FileDialog
