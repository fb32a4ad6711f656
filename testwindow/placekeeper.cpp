#include "placekeeper.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QWindow>
#include <QtPlatformHeaders/QXcbWindowFunctions>

#include <algorithm>

namespace {

// Nobody tells a window that another one has been put in front of it.
constexpr int liftIntervalMs = 100;

// So often the window manager may refuse a request, and so often anybody.
constexpr int refusalsToLeave = 3;
constexpr int mostRefusals = 10;

int area(const QRect &rectangle)
{
    return rectangle.isValid() ? rectangle.width() * rectangle.height() : 0;
}

bool isScreen(const QRect &rectangle)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    return std::any_of(screens.cbegin(), screens.cend(),
                       [&](const QScreen *screen) { return screen->geometry() == rectangle; });
}

// The screen that shows most of the place.
QScreen *screenOf(const QRect &place)
{
    QScreen *best = QGuiApplication::primaryScreen();
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (QScreen *screen : screens) {
        if (area(screen->geometry() & place) > area(best->geometry() & place))
            best = screen;
    }
    return best;
}

// Null while it is minimised.
QWidget *controlWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.cbegin(), windows.cend(), [](const QWidget *window) {
        return window->isVisible() && !window->isMinimized() && window->windowType() == Qt::Window;
    });
    return found == windows.cend() ? nullptr : *found;
}

bool isInFront(const QWidget *window)
{
    return window->isVisible() && window->windowHandle() && window->windowType() != Qt::Window;
}

} // namespace

PlaceKeeper::PlaceKeeper(QWidget *window, ManagerEcho *echo, QObject *parent)
    : QObject(parent)
    , m_window(window)
    , m_echo(echo)
{
    m_echo->setParent(this);
    m_window->installEventFilter(this);
    connect(m_echo, &ManagerEcho::answered, this, &PlaceKeeper::check);
    connect(&m_x11, &X11Windows::configured, this, [this](WId id) {
        if (id == m_window->internalWinId() && !m_echo->isAwaited())
            m_echo->ask();
    });
    // What has the keyboard may be put in front.
    connect(qApp, &QGuiApplication::focusWindowChanged, m_echo, &ManagerEcho::ask);
    connect(&m_liftTimer, &QTimer::timeout, this, &PlaceKeeper::lift);
    const QList<QScreen *> screens = QGuiApplication::screens();
    std::for_each(screens.cbegin(), screens.cend(), [this](QScreen *screen) { follow(screen); });
    connect(qApp, &QGuiApplication::screenAdded, this, &PlaceKeeper::follow);
}

PlaceKeeper::~PlaceKeeper() = default;

void PlaceKeeper::setPlace(const QRect &place)
{
    m_place = place;
    request();
}

// A window manager resizes what fills a screen with the screen, but only as long as it manages it.
void PlaceKeeper::follow(QScreen *screen)
{
    if (screen->geometry() == m_screen) // it was off
        m_filled = screen;
    connect(screen, &QScreen::geometryChanged, this, [this, screen](const QRect &now) {
        if (!m_isFull || m_filled != screen)
            return;
        m_screen = now;
        request();
    });
}

QRect PlaceKeeper::target() const
{
    return m_isFull ? m_screen : m_place;
}

// Qt only knows what the window manager says.
QRect PlaceKeeper::actual() const
{
    const QRect known = m_x11.geometry(m_window->internalWinId());
    return known.isNull() ? m_window->geometry() : known;
}

void PlaceKeeper::request()
{
    const QScopedValueRollback<bool> changing(m_isChanging, true);
    m_refusals = 0;
    // A full screen asked for by its state alone comes back from there as it was.
    if (!m_isFull)
        m_window->setGeometry(m_place);
    if (m_isOut)
        put();
    m_isSettled = !m_echo->ask();
}

