#include "placekeeper.h"

#include "wayland.h"
#include "x11windows.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScreen>
#include <QWindow>
#include <QtPlatformHeaders/QXcbWindowFunctions>

#include <algorithm>
#include <utility>

namespace {

// Nobody tells a window that another one has been put in front of it.
constexpr int liftIntervalMs = 100;

// So often the window manager may refuse a request, and so often anybody.
constexpr int refusalsToLeave = 3;
constexpr int mostRefusals = 10;

bool isShown(const QWidget *window)
{
    return window->isVisible() && !window->isMinimized();
}

QWidgetList shownWindows(Qt::WindowType type)
{
    QWidgetList shown;
    const QWidgetList windows = QApplication::topLevelWidgets();
    std::copy_if(windows.cbegin(), windows.cend(), std::back_inserter(shown),
                 [type](auto *one) { return isShown(one) && one->windowType() == type; });
    return shown;
}

} // namespace

PlaceKeeper::PlaceKeeper(QWidget *window, ManagerEcho *echo, QObject *parent)
    : QObject(parent)
    , m_window(window)
    , m_echo(echo)
{
    m_echo->setParent(this);
    qApp->installEventFilter(this);
    connect(m_echo, &ManagerEcho::answered, this, &PlaceKeeper::check);
    // What has the keyboard may be put in front.
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &PlaceKeeper::look);
    connect(&m_liftTimer, &QTimer::timeout, this, &PlaceKeeper::lift);
}

void PlaceKeeper::setPlace(const QRect &place)
{
    m_place = place;
    request();
}

// A window manager resizes what fills a screen with the screen, but not always, and only as long as
// it manages it.
void PlaceKeeper::followScreens()
{
    if (m_isFull)
        request();
}

// Null while the screen to be filled is off.
QRect PlaceKeeper::target() const
{
    if (!m_isFull)
        return m_place;
    const QList<QScreen *> screens = QGuiApplication::screens();
    const auto found = std::find_if(screens.cbegin(), screens.cend(),
                                    [this](auto *screen) { return screen->name() == m_screen; });
    return found == screens.cend() ? QRect() : (*found)->geometry();
}

// Qt only knows what the window manager says.
QRect PlaceKeeper::actual() const
{
    if (isOnWayland())
        return {target().topLeft(), m_window->size()};
    const QRect known = X11Windows::geometry(m_window->internalWinId());
    return known.isNull() ? m_window->geometry() : known;
}

void PlaceKeeper::request()
{
    m_refusals = 0;
    chooseScreen();
    // A full screen asked for by its state alone comes back from there as it was.
    if (!m_isFull)
        m_window->setGeometry(m_place);
    if (m_isOut)
        put();
    m_isSettled = !m_echo->ask();
}

// Qt asks for the one that the window is on as far as it knows.
void PlaceKeeper::chooseScreen()
{
    QScreen *screen = QGuiApplication::screenAt(m_place.center());
    if (isOnWayland() && !m_isFull && screen && m_window->windowHandle())
        m_window->windowHandle()->setScreen(screen);
}

void PlaceKeeper::look()
{
    if (!m_echo->ask())
        check();
}

// The window manager has handled what was asked of it.
void PlaceKeeper::check()
{
    if (m_isOut)
        lift();
    if (!isShown(m_window) || m_isNew || m_isPressed || target().isNull())
        return;
    // Some window managers maximise what is as large as the screen.
    const bool isOwnState = m_window->windowState() == state();
    const bool isInPlace =
        isOwnState && actual() == target() && (m_window->geometry() == target() || isOnWayland());
    // Some window managers end a full screen whenever another window gets the keyboard, or wipe
    // the mark of it from a window that is out of their hands.
    const bool mayFollow =
        m_isSettled && (!m_isFull || m_window->isActiveWindow()) && (isOwnState || !m_isOut);
    if (!isInPlace && mayFollow && !m_isFull && !m_window->isFullScreen()) {
        emit displaced(actual());
    } else if (!isInPlace && mayFollow) {
        followState();
    } else if (isInPlace && (m_isOut || !X11Windows::isCovered(m_window->winId()))) {
        m_isSettled = true;
        m_refusals = 0;
    } else if (++m_refusals < mostRefusals) {
        insist();
    }
}

// What the window manager does to a new window it need not do to one that is there.
void PlaceKeeper::insist()
{
    if (!m_isOut && m_refusals == refusalsToLeave)
        leaveManager();
    put();
    m_echo->ask();
}

// By way of an ordinary window: no window manager moves a window that fills a screen.
void PlaceKeeper::put()
{
    const QScopedValueRollback<bool> changing(m_isChanging, true);
    m_window->setWindowState(Qt::WindowNoState);
    m_window->setGeometry(m_place);
    keepState();
    if (m_isOut && !target().isNull())
        X11Windows::place(m_window->winId(), target());
}

