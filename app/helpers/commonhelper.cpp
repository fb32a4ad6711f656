#include "commonhelper.h"

#include "testcolor.h"
#include "textwidth.h"

#include <QCheckBox>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {

// The room that the indicator of a check box or radio button takes, in pixels.
constexpr int indicatorWidth = 20;

// A Mac keyboard has no Insert key, and its "delete" key gives Backspace: so
// "Insert" is the keypad's Enter (Fn+Return there) and "Delete" is Backspace.
constexpr int insertKey = Qt::Key_Enter;
constexpr int deleteKey = Qt::Key_Backspace;

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

void CommonHelper::dealKeyPressEvent(QKeyEvent *event)
{
    // In the order in which they are tried: Shift+Ctrl+Up is the Shift combination.
    using Tester = bool (CommonHelper::*)(QKeyEvent *);
    static constexpr Tester testers[] = {
        &CommonHelper::keyHomePress,      &CommonHelper::keyEndPress,
        &CommonHelper::keyPageUpPress,    &CommonHelper::keyPageDownPress,
        &CommonHelper::keyShiftUpPress,   &CommonHelper::keyShiftDownPress,
        &CommonHelper::keyShiftLeftPress, &CommonHelper::keyShiftRightPress,
        &CommonHelper::keyShiftFPress,    &CommonHelper::keyCtrlUpPress,
        &CommonHelper::keyCtrlDownPress,  &CommonHelper::keyCtrlLeftPress,
        &CommonHelper::keyCtrlRightPress, &CommonHelper::keyLeftPress,
        &CommonHelper::keyDownPress,      &CommonHelper::keyUpPress,
        &CommonHelper::keyRightPress,     &CommonHelper::keyDeletePress,
        &CommonHelper::keyInsertPress,    &CommonHelper::keyShiftHPress};
    for (const Tester tester : testers) {
        if ((this->*tester)(event))
            return;
    }
}

bool CommonHelper::emitIf(QKeyEvent *event, int key, Qt::KeyboardModifier modifiers,
                          void (CommonHelper::*signal)())
{
    if (event->key() != key || (event->modifiers() & modifiers) != modifiers)
        return false;
    Q_EMIT(this->*signal)();
    return true;
}

bool CommonHelper::keyHomePress(QKeyEvent *event)
{
    return emitIf(event, Qt::Key_Home, Qt::NoModifier, &CommonHelper::signal_keyHomePressed);
}

bool CommonHelper::keyEndPress(QKeyEvent *event)
{
    return emitIf(event, Qt::Key_End, Qt::NoModifier, &CommonHelper::signal_keyEndPressed);
}

bool CommonHelper::keyPageUpPress(QKeyEvent *event)
{
    return emitIf(event, Qt::Key_PageUp, Qt::NoModifier, &CommonHelper::signal_keyPageUpPressed);
}

bool CommonHelper::keyPageDownPress(QKeyEvent *event)
{
    return emitIf(event, Qt::Key_PageDown, Qt::NoModifier,
                  &CommonHelper::signal_keyPageDownPressed);
}

bool CommonHelper::keyShiftUpPress(QKeyEvent *event)
{
    return emitIf(event, Qt::Key_Up, Qt::ShiftModifier, &CommonHelper::signal_keyShiftUpPressed);
}

bool CommonHelper::keyShiftDownPress(QKeyEvent *event)
{
    return emitIf(event, Qt::Key_Down, Qt::ShiftModifier,
                  &CommonHelper::signal_keyShiftDownPressed);
}

bool CommonHelper::keyShiftLeftPress(QKeyEvent *event)
{
    return emitIf(event, Qt::Key_Left, Qt::ShiftModifier,
                  &CommonHelper::signal_keyShiftLeftPressed);
}

bool CommonHelper::keyShiftRightPress(QKeyEvent *event)
{
    return emitIf(event, Qt::Key_Right, Qt::ShiftModifier,
                  &CommonHelper::signal_keyShiftRightPressed);
}

bool CommonHelper::keyShiftFPress(QKeyEvent *event)
{
    return emitIf(event, Qt::Key_F, Qt::ShiftModifier, &CommonHelper::signal_keyShiftFPressed);
}

bool CommonHelper::keyCtrlUpPress(QKeyEvent *event)
{
    return emitIf(event, Qt::Key_Up, Qt::ControlModifier, &CommonHelper::signal_keyCtrlUpPressed);
}

bool CommonHelper::keyCtrlDownPress(QKeyEvent *event)
{
    return emitIf(event, Qt::Key_Down, Qt::ControlModifier,
                  &CommonHelper::signal_keyCtrlDownPressed);
}

bool CommonHelper::keyCtrlLeftPress(QKeyEvent *event)
{
    return emitIf(event, Qt::Key_Left, Qt::ControlModifier,
                  &CommonHelper::signal_keyCtrlLeftPressed);
}

bool CommonHelper::keyCtrlRightPress(QKeyEvent *event)
{
    return emitIf(event, Qt::Key_Right, Qt::ControlModifier,
                  &CommonHelper::signal_keyCtrlRightPressed);
}

bool CommonHelper::keyUpPress(QKeyEvent *event)
{
    return emitIf(event, Qt::Key_Up, Qt::NoModifier, &CommonHelper::signal_keyUpPressed);
}

bool CommonHelper::keyDownPress(QKeyEvent *event)
{
    return emitIf(event, Qt::Key_Down, Qt::NoModifier, &CommonHelper::signal_keyDownPressed);
}

bool CommonHelper::keyLeftPress(QKeyEvent *event)
{
    return emitIf(event, Qt::Key_Left, Qt::NoModifier, &CommonHelper::signal_keyLeftPressed);
}

bool CommonHelper::keyRightPress(QKeyEvent *event)
{
    return emitIf(event, Qt::Key_Right, Qt::NoModifier, &CommonHelper::signal_keyRightPressed);
}

bool CommonHelper::keyInsertPress(QKeyEvent *event)
{
    return emitIf(event, insertKey, Qt::NoModifier, &CommonHelper::signal_keyInsertPressed);
}

bool CommonHelper::keyDeletePress(QKeyEvent *event)
{
    return emitIf(event, deleteKey, Qt::NoModifier, &CommonHelper::signal_keyDeletePressed);
}

bool CommonHelper::keyShiftHPress(QKeyEvent *event)
{
    return emitIf(event, Qt::Key_H, Qt::ShiftModifier, &CommonHelper::signal_keyShiftHPressed);
}

QString CommonHelper::setStyle(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return QLatin1String("");
    return QString::fromUtf8(file.readAll());
}

int CommonHelper::getColorIndex(const QColor &color)
{
    const int index = TestColor::indexOf(color);
    return index >= 0 && index < TestColor::pageColorCount ? index : 0;
}

QString CommonHelper::getColorName(const QColor &color)
{
    return TestColor::translatedName(TestColor::indexOf(color));
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
    fitText(checkBox, text, checkBox->width() - indicatorWidth);
}

void CommonHelper::setQRadioButtonText(QRadioButton *radioButton, const QString &text)
{
    fitText(radioButton, text, radioButton->width() - indicatorWidth);
}
