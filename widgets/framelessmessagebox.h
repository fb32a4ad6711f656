#pragma once

#include "framelessdialog.h"

#include <QMessageBox>

class QDialogButtonBox;

namespace UX::Widgets {

// A modal message box in the frameless frame, with the arguments of QMessageBox. Its result is the
// QMessageBox::StandardButton that was clicked, or NoButton when it was closed without a click.
class FramelessMessageBox : public FramelessDialog
{
    Q_OBJECT

public:
    // Without any button the box gets an OK button.
    FramelessMessageBox(QMessageBox::Icon icon, const QString &title, const QString &text,
                        QMessageBox::StandardButtons buttons = QMessageBox::NoButton,
                        QWidget *parent = nullptr,
                        Qt::WindowFlags f = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);

    // The push button for a standard button, owned by the box; null if the box has none such.
    QPushButton *button(QMessageBox::StandardButton which) const;

    // Before it is shown, the box grows to the height that its text needs at its width.
    void setVisible(bool visible) override;

private:
    void buildContent(QMessageBox::Icon icon, const QString &text);
    void createButtons(QMessageBox::StandardButtons buttons);

    QDialogButtonBox *const m_buttonBox;
};

} // namespace UX::Widgets
