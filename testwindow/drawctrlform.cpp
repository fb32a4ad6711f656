#include "drawctrlform.h"

#include "ui_drawctrlform.h"

#include "commonhelper.h"
#include "form.h"
#include "placekeeper.h"
#include "settingsrules.h"
#include "wayland.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QScreen>
#include <QSettings>

#include <utility>

namespace {

namespace Key {
constexpr QLatin1String x = latin1("/setting/testWindowPointX");
constexpr QLatin1String y = latin1("/setting/testWindowPointY");
constexpr QLatin1String width = latin1("/setting/testWindowWidth");
constexpr QLatin1String height = latin1("/setting/testWindowHeight");
} // namespace Key

constexpr int defaultSize = 256;
constexpr int sizeWithoutSettings = 200;

} // namespace

DrawCtrlForm::DrawCtrlForm(QWidget *testWindow_, QSettings *settings_, QWidget *parent)
    : QWidget(parent)
    , ui(makeForm<Ui::DrawCtrlForm>(this))
    , m_pairs{{{ui->hScrollBarX, ui->spinBoxX},
               {ui->hScrollBarY, ui->spinBoxY},
               {ui->hScrollBarWidth, ui->spinBoxWidth},
               {ui->hScrollBarHeight, ui->spinBoxHeight}}}
    , testWindow(testWindow_)
    , settings(settings_)
    , m_saveSoon([this] { saveWindowBaseInfo(); }, this)
    , m_keeper(new PlaceKeeper(testWindow, new ManagerEcho, this))
{
    for (QPushButton *button : {ui->pushButtonShow, ui->pushButtonHide})
        button->setObjectName(QStringLiteral("normalContentPushBtn"));
    initSlots();
    initCtrls();
    testWindow->installEventFilter(this);
    initWindowPosition();
}

DrawCtrlForm::~DrawCtrlForm()
{
    saveWindowBaseInfo();
}

void DrawCtrlForm::initSlots()
{
    connect(ui->hScrollBarX, &QSlider::valueChanged, this, &DrawCtrlForm::slot_MoveX);
    connect(ui->hScrollBarY, &QSlider::valueChanged, this, &DrawCtrlForm::slot_MoveY);
    connect(ui->hScrollBarWidth, &QSlider::valueChanged, this, &DrawCtrlForm::slot_resetWidth);
    connect(ui->hScrollBarHeight, &QSlider::valueChanged, this, &DrawCtrlForm::slot_resetHeight);
    connect(m_keeper, &PlaceKeeper::displaced, this, &DrawCtrlForm::follow);
    connect(ui->pushButtonShow, &QPushButton::clicked, this, &DrawCtrlForm::slot_showPushed);
    connect(ui->pushButtonHide, &QPushButton::clicked, this, &DrawCtrlForm::slot_HidePushed);
}

void DrawCtrlForm::initCtrls()
{
    getScreenSize();
    ui->pushButtonShow->setEnabled(false);
    ui->labelWayland->setVisible(isOnWayland());
    // The desktop widget reports every kind of change in one place, on all of Qt 5.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    connect(desktop, &QDesktopWidget::screenCountChanged, this,
            &DrawCtrlForm::slot_dealScreenChange);
    connect(desktop, &QDesktopWidget::resized, this, &DrawCtrlForm::slot_dealScreenChange);
    connect(desktop, &QDesktopWidget::primaryScreenChanged, this, &DrawCtrlForm::getScreenSize);
    QT_WARNING_POP
}

// A change of the desktop changes what the controls can show. The test window is touched only
// to bring it back to a placement that has room again; the stored placement never is.
void DrawCtrlForm::getScreenSize()
{
    desktop = QApplication::desktop();
    QSize sum(0, 0);
    QRegion region;
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens) {
        sum += screen->size();
        region += screen->geometry();
    }
    setRanges(sum);
    setControls(m_placement);
    m_hasRoom = controlsRectangle() == m_placement && region.intersects(m_placement);
    if (m_hasRoom)
        m_keeper->setPlace(m_placement);
    m_keeper->followScreens();
    emit signal_screenMaxSizeChanged(sum.width(), sum.height());
}

void DrawCtrlForm::setRanges(const QSize &desktopSize)
{
    const int w = desktopSize.width();
    const int h = desktopSize.height();
    m_pairs[X].setRange(1 - w, w - 1);
    m_pairs[Y].setRange(1 - h, h - 1);
    m_pairs[Width].setRange(1, w);
    m_pairs[Height].setRange(1, h);
}

// Shows the rectangle, clipped to the ranges, without any effect on the test window.
void DrawCtrlForm::setControls(const QRect &rectangle)
{
    m_pairs[X].setQuietly(rectangle.x());
    m_pairs[Y].setQuietly(rectangle.y());
    m_pairs[Width].setQuietly(rectangle.width());
    m_pairs[Height].setQuietly(rectangle.height());
}

QRect DrawCtrlForm::controlsRectangle() const
{
    return {m_pairs[X].value(), m_pairs[Y].value(), m_pairs[Width].value(),
            m_pairs[Height].value()};
}

void DrawCtrlForm::slot_dealScreenChange(int /*screen*/)
{
    m_areScreensNew = true;
    getScreenSize();
}

