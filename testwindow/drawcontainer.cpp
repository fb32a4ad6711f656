#include "drawcontainer.h"

#include "ui_drawcontainer.h"

#include "commonhelper.h"
#include "desktopscale.h"
#include "drawerbase.h"
#include "form.h"
#include "purecolor.h"
#include "textwidth.h"
#include "windowedge.h"

#include <QAction>
#include <QCloseEvent>
#include <QCursor>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QToolTip>

#include <utility>

namespace {

constexpr int refreshIntervalMs = 100;
constexpr int pointerRestMs = 3000; // from when on the pointer is out of the pattern's way
constexpr QPoint mousePosOffset(20, 10); // up and left of the window's centre
constexpr int helperInfoMargin = 10; // right of the reminder
constexpr int helperInfoHeight = 190; // from the reminder's top to the window's bottom
constexpr int toolTipRise = 20; // the tool tip's place above the lower right corner
constexpr QSize toolTipRect(130, 60);

int widestLine(const QString &text, const QFontMetrics &metrics)
{
    int widest = 0;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString &line : lines)
        widest = qMax(widest, textWidth(metrics, line));
    return widest;
}

QPoint globalPosition(const QMouseEvent &event)
{
    return event.screenPos().toPoint();
}

} // namespace

DrawContainer::DrawContainer(QWidget *parent)
    : QWidget(parent)
    , ui(makeForm<Ui::DrawContainer>(this))
{
    setAttribute(Qt::WA_MouseTracking);
    // Nothing is painted below a pattern that hides it; see paintBackground() for the others.
    setAttribute(Qt::WA_NoSystemBackground);
    // A tool window of an inactive program would vanish from a Mac's screen.
    setAttribute(Qt::WA_MacAlwaysShowToolWindow);
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
                   | Qt::CustomizeWindowHint);
    slot_setScreenMaxSize(width(), height());
    initContextMenu();
    // In use until setKeyHelper() names the program's one helper, idle from then on.
    keyHelper = new CommonHelper(this);
    connect(keyHelper, &CommonHelper::signal_keyShiftFPressed, this,
            &DrawContainer::slot_keyShiftFPressed);
    initRefreshTimer();
    initPointerRest();
    updateLanguage();
}

DrawContainer::~DrawContainer() = default;

void DrawContainer::initContextMenu()
{
    hideAction = new QAction(this);
    hideAction->setFont(DesktopScale::font(font()));
    addAction(hideAction);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(hideAction, &QAction::triggered, this, &DrawContainer::slot_hideWindow);
}

// Repaints whatever happens, which keeps the pointer's position in the overlay current.
void DrawContainer::initRefreshTimer()
{
    refreshTimer = new QTimer(this);
    connect(refreshTimer, &QTimer::timeout, this, &DrawContainer::slot_updateContainer);
    refreshTimer->start(refreshIntervalMs);
}

// A pointer at rest does not lie on the pattern, unless it holds the window.
void DrawContainer::initPointerRest()
{
    m_pointerRest = new QTimer(this);
    m_pointerRest->setSingleShot(true);
    m_pointerRest->setInterval(pointerRestMs);
    connect(m_pointerRest, &QTimer::timeout, this, [this] {
        if (!m_dragging)
            setCursor(Qt::BlankCursor);
    });
}

void DrawContainer::setDrawer(DrawerBase *drawer, bool active)
{
    if (!drawer)
        return;
    drawer->active = active;
    currentDrawer = drawer;
}

void DrawContainer::updateLanguage()
{
    helpText = tr("[Fn+←]:显示/隐藏窗口右下角处提示\n"
                  "[Fn+→]:显示/隐藏窗口中心处提示\n"
                  "[Fn+↑]:功能向上切换\n"
                  "[Fn+↓]:功能向下切换\n"
                  "[⇧+↑↓←→]:窗口大小\n"
                  "[⇧+F/双击]:全屏/取消全屏\n"
                  "[⌘+↑↓←→]:窗口位置\n"
                  "[↑↓←→]:灰度调节\n"
                  "[Fn+Enter/Delete]:自动增加/减少灰度\n"
                  "[⇧+H]:显示/隐藏窗口\n");
    hideAction->setText(tr(" 隐藏"));
    if (colourIndex > 0)
        colourName = PureColor::translatedName(colourIndex - 1);
}

