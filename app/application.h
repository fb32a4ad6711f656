#pragma once

#include "mainwindow.h"
#include "terminationsignals.h"

#include <QApplication>

class QKeyEvent;

// The application: owns the main window and takes every key press away from normal
// delivery, so that the shortcuts work whatever has the focus.
class Application : public QApplication
{
    Q_OBJECT

public:
    Application(int &argc, char **argv);

    MainWindow &mainWindow() { return m_mainWindow; }

    // Key releases reach nobody. Of the key presses only those of keyNumberPress()
    // are delivered; the others become signal_keyPress.
    bool notify(QObject *receiver, QEvent *event) override;

    // Whether the key passes through to the focused widget: digits, Backspace and
    // Delete, with any modifiers.
    static bool keyNumberPress(QKeyEvent *event);

signals:
    // The event lives only as long as the emission.
    void signal_keyPress(QKeyEvent *event);

protected:
    bool event(QEvent *event) override;

private:
    void initTermination();

    TerminationSignals m_terminationSignals; // until the main window has saved
    MainWindow m_mainWindow;
};
