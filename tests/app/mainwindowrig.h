#pragma once

#include <QRgb>
#include <QVariantMap>

#include <memory>

class DrawContainer;
class MainWindow;
class QTabWidget;

// A main window with its settings file beside the test program.
class MainWindowRig
{
public:
    MainWindowRig();
    ~MainWindowRig();

    static QString settingsPath();

    // Starts afresh, with a settings file of these values (without "/setting/").
    MainWindow &start(const QVariantMap &values = {});
    void end();

    MainWindow &window() { return *m_window; }
    QTabWidget *tabs();
    static DrawContainer *testWindow();
    static QRgb shownPixel();
    // Whether this is what the overlay at the test window's centre says.
    static bool overlaySays(const QString &text);

    template<typename Widget>
    Widget *find(const char *name = nullptr);

private:
    std::unique_ptr<MainWindow> m_window;
};

#include "mainwindow.h"

template<typename Widget>
Widget *MainWindowRig::find(const char *name)
{
    return m_window->findChild<Widget *>(QString::fromLatin1(name));
}
