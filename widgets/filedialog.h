#pragma once

#include <QString>

#include <functional>

class QWidget;

// The one place where the program asks the operator for a file.
namespace FileDialog {

// Waits for the operator's choice of an existing file; an empty path when there was none.
// `start` is the folder to begin in, or a file in it that is selected. The filter is as in
// QFileDialog.
QString getOpenFileName(QWidget *parent, const QString &title, const QString &start,
                        const QString &filter);

// What a test lets the operator choose, given where the dialog begins. No dialog opens as long
// as there is an answer; an empty function takes it away.
using Answer = std::function<QString(const QString &start)>;
void setAnswer(Answer answer);

} // namespace FileDialog
