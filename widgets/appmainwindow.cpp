#include "appmainwindow.h"

#include "titlebar.h"
#include "windowframe.h"

namespace UX::Utils {

namespace {

// The hints beside the frameless one tell the desktop that the window can be minimised.
constexpr Qt::WindowFlags framelessMainWindow =
    Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint;

} // namespace

AppMainWindow::AppMainWindow(QWidget *parent)
    : QMainWindow(parent, framelessMainWindow)
    , m_frame(new Widgets::WindowFrame(this))
    , m_dragger(this)
{
    QMainWindow::setCentralWidget(m_frame);
    titleBar()->installEventFilter(this);
}

AppMainWindow::~AppMainWindow() = default;

Widgets::TitleBar *AppMainWindow::titleBar() const
{
    return m_frame->titleBar();
}

QWidget *AppMainWindow::centralWidget() const
{
    return m_frame->content();
}

void AppMainWindow::setCentralWidget(QWidget *widget)
{
    m_frame->setContent(widget);
}

bool AppMainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == titleBar() && m_dragger.handleEvent(event))
        return true;
    return QMainWindow::eventFilter(watched, event);
}

} // namespace UX::Utils