// A window manager ends the full screen of a window that is hidden.
void PlaceKeeper::keepState()
{
    const QScopedValueRollback<bool> changing(m_isChanging, true);
    m_window->setWindowState(state());
}

// With the open dialogs, to keep them in front.
void PlaceKeeper::leaveManager()
{
    QWidget *active = QApplication::activeWindow();
    m_isOut = true;
    m_liftTimer.start(liftIntervalMs);
    const QWidgetList windows = QWidgetList{m_window} + shownWindows(Qt::Dialog);
    for (const QWidget *window : windows) {
        window->windowHandle()->setFlag(Qt::BypassWindowManagerHint);
        X11Windows::unmap(window->internalWinId());
        window->windowHandle()->raise();
    }
    lift();
    if (active)
        giveKeyboardTo(active);
}

void PlaceKeeper::lift()
{
    if (!m_window->isVisible())
        return;
    QVector<WId> ids;
    const QWidgetList windows = QWidgetList{m_window} + shownWindows(Qt::Dialog)
                                + shownWindows(Qt::Popup) + shownWindows(Qt::ToolTip);
    // A widget does not notice that Qt has made its window anew, as with another screen.
    for (const QWidget *window : windows)
        ids.append(window->windowHandle()->winId());
    X11Windows::lift(ids);
}

bool PlaceKeeper::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && !m_isChanging)
        windowEvent(event);
    if (watched->isWidgetType())
        passKeyboard(static_cast<QWidget *>(watched), event->type());
    return QObject::eventFilter(watched, event);
}

// Dialogs go the way of the test window, to be in front of it, and such windows get the keyboard
// from nobody else. Some window managers give it to nobody when a window is gone.
void PlaceKeeper::passKeyboard(QWidget *widget, QEvent::Type event)
{
    QWidget *window = widget->window();
    const bool isDialog = window->windowType() == Qt::Dialog;
    if (!isDialog && window != m_window)
        return;
    if (event == QEvent::Hide && widget == window) {
        giveKeyboardTo(window->parentWidget() ? window->parentWidget()->window() : m_window);
    } else if (event == QEvent::Show && widget == window && isDialog && m_isOut) {
        window->windowHandle()->setFlag(Qt::BypassWindowManagerHint);
        giveKeyboardTo(window);
    } else if (event == QEvent::MouseButtonPress && m_isOut) {
        giveKeyboardTo(window);
    }
}

// Once the event is handled: what is modal until then would take it. The keys work in the control
// window too.
void PlaceKeeper::giveKeyboardTo(QWidget *window)
{
    QTimer::singleShot(0, this, [this, window = QPointer<QWidget>(window)] {
        const QWidgetList heirs = shownWindows(Qt::Window);
        QWidget *heir = window == m_window && !heirs.isEmpty() ? heirs.first() : window.data();
        if (!heir)
            return;
        heir->activateWindow();
        // A window manager may think that it never lost the keyboard.
        if (m_isOut)
            X11Windows::focus(heir->internalWinId());
    });
}

// Only what comes from outside is spontaneous.
void PlaceKeeper::windowEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
        if (!event->spontaneous())
            shown();
        break;
    case QEvent::Paint:
        if (std::exchange(m_isNew, false))
            look();
        break;
    case QEvent::WindowStateChange:
        if (!event->spontaneous())
            followState();
        else if (m_window->isVisible())
            look();
        else
            keepState();
        break;
    case QEvent::ScreenChangeInternal:
        chooseScreen();
        break;
    case QEvent::Move:
    case QEvent::Resize:
        if (event->spontaneous())
            look();
        break;
    case QEvent::MouseButtonPress:
        // Another button opens the menu, which takes the release.
        m_isPressed = static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton;
        break;
    case QEvent::MouseButtonRelease:
        m_isPressed = false;
        look();
        break;
    default:
        break;
    }
}

void PlaceKeeper::shown()
{
    m_isNew = true;
    m_isPressed = false;
    // What is a mere tool many X11 window managers do not let fill the screen.
    QXcbWindowFunctions::setWmWindowType(m_window->windowHandle(), QXcbWindowFunctions::Normal);
    request();
}

void PlaceKeeper::followState()
{
    m_isFull = m_window->isFullScreen();
    m_window->winId(); // it may never have been shown
    // Qt does not look again when it is the screens that have moved.
    const QScreen *screen = isOnWayland() ? nullptr : QGuiApplication::screenAt(actual().center());
    m_screen = (screen ? screen : m_window->windowHandle()->screen())->name();
    request();
}
