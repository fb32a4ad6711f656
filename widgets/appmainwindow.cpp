#include "appmainwindow.h"

#include "titlebar.h"

namespace UX::Utils {

// The hints beside the frameless one tell the desktop that the window can be minimised.
AppMainWindow::AppMainWindow(QWidget *parent)
    : QMainWindow(parent, Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint
                              | Qt::WindowMinimizeButtonHint)
    , m_titleBar(new Widgets::TitleBar(this))
{
    setMenuWidget(m_titleBar);
}

} // namespace UX::Utils
