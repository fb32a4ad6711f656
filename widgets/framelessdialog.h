#pragma once

#include <QColor>
#include <QDialog>
#include <QPointer>

class QAbstractButton;
class QPushButton;

namespace UX::Widgets {

class TitleBar;

// A dialog without a system frame: its own title bar with nothing but the title and the close
// button, the subclass's content, and a button row.
class FramelessDialog : public QDialog
{
    Q_OBJECT

public:
    // What every dialog of the program fills itself with.
    static QColor m_defaultBackgroundColor;

    // f is as for QDialog; the dialog is frameless whatever it says.
    explicit FramelessDialog(QWidget *parent = nullptr, Qt::WindowFlags f = Qt::WindowFlags());
    ~FramelessDialog() override;

    // Takes ownership of layout and lays it out between the title bar and the button row. Like the
    // function of QWidget that it hides, it works once.
    void setLayout(QLayout *layout);
    // The button row goes with the last visible button.
    void setOKButtonVisible(bool visible);
    void setCancelButtonVisible(bool visible);

    // The first time, the dialog appears over the middle of its parent window. It opens above the
    // program's windows that are always on top, and stays there when one of them is clicked.
    void setVisible(bool visible) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

    // Gives button the look of the buttons in the row.
    static void styleButton(QAbstractButton *button);

    // All owned by the dialog and never null.
    TitleBar *m_titleBar = nullptr;
    QWidget *m_content = nullptr;
    QPushButton *m_okButton = nullptr;
    QPushButton *m_cancelButton = nullptr;

    // Brings what is built to the desktop's scale, the first time that it is called; showing does.
    void scaleToDesktop();

private:
    void buildFrame();
    QWidget *createButtonRow();
    void retranslate();
    void updateButtonRow();
    void prepareToShow();
    QWidget *findWindowOnTop() const;
    void attachToOwner();
    void lowerOwner();
    void centreOnParent();

    QWidget *m_buttonRow = nullptr;
    // Where the desktop draws no shadow, the dialog would run into the window behind it.
    QWidget *m_edge = nullptr;
    QPointer<QWidget> m_windowBelow; // always on top, and yet below this dialog
    QPointer<QWindow> m_liftedOwner; // on top for the time that this dialog is open
    bool m_scaled = false;
};

} // namespace UX::Widgets
