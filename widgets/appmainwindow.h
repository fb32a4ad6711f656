#pragma once

#include <QMainWindow>

namespace UX::Widgets {
class TitleBar;
} // namespace UX::Widgets

namespace UX::Utils {

// A main window without a system frame: it draws its own title bar and is dragged by it.
class AppMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit AppMainWindow(QWidget *parent = nullptr);

    Widgets::TitleBar *titleBar() const { return m_titleBar; }

private:
    Widgets::TitleBar *const m_titleBar;
};

} // namespace UX::Utils
