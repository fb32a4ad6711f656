#include "application.h"

#include <QKeyEvent>

Application::Application(int &argc, char **argv)
    : QApplication(argc, argv)
    , m_mainWindow(nullptr)
{
    connect(this, &Application::signal_keyPress, &m_mainWindow, &MainWindow::slot_keyPressed);
    initTermination();
}

// However the program is told to end, it ends by its event loop or has saved before.
void Application::initTermination()
{
    connect(&m_terminationSignals, &TerminationSignals::requested, this, &QCoreApplication::quit);
    // At the end of the desktop session Qt's own answer would be to close all windows one by
    // one; saving is what is wanted, and quitting comes from the session manager.
    setFallbackSessionManagementEnabled(false);
    connect(this, &QGuiApplication::commitDataRequest, &m_mainWindow, &MainWindow::saveSettings);
}

// Qt would close all windows first, and the test window would be remembered as hidden.
bool Application::event(QEvent *event)
{
    if (event->type() != QEvent::Quit)
        return QApplication::event(event);
    exit();
    return true;
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyRelease:
        return true;
    case QEvent::KeyPress: {
        auto *keyEvent = static_cast<QKeyEvent *>(event);
        if (keyNumberPress(keyEvent))
            break;
        // A key comes here first on its way to the window, and ends here: so each press is
        // emitted once, though it would be sent to the window and then to the widget.
        emit signal_keyPress(keyEvent);
        return true;
    }
    default:
        break;
    }
    return QApplication::notify(receiver, event);
}

bool Application::keyNumberPress(QKeyEvent *event)
{
    const int key = event->key();
    return (key >= Qt::Key_0 && key <= Qt::Key_9) || key == Qt::Key_Backspace
           || key == Qt::Key_Delete;
}
