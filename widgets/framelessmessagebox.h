#pragma once

#include "framelessdialog.h"

#include <QMessageBox>

class QDialogButtonBox;

namespace UX::Widgets {

// A modal message box in the frameless frame, with the arguments of QMessageBox.
//
// The result of the dialog is the QMessageBox::StandardButton that was clicked. Closing it without
// a click counts as the escape button, found by the rules of QMessageBox; where no button can be
// taken for it, the box cannot be closed without a choice.
class FramelessMessageBox : public FramelessDialog
{
    Q_OBJECT

public:
    // Without any button the box gets an OK button.
    FramelessMessageBox(QMessageBox::Icon icon, const QString &title, const QString &text,
                        QMessageBox::StandardButtons buttons = QMessageBox::NoButton,
                        QWidget *parent = nullptr,
                        Qt::WindowFlags f = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    ~FramelessMessageBox() override;

    // The push button for a standard button, owned by the box; null if the box has none such.
    QPushButton *button(QMessageBox::StandardButton which) const;
    // NoButton until the box was answered.
    QMessageBox::StandardButton clickedButton() const;

    // Before it is shown, the box grows to the height that its text needs at its width.
    void setVisible(bool visible) override;

    // Answers with the escape button.
    void reject() override;

protected:
    bool event(QEvent *event) override;

private:
    void growToText();
    void buildContent(QMessageBox::Icon icon, const QString &text);
    void createButtons(QMessageBox::StandardButtons buttons);
    void retranslateButtons();
    void answer(QAbstractButton *button);
    QPushButton *defaultButton() const;
    QMessageBox::StandardButton escapeButton() const;

    QDialogButtonBox *const m_buttonBox;
};

} // namespace UX::Widgets