void DrawContainer::slot_keyHomePressed()
{
    showHelperInfo = !showHelperInfo;
}

void DrawContainer::slot_keyEndPressed()
{
    showMousePos = !showMousePos;
}

// Space does nothing, on purpose.
void DrawContainer::slot_keySpacePressed() { }

void DrawContainer::slot_keyShiftFPressed()
{
    if (windowState() == Qt::WindowFullScreen)
        showNormal();
    else
        showFullScreen();
}

void DrawContainer::slot_keyShiftHPressed()
{
    if (isVisible()) {
        slot_hideWindow();
    } else {
        show();
        emit signal_containerWidgetShow();
    }
}

void DrawContainer::slot_hideWindow()
{
    hide();
    emit signal_containerWidgetHide();
}

void DrawContainer::slot_updateContainer()
{
    update();
}

// Only an untranslated name is recognised, so the index follows the colour in Chinese; in
// another language the name is shown all the same and the index stays.
void DrawContainer::slot_changeSelectedDrawColor(const QColor &color)
{
    colourName = CommonHelper::getColorName(color);
    for (int index = 0; index < PureColor::count; ++index) {
        if (colourName == PureColor::sourceName(index))
            colourIndex = index + 1;
    }
}

void DrawContainer::slot_changeSelectedDrawGrey(const QString &grey)
{
    greyText = grey;
}

void DrawContainer::slot_setScreenMaxSize(int width, int height)
{
    maxWidth = width;
    maxHeight = height;
}

bool DrawContainer::shows(const DrawerBase &drawer)
{
    const auto *window = qobject_cast<const DrawContainer *>(drawer.targetWidget);
    if (!window)
        return true;
    const DrawerBase *const shown = window->drawerToShow();
    return (shown ? shown : window->currentDrawer) == &drawer;
}

bool DrawContainer::showsOrAwaits(const DrawerBase &drawer)
{
    const auto *window = qobject_cast<const DrawContainer *>(drawer.targetWidget);
    return shows(drawer) || window->currentDrawer == &drawer;
}

// An inactive drawer leaves the pattern before it on the screen.
DrawerBase *DrawContainer::drawerToShow() const
{
    return currentDrawer && currentDrawer->active ? currentDrawer : shownDrawer;
}

// As Qt would: a translucent colour is copied as it is, which dims it.
void DrawContainer::paintBackground()
{
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(rect(), palette().brush(backgroundRole()));
}

void DrawContainer::paintEvent(QPaintEvent * /*event*/)
{
    DrawerBase *before = std::exchange(shownDrawer, drawerToShow());
    if (before && before != shownDrawer)
        before->dropPictures();
    if (!shownDrawer || !shownDrawer->coversWindow())
        paintBackground();
    if (shownDrawer)
        shownDrawer->draw(true);
    if (showMousePos)
        drawMousePos();
    if (showHelperInfo)
        drawHelperInfo();
}

void DrawContainer::drawMousePos()
{
    QPainter painter(this);
    painter.setFont(DesktopScale::inPixels(font()));
    painter.setPen(Qt::white);
    const QPoint pointer = mapFromGlobal(QCursor::pos());
    QString text;
    // One pixel beyond the last column and row still counts as inside.
    if (QRect(0, 0, width() + 1, height() + 1).contains(pointer))
        text = QStringLiteral("(%1,%2)").arg(pointer.x()).arg(pointer.y());
    text += QStringLiteral("%1:%2").arg(colourName, greyText);
    const QPoint centre(width() / 2, height() / 2);
    painter.drawText(QRect(centre - mousePosOffset, size()), 0, text);
}

