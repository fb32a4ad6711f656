#include "drawctrlform.h"

#include "ui_drawctrlform.h"

#include "commonhelper.h"
#include "form.h"
#include "latin1.h"
#include "savesoon.h"
#include "settingsrules.h"
#include "sliderspinboxpair.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QScreen>
#include <QSettings>
#include <QTimer>
#include <QWindowStateChangeEvent>

#include <algorithm>

namespace {

namespace Key {
constexpr QLatin1String x = latin1("/setting/testWindowPointX");
constexpr QLatin1String y = latin1("/setting/testWindowPointY");
constexpr QLatin1String width = latin1("/setting/testWindowWidth");
constexpr QLatin1String height = latin1("/setting/testWindowHeight");
// Named the other way round than it is used: true means hidden, on reading and on writing.
constexpr QLatin1String hidden = latin1("/setting/testWindowVisible");
} // namespace Key

constexpr int defaultSize = 256;
constexpr int sizeWithoutSettings = 200;

// How long after it appears the window manager, and not the operator, moves a window.
constexpr int windowIsNewMs = 1000;

constexpr QLatin1String buttonStyleName = latin1("normalContentPushBtn");

void step(QSlider *slider, int by)
{
    slider->setValue(slider->value() + by);
}

bool isOnOneScreen(const QRect &place)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    return std::any_of(screens.cbegin(), screens.cend(), [&](const QScreen *screen) {
        return screen->availableGeometry().contains(place);
    });
}

} // namespace

DrawCtrlForm::DrawCtrlForm(QWidget *testWindow_, QSettings *settings_, QWidget *parent)
    : QWidget(parent)
    , ui(makeForm<Ui::DrawCtrlForm>(this))
    , testWindow(testWindow_)
    , settings(settings_)
    , m_saveSoon(new SaveSoon([this] { saveWindowBaseInfo(); }, this))
{
    ui->pushButtonShow->setObjectName(buttonStyleName);
    ui->pushButtonHide->setObjectName(buttonStyleName);
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
    SliderSpinBoxPair::link(ui->hScrollBarX, ui->spinBoxX);
    SliderSpinBoxPair::link(ui->hScrollBarY, ui->spinBoxY);
    SliderSpinBoxPair::link(ui->hScrollBarWidth, ui->spinBoxWidth);
    SliderSpinBoxPair::link(ui->hScrollBarHeight, ui->spinBoxHeight);
    connect(ui->hScrollBarX, &QSlider::valueChanged, this, &DrawCtrlForm::slot_MoveX);
    connect(ui->hScrollBarY, &QSlider::valueChanged, this, &DrawCtrlForm::slot_MoveY);
    connect(ui->hScrollBarWidth, &QSlider::valueChanged, this, &DrawCtrlForm::slot_resetWidth);
    connect(ui->hScrollBarHeight, &QSlider::valueChanged, this, &DrawCtrlForm::slot_resetHeight);
    connect(ui->pushButtonShow, &QPushButton::clicked, this, &DrawCtrlForm::slot_showPushed);
    connect(ui->pushButtonHide, &QPushButton::clicked, this, &DrawCtrlForm::slot_HidePushed);
}

void DrawCtrlForm::initCtrls()
{
    getScreenSize();
    followDesktop();
    ui->pushButtonShow->setEnabled(false);
    for (QSpinBox *spinBox : {ui->spinBoxX, ui->spinBoxY, ui->spinBoxWidth, ui->spinBoxHeight})
        SliderSpinBoxPair::prepare(spinBox);
}

// The desktop widget reports every kind of change in one place, on all of Qt 5.
void DrawCtrlForm::followDesktop()
{
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
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens)
        sum += screen->geometry().size();
    setRanges(sum);
    setControls(m_placement);
    if (controlsRectangle() == m_placement)
        applyControls();
    emit signal_screenMaxSizeChanged(sum.width(), sum.height());
}

