#include "commonhelper.h"

#include "desktopscale.h"
#include "purecolor.h"
#include "textwidth.h"

#include <QCheckBox>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {

// The room that the indicator of a check box or radio button takes, in pixels.
int indicatorWidth()
{
    return DesktopScale::scaled(20);
}

using KeySignal = void (CommonHelper::*)();

struct Combination
{
    int key;
    Qt::KeyboardModifier modifiers; // that have to be among the event's
    KeySignal signal;
};

// In the order in which they are tried: Shift+Ctrl+Up is the Shift combination. A Mac keyboard has
// no Insert key, and its "delete" key gives Backspace: so "Insert" is the keypad's Enter (Fn+Return
// there) and "Delete" is Backspace.
constexpr Combination combinations[] = {
    {Qt::Key_Home, Qt::NoModifier, &CommonHelper::signal_keyHomePressed},
    {Qt::Key_End, Qt::NoModifier, &CommonHelper::signal_keyEndPressed},
    {Qt::Key_PageUp, Qt::NoModifier, &CommonHelper::signal_keyPageUpPressed},
    {Qt::Key_PageDown, Qt::NoModifier, &CommonHelper::signal_keyPageDownPressed},
    {Qt::Key_Up, Qt::ShiftModifier, &CommonHelper::signal_keyShiftUpPressed},
    {Qt::Key_Down, Qt::ShiftModifier, &CommonHelper::signal_keyShiftDownPressed},
    {Qt::Key_Left, Qt::ShiftModifier, &CommonHelper::signal_keyShiftLeftPressed},
    {Qt::Key_Right, Qt::ShiftModifier, &CommonHelper::signal_keyShiftRightPressed},
    {Qt::Key_F, Qt::ShiftModifier, &CommonHelper::signal_keyShiftFPressed},
    {Qt::Key_Up, Qt::ControlModifier, &CommonHelper::signal_keyCtrlUpPressed},
    {Qt::Key_Down, Qt::ControlModifier, &CommonHelper::signal_keyCtrlDownPressed},
    {Qt::Key_Left, Qt::ControlModifier, &CommonHelper::signal_keyCtrlLeftPressed},
    {Qt::Key_Right, Qt::ControlModifier, &CommonHelper::signal_keyCtrlRightPressed},
    {Qt::Key_Left, Qt::NoModifier, &CommonHelper::signal_keyLeftPressed},
    {Qt::Key_Down, Qt::NoModifier, &CommonHelper::signal_keyDownPressed},
    {Qt::Key_Up, Qt::NoModifier, &CommonHelper::signal_keyUpPressed},
    {Qt::Key_Right, Qt::NoModifier, &CommonHelper::signal_keyRightPressed},
    {Qt::Key_Backspace, Qt::NoModifier, &CommonHelper::signal_keyDeletePressed},
    {Qt::Key_Enter, Qt::NoModifier, &CommonHelper::signal_keyInsertPressed},
    {Qt::Key_H, Qt::ShiftModifier, &CommonHelper::signal_keyShiftHPressed},
};

// Where F and H are on a keyboard, whatever its layout calls them: scan codes, on a Mac virtual
// key codes.
#if defined(Q_OS_MACOS)
constexpr quint32 positionOfF = 3;
constexpr quint32 positionOfH = 4;
#else
#if defined(Q_OS_WIN)
constexpr quint32 firstScanCode = 0;
#else
constexpr quint32 firstScanCode = 8; // X's, and Wayland's as Qt has them, begin there
#endif
constexpr quint32 positionOfF = firstScanCode + 33;
constexpr quint32 positionOfH = firstScanCode + 35;
#endif

// The event's key. A layout without Latin letters has something else where F and H are; every
// Latin one, whatever its order, has a letter there.
int latinKey(const QKeyEvent &event)
{
#if defined(Q_OS_MACOS)
    const quint32 position = event.nativeVirtualKey();
#else
    const quint32 position = event.nativeScanCode();
#endif
    if (QChar::script(static_cast<uint>(event.key())) == QChar::Script_Latin)
        return event.key();
    if (position == positionOfF)
        return Qt::Key_F;
    return position == positionOfH ? static_cast<int>(Qt::Key_H) : event.key();
}

template<typename Widget>
void fitText(Widget *widget, const QString &text, int available)
{
    widget->ensurePolished(); // its font may come from a style sheet
    const QFontMetrics metrics(widget->font());
    const bool fits = textWidth(metrics, text) <= available;
    widget->setToolTip(fits ? QString() : text);
    // Eliding cuts by the exact width, whose fraction of a pixel the advance above rounds away.
    widget->setText(fits ? text : metrics.elidedText(text, Qt::ElideRight, available));
}

} // namespace

CommonHelper::CommonHelper(QObject *parent)
    : QObject(parent)
{ }

bool CommonHelper::emitIf(QKeyEvent *event, Signal only)
{
    for (const auto &[key, modifiers, signal] : combinations) {
        const bool isTried = !only || only == signal;
        if (isTried && latinKey(*event) == key && (event->modifiers() & modifiers) == modifiers) {
            Q_EMIT(this->*signal)();
            return true;
        }
    }
    return false;
}

QString CommonHelper::setStyle(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return QLatin1String("");
    return DesktopScale::styleSheet(QString::fromUtf8(file.readAll()));
}

int CommonHelper::getColorIndex(const QColor &color)
{
    const int index = PureColor::indexOf(color);
    return index >= 0 && index < PureColor::pageColorCount ? index : 0;
}

QString CommonHelper::getColorName(const QColor &color)
{
    return PureColor::translatedName(PureColor::indexOf(color));
}

void CommonHelper::setQLabelText(QLabel *label, const QString &text)
{
    fitText(label, text, label->width());
}

void CommonHelper::setQPushButtonText(QPushButton *button, const QString &text)
{
    fitText(button, text, button->width());
}

void CommonHelper::setQCheckBoxText(QCheckBox *checkBox, const QString &text)
{
    fitText(checkBox, text, checkBox->width() - indicatorWidth());
}

void CommonHelper::setQRadioButtonText(QRadioButton *radioButton, const QString &text)
{
    fitText(radioButton, text, radioButton->width() - indicatorWidth());
}
