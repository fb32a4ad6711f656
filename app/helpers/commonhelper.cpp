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

// In the order in which they are tried, which is the order of `Row`: Shift+Ctrl+Up is the
// Shift combination.
const CommonHelper::Combination CommonHelper::combinations[rowCount] = {
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
    {deleteKey, Qt::NoModifier, &CommonHelper::signal_keyDeletePressed},
    {insertKey, Qt::NoModifier, &CommonHelper::signal_keyInsertPressed},
    {Qt::Key_H, Qt::ShiftModifier, &CommonHelper::signal_keyShiftHPressed},
};

void CommonHelper::dealKeyPressEvent(QKeyEvent *event)
{
    for (int row = 0; row < rowCount; ++row) {
        if (emitIf(static_cast<Row>(row), event))
            return;
    }
}

bool CommonHelper::emitIf(Row row, QKeyEvent *event)
{
    const Combination &combination = combinations[row];
    if (event->key() != combination.key
        || (event->modifiers() & combination.modifiers) != combination.modifiers)
        return false;
    Q_EMIT(this->*combination.signal)();
    return true;
}

bool CommonHelper::keyHomePress(QKeyEvent *event)
{
    return emitIf(Home, event);
}

bool CommonHelper::keyEndPress(QKeyEvent *event)
{
    return emitIf(End, event);
}

bool CommonHelper::keyPageUpPress(QKeyEvent *event)
{
    return emitIf(PageUp, event);
}

bool CommonHelper::keyPageDownPress(QKeyEvent *event)
{
    return emitIf(PageDown, event);
}

bool CommonHelper::keyShiftUpPress(QKeyEvent *event)
{
    return emitIf(ShiftUp, event);
}

bool CommonHelper::keyShiftDownPress(QKeyEvent *event)
{
    return emitIf(ShiftDown, event);
}

bool CommonHelper::keyShiftLeftPress(QKeyEvent *event)
{
    return emitIf(ShiftLeft, event);
}

bool CommonHelper::keyShiftRightPress(QKeyEvent *event)
{
    return emitIf(ShiftRight, event);
}

bool CommonHelper::keyShiftFPress(QKeyEvent *event)
{
    return emitIf(ShiftF, event);
}

bool CommonHelper::keyCtrlUpPress(QKeyEvent *event)
{
    return emitIf(CtrlUp, event);
}

bool CommonHelper::keyCtrlDownPress(QKeyEvent *event)
{
    return emitIf(CtrlDown, event);
}

bool CommonHelper::keyCtrlLeftPress(QKeyEvent *event)
{
    return emitIf(CtrlLeft, event);
}

bool CommonHelper::keyCtrlRightPress(QKeyEvent *event)
{
    return emitIf(CtrlRight, event);
}

bool CommonHelper::keyUpPress(QKeyEvent *event)
{
    return emitIf(Up, event);
}

bool CommonHelper::keyDownPress(QKeyEvent *event)
{
    return emitIf(Down, event);
}

bool CommonHelper::keyLeftPress(QKeyEvent *event)
{
    return emitIf(Left, event);
}

bool CommonHelper::keyRightPress(QKeyEvent *event)
{
    return emitIf(Right, event);
}

bool CommonHelper::keyInsertPress(QKeyEvent *event)
{
    return emitIf(Insert, event);
}

bool CommonHelper::keyDeletePress(QKeyEvent *event)
{
    return emitIf(Delete, event);
}

bool CommonHelper::keyShiftHPress(QKeyEvent *event)
{
    return emitIf(ShiftH, event);
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