// The window manager has handled what was asked of it.
void PlaceKeeper::check()
{
    const QScopedValueRollback<bool> changing(m_isChanging, true);
    if (m_isLeaving)
        finishLeaving();
    // Somebody may be moving it just now, which Qt will be told.
    if (m_isSettled && m_x11.isButtonHeld())
        return;
    const bool isInPlace = actual() == target() && m_window->geometry() == target();
    if (!m_window->isVisible() || m_isNew || m_isPressed || (m_isFull && !isScreen(m_screen)))
        return;
    const bool isBelow = !m_isOut && m_x11.isBelowPanel(m_window->internalWinId());
    if (isInPlace && !isBelow && m_window->isFullScreen() == m_isFull) {
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
    else if (!m_isOut && m_isFull && m_refusals == 1)
        enterFullScreen();
    else
        put();
    m_echo->ask();
}

void PlaceKeeper::put()
{
    if (m_window->isFullScreen() != m_isFull)
        m_window->setWindowState(m_isFull ? Qt::WindowFullScreen : Qt::WindowNoState);
    if (m_isOut)
        m_x11.place(m_window->winId(), target());
    else if (m_isFull) // which a widget takes for ended when it is moved
        m_window->windowHandle()->setGeometry(m_screen);
    else
        m_window->setGeometry(m_place);
}

// Anew: no window manager moves a window that fills a screen.
void PlaceKeeper::enterFullScreen()
{
    m_window->setWindowState(Qt::WindowNoState);
    m_window->setGeometry(m_place);
    m_window->setWindowState(Qt::WindowFullScreen);
}

// The dialogs too, to be in front of the test window. The window manager must have let go of them
// before they are shown again; to Qt they are visible meanwhile.
void PlaceKeeper::leaveManager()
{
    m_isLeaving = true;
    m_hadKeyboard = QApplication::activeWindow();
    m_leaving = {m_window};
    const QWidgetList windows = QApplication::topLevelWidgets();
    std::copy_if(windows.cbegin(), windows.cend(), std::back_inserter(m_leaving),
                 [](const QWidget *window) {
                     return window->isVisible() && window->windowType() == Qt::Dialog;
                 });
    for (const QWidget *window : qAsConst(m_leaving)) {
        window->windowHandle()->setFlag(Qt::BypassWindowManagerHint);
        m_x11.withdraw(window->internalWinId());
    }
}

void PlaceKeeper::finishLeaving()
{
    m_isLeaving = false;
    m_isOut = true;
    m_liftTimer.start(liftIntervalMs);
    m_window->removeEventFilter(this);
    qApp->installEventFilter(this);
    for (const QWidget *window : qAsConst(m_leaving)) {
        if (window && window->isVisible())
            m_x11.map(window->internalWinId());
    }
    put();
    if (m_hadKeyboard == m_window)
        handKeyboardOn(m_window);
    else if (m_hadKeyboard)
        m_hadKeyboard->activateWindow();
}

void PlaceKeeper::lift()
{
    if (!m_window->isVisible())
        return;
    QVector<WId> inFront;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (window != m_window && isInFront(window))
            inFront.append(window->internalWinId());
    }
    m_x11.lift(m_window->winId(), inFront);
}

bool PlaceKeeper::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window)
        windowEvent(event);
    if (m_isOut && watched->isWidgetType())
        standInForManager(static_cast<QWidget *>(watched), event->type());
    return QObject::eventFilter(watched, event);
}

// Only what comes from outside is spontaneous.
void PlaceKeeper::windowEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
        if (!m_isChanging && !event->spontaneous())
            shown();
        break;
    case QEvent::Paint:
        if (m_isNew)
            m_echo->ask();
        m_isNew = false;
        break;
    case QEvent::WindowStateChange:
        stateChanged(event->spontaneous());
        break;
    case QEvent::Move:
    case QEvent::Resize:
        if (event->spontaneous())
            notice();
        break;
    case QEvent::MouseButtonPress:
        // Another button opens the menu, which takes the release.
        m_isPressed = static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton;
        break;
    case QEvent::MouseButtonRelease:
        m_isPressed = false;
        m_echo->ask();
        break;
    case QEvent::Hide:
        if (!m_isChanging && !event->spontaneous())
            handKeyboardOn(m_window);
        break;
    default:
        break;
    }
}

// Dialogs go the way of the test window, to be in front of it; and such windows get the keyboard
// from nobody else.
void PlaceKeeper::standInForManager(QWidget *widget, QEvent::Type event)
{
    QWidget *window = widget->window();
    if (event == QEvent::Show && widget->isWindow() && window->windowType() == Qt::Dialog) {
        window->windowHandle()->setFlag(Qt::BypassWindowManagerHint);
        QTimer::singleShot(0, window, &QWidget::activateWindow);
    }
    if (window->windowType() == Qt::Popup || !window->windowHandle()
        || !window->windowHandle()->flags().testFlag(Qt::BypassWindowManagerHint))
        return;
    // The keys work in the control window too, which the window manager knows about.
    QWidget *receiver = window == m_window && controlWindow() ? controlWindow() : window;
    if (event == QEvent::MouseButtonPress && !receiver->isActiveWindow())
        receiver->activateWindow();
    if (event == QEvent::Hide && widget->isWindow() && widget != m_window)
        handKeyboardOn(window);
}

void PlaceKeeper::shown()
{
    m_isNew = true;
    m_isPressed = false;
    // What is a mere tool many X11 window managers do not let fill the screen.
    QXcbWindowFunctions::setWmWindowType(m_window->windowHandle(), QXcbWindowFunctions::Normal);
    request();
}

void PlaceKeeper::stateChanged(bool isSpontaneous)
{
    if (m_isChanging || m_window->isFullScreen() == m_isFull)
        return;
    if (isSpontaneous && m_echo->ask()) // true or not, its place will tell
        return;
    m_isFull = m_window->isFullScreen();
    if (m_isFull) {
        m_filled = screenOf(m_place);
        m_screen = m_filled->geometry();
    }
    request();
}

// A move before the window manager has had its say may be what it says.
void PlaceKeeper::notice()
{
    const QRect now = actual();
    if (m_isSettled && !m_isNew && !m_isPressed && !m_isFull && now != m_place)
        emit displaced(now);
}

void PlaceKeeper::handKeyboardOn(const QWidget *from)
{
    const QWidget *active = QApplication::activeWindow();
    QWidget *heir = from->parentWidget() ? from->parentWidget()->window() : controlWindow();
    if ((active && active != from) || !heir)
        return;
    heir->activateWindow();
    // A window manager may think that it never lost the keyboard.
    if (m_isOut)
        m_x11.focus(heir->internalWinId());
}
