#pragma once

#include "xconnection.h"

#include <QColor>
#include <QRect>
#include <QString>
#include <QVector>

#include <memory>

/// A top-level window of some client, as the X server knew it when asked.
struct WindowInfo
{
    /// 0 when there is no such window.
    WindowId id = 0;
    QString title;
    qint64 processId = 0;
    /// The client's own area without the window manager's frame, in root
    /// coordinates.
    QRect geometry;
    /// Whether it and all windows around it are mapped.
    bool isMapped = false;
    /// A menu or tool tip, which no window manager places.
    bool isPopup = false;
};

/// Finds the windows of a program and asks the window manager to act on them.
class WindowTree
{
public:
    /// \a connection must outlive it.
    explicit WindowTree(XConnection &connection);

    /// The top-level windows that carry this process id, menus and tool tips
    /// included, hidden ones too.
    QVector<WindowInfo> ofProcess(qint64 processId) const;
    WindowInfo info(WindowId window) const;

    WindowId active() const;
    /// Gives a window the keyboard; wait until active() says so.
    void activate(WindowId window);
    /// Asks it to close, as the close button of a frame does.
    void close(WindowId window);
    void minimise(WindowId window);
    /// Ends its full screen, as a window manager's own shortcut does.
    void endFullScreen(WindowId window);
    /// Moves its client area to this place in root coordinates.
    void move(WindowId window, const QPoint &position);
    /// Moves and resizes its client area to this place in root coordinates.
    void place(WindowId window, const QRect &place);

    /// A window of this test's own, there until its owner lets go of it.
    class OwnWindow
    {
    public:
        OwnWindow(XConnection &connection, WindowId id)
            : m_connection(connection)
            , m_id(id)
        { }
        ~OwnWindow();
        Q_DISABLE_COPY(OwnWindow)

        WindowId id() const { return m_id; }

    private:
        XConnection &m_connection;
        WindowId m_id;
    };
    /// An ordinary window with this client area, as far as the window manager agrees.
    std::unique_ptr<OwnWindow> addWindow(const QRect &place, QRgb colour);
    /// A panel at the lower edge of the screen.
    std::unique_ptr<OwnWindow> addDock(const QRect &place, QRgb colour);

    /// Whether the program behind the window handles its events: sends a ping
    /// and waits for the answer, but no longer than \a deadlineMs (scaled).
    bool answersPing(WindowId window, int deadlineMs = 10000);

    bool hasWindowManager() const;
    /// Leaves one virtual desktop, so that nothing can switch to another.
    void useOneDesktop();
    /// Returns when the window manager has handled all events until now; false
    /// if it does not within the usual deadline.
    bool syncWithWindowManager();

private:
    WindowId createWindow(const QRect &place, QRgb colour);
    std::unique_ptr<OwnWindow> show(WindowId window);
    QVector<WindowId> topLevels() const;
    void askWindowManager(WindowId window, const char *message, long first, long second);

    XConnection &m_connection;
    /// Never mapped; asking about it is how to know that the window manager answers.
    WindowId m_ownWindow = 0;
    long m_pingNumber = 0;
    int m_syncNumber = 0;
};
