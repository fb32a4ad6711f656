#pragma once

#include "windowdragger.h"

#include <QMainWindow>

namespace UX::Widgets {
class TitleBar;
class WindowFrame;
} // namespace UX::Widgets

namespace UX::Utils {

// A main window without a system frame: it draws its own title bar and is dragged by it.
class AppMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit AppMainWindow(QWidget *parent = nullptr);
    ~AppMainWindow() override;

    Widgets::TitleBar *titleBar() const;

    // What stands below the title bar; as the functions of QMainWindow otherwise, which they hide
    // so that a generated form fills the window without knowing of the frame.
    QWidget *centralWidget() const;
    void setCentralWidget(QWidget *widget);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Widgets::WindowFrame *const m_frame;
    Widgets::WindowDragger m_dragger;
};

} // namespace UX::Utils
