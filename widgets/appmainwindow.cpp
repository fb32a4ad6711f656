#include "appmainwindow.h"

#include "titlebar.h"

namespace UX::Utils {

namespace {

// The hints beside the frameless one tell the desktop that the window can be minimised.
constexpr Qt::WindowFlags framelessMainWindow =
    Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint;

} // namespace

AppMainWindow::AppMainWindow(QWidget *parent)
    : QMainWindow(parent, framelessMainWindow)
    , m_titleBar(new Widgets::TitleBar(this))
    , m_dragger(this)
{
    setMenuWidget(m_titleBar);
    m_titleBar->installEventFilter(this);
}

AppMainWindow::~AppMainWindow() = default;

bool AppMainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_titleBar && m_dragger.handleEvent(event))
        return true;
    return QMainWindow::eventFilter(watched, event);
}

} // namespace UX::Utils