void DrawCtrlForm::setRanges(const QSize &desktopSize)
{
    const auto quiet = blockControls();
    const int w = desktopSize.width();
    const int h = desktopSize.height();
    SliderSpinBoxPair::setRange(ui->hScrollBarX, ui->spinBoxX, 1 - w, w - 1);
    SliderSpinBoxPair::setRange(ui->hScrollBarY, ui->spinBoxY, 1 - h, h - 1);
    SliderSpinBoxPair::setRange(ui->hScrollBarWidth, ui->spinBoxWidth, 1, w);
    SliderSpinBoxPair::setRange(ui->hScrollBarHeight, ui->spinBoxHeight, 1, h);
}

std::vector<QSignalBlocker> DrawCtrlForm::blockControls()
{
    std::vector<QSignalBlocker> blockers;
    for (QSlider *slider :
         {ui->hScrollBarX, ui->hScrollBarY, ui->hScrollBarWidth, ui->hScrollBarHeight})
        blockers.emplace_back(slider);
    for (QSpinBox *spinBox : {ui->spinBoxX, ui->spinBoxY, ui->spinBoxWidth, ui->spinBoxHeight})
        blockers.emplace_back(spinBox);
    return blockers;
}

// Shows the rectangle, clipped to the ranges, without any effect on the test window.
void DrawCtrlForm::setControls(const QRect &rectangle)
{
    const auto quiet = blockControls();
    const auto set = [](QSlider *slider, QSpinBox *spinBox, int value) {
        slider->setValue(value);
        spinBox->setValue(value);
    };
    set(ui->hScrollBarX, ui->spinBoxX, rectangle.x());
    set(ui->hScrollBarY, ui->spinBoxY, rectangle.y());
    set(ui->hScrollBarWidth, ui->spinBoxWidth, rectangle.width());
    set(ui->hScrollBarHeight, ui->spinBoxHeight, rectangle.height());
}

QRect DrawCtrlForm::controlsRectangle() const
{
    return {ui->hScrollBarX->value(), ui->hScrollBarY->value(), ui->hScrollBarWidth->value(),
            ui->hScrollBarHeight->value()};
}

void DrawCtrlForm::slot_dealScreenChange(int /*screen*/)
{
    getScreenSize();
}

void DrawCtrlForm::initWindowPosition()
{
    if (!settings) {
        place({0, 0, sizeWithoutSettings, sizeWithoutSettings});
        return;
    }
    // Far beyond every desktop, and small enough to add up as the edges of a rectangle.
    const auto stored = [this](const auto &key) {
        return qBound(-QWIDGETSIZE_MAX, settings->value(key).toInt(), QWIDGETSIZE_MAX);
    };
    // A stored height is answered with the stored width: a restart gives a square window. Wanted.
    const int width = stored(Key::width) < 1 ? defaultSize : stored(Key::width);
    const int height = stored(Key::height) < 1 ? defaultSize : stored(Key::width);
    place({stored(Key::x), stored(Key::y), width, height});
    setTestWindowShown(!settings->value(Key::hidden).toBool());
}

void DrawCtrlForm::place(const QRect &rectangle)
{
    m_placement = rectangle;
    setControls(rectangle);
    applyControls();
}

// All four values at once: the window's own idea of its place may lag behind the window manager.
// A full screen is left alone, since it would not come back from full screen as it was: what
// changes meanwhile is applied when it ends.
void DrawCtrlForm::applyControls()
{
    if (!testWindow->isFullScreen())
        testWindow->setGeometry(controlsRectangle());
}

bool DrawCtrlForm::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != testWindow)
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::WindowStateChange:
        if (static_cast<QWindowStateChangeEvent *>(event)->oldState() & Qt::WindowFullScreen)
            applyControls();
        break;
    case QEvent::Show:
        m_sinceShown.start();
        break;
    case QEvent::Move:
        keepPlaceOfNewWindow();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

// Window managers like to pull a new window on to one screen; once it is there, they obey.
void DrawCtrlForm::keepPlaceOfNewWindow()
{
    const QRect place = controlsRectangle();
    if (!m_sinceShown.isValid() || testWindow->pos() == place.topLeft())
        return;
    const bool isNew = m_sinceShown.elapsed() < windowIsNewMs;
    m_sinceShown.invalidate();
    if (isNew && !isOnOneScreen(place))
        QTimer::singleShot(0, this, &DrawCtrlForm::applyControls);
}

