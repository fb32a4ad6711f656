#pragma once

#include "windowdragger.h"

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
    ~AppMainWindow() override;

    Widgets::TitleBar *titleBar() const { return m_titleBar; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Widgets::TitleBar *const m_titleBar;
    Widgets::WindowDragger m_dragger;
};

} // namespace UX::Utils