void DrawContainer::drawHelperInfo()
{
    const int widest = widestLine(helpText, QFontMetrics(DesktopScale::inPixels(font())));
    if (width() < widest + helperInfoMargin)
        return;
    QPainter painter(this);
    painter.setFont(DesktopScale::inPixels(font()));
    painter.setPen(Qt::white);
    const QPoint topLeft(width() - widest - helperInfoMargin, height() - helperInfoHeight);
    painter.drawText(QRect(topLeft, size()), 0, helpText);
}

void DrawContainer::findWidgetEdge(const QPoint &pointer)
{
    edge = WindowEdge::at(geometry(), pointer, edgeMargin);
    setCursor(WindowEdge::cursor(edge));
}

void DrawContainer::enterEvent(QEvent * /*event*/)
{
    m_pointerRest->start();
}

// It would come back unseen where a dialog keeps its moves from this window.
void DrawContainer::leaveEvent(QEvent * /*event*/)
{
    m_pointerRest->stop();
    if (cursor().shape() == Qt::BlankCursor)
        setCursor(WindowEdge::cursor(edge));
}

void DrawContainer::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_dragging = true;
    setCursor(Qt::PointingHandCursor);
    dragOffset = globalPosition(*event) - geometry().topLeft();
}

void DrawContainer::mouseMoveEvent(QMouseEvent *event)
{
    m_pointerRest->start();
    const QPoint pointer = globalPosition(*event);
    if (!(event->buttons() & Qt::LeftButton)) {
        findWidgetEdge(pointer);
        return;
    }
    // A full screen has no borders to drag; and after a double click the window is no longer
    // where it was pressed.
    if (!m_dragging || isFullScreen())
        return;
    if (edge != WindowEdge::None)
        resizeTo(pointer);
    else
        moveTo(pointer);
    showGeometryToolTip();
}

void DrawContainer::resizeTo(const QPoint &pointer)
{
    const QRect frame = geometry();
    const QRect wanted = WindowEdge::resized(frame, edge, pointer, {minimumSize(), maximumSize()},
                                             {maxWidth, maxHeight});
    if (wanted == frame)
        return;
    setGeometry(wanted);
    emit signal_drawWidgetSizeChange(width(), height());
}

void DrawContainer::moveTo(const QPoint &pointer)
{
    // Some window managers put a border around it, which is not the operator's concern.
    setGeometry(QRect(pointer - dragOffset, size()));
    emit signal_drawWidgetPositionChange(geometry().x(), geometry().y());
}

void DrawContainer::showGeometryToolTip()
{
    const QRect now = geometry();
    // Width and height are shown one less than they are, as they always have been.
    const QString text = tr("窗口信息：")
                         + QStringLiteral("\n(X,Y):(%1,%2)\n(W,H):(%3,%4)")
                               .arg(now.x())
                               .arg(now.y())
                               .arg(now.right() - now.left())
                               .arg(now.bottom() - now.top());
    const QPoint place = geometry().topLeft() + QPoint(width(), height() - toolTipRise);
    QToolTip::showText(place, text, this, QRect(QPoint(width(), height()), toolTipRect));
}

void DrawContainer::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_dragging = false;
    m_pointerRest->start();
    if (edge != WindowEdge::None)
        findWidgetEdge(globalPosition(*event));
}

void DrawContainer::mouseDoubleClickEvent(QMouseEvent * /*event*/)
{
    slot_keyShiftFPressed();
}

// Closed from outside, by the window manager, it is as good as hidden by its own menu.
void DrawContainer::closeEvent(QCloseEvent *event)
{
    if (event->spontaneous())
        emit signal_containerWidgetHide();
}

void DrawContainer::keyPressEvent(QKeyEvent *event)
{
    keyHelper->dealKeyPressEvent(event);
}
