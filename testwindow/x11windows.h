#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QVector>
#include <QWidget>

struct xcb_connection_t;

// What Qt does not tell about windows on an X server, and does not do with them. Where there is
// none it knows nothing and does nothing.
class X11Windows
    : public QObject
    , private QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    // Connects where isAvailable().
    X11Windows();
    ~X11Windows() override;

    // Whether the program runs on an X server, and this build can talk to one.
    static bool isAvailable();

    // Where the window is, without any frame; null if that cannot be found out.
    QRect geometry(WId window) const;
    // Whether a mouse button is held, over whatever window.
    bool isButtonHeld() const;
    // Whether a panel of the desktop lies over a part of it.
    bool isBelowPanel(WId window) const;
    // Moves and resizes the window, and returns when it is there.
    void place(WId window, const QRect &place);
    // Hides the window in a way that makes a window manager let go of it, and shows it again.
    void withdraw(WId window);
    void map(WId window);
    // Gives the window the keyboard.
    void focus(WId window);
    // Lifts the window above all managed ones and lowers it below the lowest of `above`. Windows
    // that other programs show without the window manager, such as menus, stay where they are.
    void lift(WId window, const QVector<WId> &above);

signals:
    // Something about the place of one of this program's windows has changed, which Qt may not
    // have been told yet.
    void configured(WId window);

private:
    bool nativeEventFilter(const QByteArray &type, void *message, long *result) override;
    QVector<quint32> children(quint32 window) const;
    quint32 frame(quint32 window) const;
    bool hasProperty(quint32 window, quint32 property, int depth) const;
    bool isShown(quint32 window) const;
    void stack(quint32 window, quint32 sibling, quint32 mode);

    xcb_connection_t *m_connection = nullptr;
    quint32 m_root = 0;
    quint32 m_state = 0; // marks what a window manager manages
    quint32 m_strut = 0; // marks a panel, and so does the next
    quint32 m_partialStrut = 0;
};