void DrawCtrlForm::initWindowPosition()
{
    if (!settings) {
        restore({0, 0, sizeWithoutSettings, sizeWithoutSettings});
        return;
    }
    // Far beyond every desktop, and small enough to add up as the edges of a rectangle.
    const auto stored = [this](const auto &key) {
        return qBound(-QWIDGETSIZE_MAX, settings->value(key).toInt(), QWIDGETSIZE_MAX);
    };
    // Specified: a stored height is answered with the stored width, for a square test window.
    const int width = stored(Key::width) < 1 ? defaultSize : stored(Key::width);
    const int height = stored(Key::height) < 1 ? defaultSize : stored(Key::width);
    restore({stored(Key::x), stored(Key::y), width, height});
    const bool isShown = !settings->value(hiddenKey).toBool();
    testWindow->setVisible(isShown);
    showVisibility(isShown);
}

void DrawCtrlForm::restore(const QRect &rectangle)
{
    m_placement = rectangle;
    m_areScreensNew = false;
    setControls(rectangle);
    m_keeper->setPlace(controlsRectangle());
}

// Notes what the operator has changed, and returns it as far as the ranges allow. What he leaves
// alone stays as it is, in the file too, even if it is beyond the ranges just now.
QRect DrawCtrlForm::adopt(const QRect &rectangle)
{
    const QRect before = m_keeper->place();
    setControls(rectangle);
    const QRect within = controlsRectangle();
    const auto changed = [&](const QRect &kept) {
        const auto pick = [&](int (QRect::*value)() const) {
            return (rectangle.*value)() == (before.*value)() ? (kept.*value)() : (within.*value)();
        };
        return QRect(pick(&QRect::x), pick(&QRect::y), pick(&QRect::width), pick(&QRect::height));
    };
    m_placement = changed(m_placement);
    m_areScreensNew = false;
    m_saveSoon.schedule();
    return changed(before);
}

void DrawCtrlForm::place(const QRect &rectangle)
{
    m_keeper->setPlace(adopt(rectangle));
}

// Somebody else has moved the test window: the operator, by means of the window manager, or that of
// its own accord because the screens have changed; but then it does so once. Under Wayland nobody
// knows.
void DrawCtrlForm::follow(const QRect &rectangle)
{
    const bool isForScreens = std::exchange(m_areScreensNew, false);
    if (isForScreens && m_hasRoom) {
        m_keeper->setPlace(m_placement);
        return;
    }
    if (!isForScreens && !isOnWayland())
        adopt(rectangle);
    m_keeper->accept(rectangle);
    setControls(rectangle);
}

// Whoever shows or hides the test window; but what is minimised is not hidden.
bool DrawCtrlForm::eventFilter(QObject *watched, QEvent *event)
{
    const bool isShown = event->type() == QEvent::Show;
    const bool isOfInterest = isShown || event->type() == QEvent::Hide;
    if (watched == testWindow && isOfInterest && !event->spontaneous()
        && ui->pushButtonHide->isEnabled() != isShown)
        changeVisibility(isShown);
    return QWidget::eventFilter(watched, event);
}

void DrawCtrlForm::changeVisibility(bool shown)
{
    showVisibility(shown);
    m_saveSoon.schedule();
}

void DrawCtrlForm::showVisibility(bool shown)
{
    ui->pushButtonHide->setEnabled(shown);
    ui->pushButtonShow->setEnabled(!shown);
}

void DrawCtrlForm::saveWindowBaseInfo()
{
    if (!settings)
        return;
    SettingsRules::store(*settings, Key::height, m_placement.height());
    SettingsRules::store(*settings, Key::width, m_placement.width());
    SettingsRules::store(*settings, Key::x, m_placement.x());
    SettingsRules::store(*settings, Key::y, m_placement.y());
    SettingsRules::store(*settings, hiddenKey, ui->pushButtonShow->isEnabled());
}

void DrawCtrlForm::updateLanguage()
{
    const std::pair<QLabel *, QString> captions[] = {{ui->label, tr("X")},
                                                     {ui->label_2, tr("Y")},
                                                     {ui->labelWidth, tr("宽")},
                                                     {ui->labelHeight, tr("高")}};
    for (int pair = X; pair <= Height; ++pair) {
        const auto &[label, text] = captions[pair];
        CommonHelper::setQLabelText(label, text);
        m_pairs.at(pair).setAccessibleName(text);
    }
    CommonHelper::setQLabelText(ui->labelWayland, tr("Wayland 下窗口位置由桌面决定"));
    CommonHelper::setQPushButtonText(ui->pushButtonShow, tr("显示"));
    CommonHelper::setQPushButtonText(ui->pushButtonHide, tr("隐藏"));
}

void DrawCtrlForm::slot_MoveX(int x)
{
    QRect rectangle = m_keeper->place();
    rectangle.moveLeft(x);
    place(rectangle);
}

void DrawCtrlForm::slot_MoveY(int y)
{
    QRect rectangle = m_keeper->place();
    rectangle.moveTop(y);
    place(rectangle);
}

void DrawCtrlForm::slot_resetWidth(unsigned int width)
{
    const QRect now = m_keeper->place();
    place({now.topLeft(), QSize(static_cast<int>(width), now.height())});
}

void DrawCtrlForm::slot_resetHeight(unsigned int height)
{
    const QRect now = m_keeper->place();
    place({now.topLeft(), QSize(now.width(), static_cast<int>(height))});
}

// A border at the top or the left moves the window too.
void DrawCtrlForm::slot_drawWidgetSizeChange(int width, int height)
{
    const QRect known = isOnWayland() ? m_keeper->place() : testWindow->geometry();
    place({known.topLeft(), QSize(width, height)});
}

void DrawCtrlForm::slot_drawWidgetPositionChange(int x, int y)
{
    if (!isOnWayland())
        place({QPoint(x, y), testWindow->size()});
}