// The mouse has placed the test window at this rectangle.
void DrawCtrlForm::follow(const QRect &rectangle)
{
    setControls(rectangle);
    m_placement = controlsRectangle();
    if (m_placement != rectangle)
        applyControls();
    m_saveSoon->schedule();
}

void DrawCtrlForm::setTestWindowShown(bool shown)
{
    testWindow->setVisible(shown);
    showVisibility(shown);
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
    SettingsRules::store(*settings, Key::hidden, ui->pushButtonShow->isEnabled());
}

void DrawCtrlForm::updateLanguage()
{
    ui->label->setText(tr("X"));
    ui->label_2->setText(tr("Y"));
    CommonHelper::setQLabelText(ui->labelWidth, tr("宽"));
    CommonHelper::setQLabelText(ui->labelHeight, tr("高"));
    CommonHelper::setQPushButtonText(ui->pushButtonShow, tr("显示"));
    CommonHelper::setQPushButtonText(ui->pushButtonHide, tr("隐藏"));
    SliderSpinBoxPair::setAccessibleName(ui->hScrollBarX, ui->spinBoxX, tr("X"));
    SliderSpinBoxPair::setAccessibleName(ui->hScrollBarY, ui->spinBoxY, tr("Y"));
    SliderSpinBoxPair::setAccessibleName(ui->hScrollBarWidth, ui->spinBoxWidth, tr("宽"));
    SliderSpinBoxPair::setAccessibleName(ui->hScrollBarHeight, ui->spinBoxHeight, tr("高"));
}

void DrawCtrlForm::slot_showPushed()
{
    setTestWindowShown(true);
    m_saveSoon->schedule();
}

void DrawCtrlForm::slot_HidePushed()
{
    setTestWindowShown(false);
    m_saveSoon->schedule();
}

void DrawCtrlForm::slot_enableShowButton()
{
    showVisibility(false);
    m_saveSoon->schedule();
}

void DrawCtrlForm::slot_disableShowButton()
{
    showVisibility(true);
    m_saveSoon->schedule();
}

void DrawCtrlForm::slot_MoveX(int x)
{
    QRect rectangle = m_placement;
    rectangle.moveLeft(x);
    place(rectangle);
    m_saveSoon->schedule();
}

void DrawCtrlForm::slot_MoveY(int y)
{
    QRect rectangle = m_placement;
    rectangle.moveTop(y);
    place(rectangle);
    m_saveSoon->schedule();
}

void DrawCtrlForm::slot_resetWidth(unsigned int width)
{
    place({m_placement.topLeft(), QSize(static_cast<int>(width), m_placement.height())});
    m_saveSoon->schedule();
}

void DrawCtrlForm::slot_resetHeight(unsigned int height)
{
    place({m_placement.topLeft(), QSize(m_placement.width(), static_cast<int>(height))});
    m_saveSoon->schedule();
}

// The sliders stop at the ends of their ranges, so every key step is one pixel or none.
void DrawCtrlForm::slot_keyShiftUpPressed()
{
    step(ui->hScrollBarHeight, -1);
}

void DrawCtrlForm::slot_keyShiftDownPressed()
{
    step(ui->hScrollBarHeight, 1);
}

void DrawCtrlForm::slot_keyShiftLeftPressed()
{
    step(ui->hScrollBarWidth, -1);
}

void DrawCtrlForm::slot_keyShiftRightPressed()
{
    step(ui->hScrollBarWidth, 1);
}

void DrawCtrlForm::slot_keyCtrlUpPressed()
{
    step(ui->hScrollBarY, -1);
}

void DrawCtrlForm::slot_keyCtrlDownPressed()
{
    step(ui->hScrollBarY, 1);
}

void DrawCtrlForm::slot_keyCtrlLeftPressed()
{
    step(ui->hScrollBarX, -1);
}

void DrawCtrlForm::slot_keyCtrlRightPressed()
{
    step(ui->hScrollBarX, 1);
}

// A border at the top or the left moves the window too.
void DrawCtrlForm::slot_drawWidgetSizeChange(int width, int height)
{
    follow({testWindow->pos(), QSize(width, height)});
}

void DrawCtrlForm::slot_drawWidgetPositionChange(int x, int y)
{
    follow({QPoint(x, y), testWindow->size()});
}
