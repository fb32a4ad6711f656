#pragma once

#include <QObject>

class QCheckBox;
class QColor;
class QKeyEvent;
class QLabel;
class QPushButton;
class QRadioButton;

// Turns key presses into named signals, and carries the small helpers that every
// panel uses: colour names, the style sheet and texts that fit their widgets.
class CommonHelper : public QObject
{
    Q_OBJECT

public:
    explicit CommonHelper(QObject *parent = nullptr);

    // Emits the signal of the first combination that matches, if any; other modifiers are ignored.
    void dealKeyPressEvent(QKeyEvent *event) { emitIf(event, nullptr); }

    // One tester for each combination: emits the combination's signal and returns
    // true when the event is exactly that combination. Those without Shift or Ctrl
    // in their name ignore modifiers.
    bool keyHomePress(QKeyEvent *e) { return emitIf(e, &K::signal_keyHomePressed); }
    bool keyEndPress(QKeyEvent *e) { return emitIf(e, &K::signal_keyEndPressed); }
    bool keyPageUpPress(QKeyEvent *e) { return emitIf(e, &K::signal_keyPageUpPressed); }
    bool keyPageDownPress(QKeyEvent *e) { return emitIf(e, &K::signal_keyPageDownPressed); }
    bool keyShiftUpPress(QKeyEvent *e) { return emitIf(e, &K::signal_keyShiftUpPressed); }
    bool keyShiftDownPress(QKeyEvent *e) { return emitIf(e, &K::signal_keyShiftDownPressed); }
    bool keyShiftLeftPress(QKeyEvent *e) { return emitIf(e, &K::signal_keyShiftLeftPressed); }
    bool keyShiftRightPress(QKeyEvent *e) { return emitIf(e, &K::signal_keyShiftRightPressed); }
    bool keyShiftFPress(QKeyEvent *e) { return emitIf(e, &K::signal_keyShiftFPressed); }
    bool keyCtrlUpPress(QKeyEvent *e) { return emitIf(e, &K::signal_keyCtrlUpPressed); }
    bool keyCtrlDownPress(QKeyEvent *e) { return emitIf(e, &K::signal_keyCtrlDownPressed); }
    bool keyCtrlLeftPress(QKeyEvent *e) { return emitIf(e, &K::signal_keyCtrlLeftPressed); }
    bool keyCtrlRightPress(QKeyEvent *e) { return emitIf(e, &K::signal_keyCtrlRightPressed); }
    bool keyUpPress(QKeyEvent *e) { return emitIf(e, &K::signal_keyUpPressed); }
    bool keyDownPress(QKeyEvent *e) { return emitIf(e, &K::signal_keyDownPressed); }
    bool keyLeftPress(QKeyEvent *e) { return emitIf(e, &K::signal_keyLeftPressed); }
    bool keyRightPress(QKeyEvent *e) { return emitIf(e, &K::signal_keyRightPressed); }
    bool keyInsertPress(QKeyEvent *e) { return emitIf(e, &K::signal_keyInsertPressed); }
    bool keyDeletePress(QKeyEvent *e) { return emitIf(e, &K::signal_keyDeletePressed); }
    bool keyShiftHPress(QKeyEvent *e) { return emitIf(e, &K::signal_keyShiftHPressed); }

    // The text of a style-sheet file (a resource or a file path), decoded as UTF-8;
    // an empty string when it cannot be opened.
    static QString setStyle(const QString &path);

    // 0 red, 1 green, 2 blue, 3 white; 0 for every other colour.
    static int getColorIndex(const QColor &color);

    // The translated name of a pure colour, a null string for any other colour.
    static QString getColorName(const QColor &color);

    // Put a text on a widget, elided at the right to the widget's present width. A
    // text that does not fit becomes the tool tip, one that does clears it.
    static void setQLabelText(QLabel *label, const QString &text);
    static void setQPushButtonText(QPushButton *button, const QString &text);
    static void setQCheckBoxText(QCheckBox *checkBox, const QString &text);
    static void setQRadioButtonText(QRadioButton *radioButton, const QString &text);

signals:
    void signal_keyHomePressed();
    void signal_keyEndPressed();
    void signal_keySpacePressed(); // never emitted: Space does nothing
    void signal_keyPageUpPressed();
    void signal_keyPageDownPressed();
    void signal_keyShiftUpPressed();
    void signal_keyShiftDownPressed();
    void signal_keyShiftLeftPressed();
    void signal_keyShiftRightPressed();
    void signal_keyShiftFPressed();
    void signal_keyCtrlUpPressed();
    void signal_keyCtrlDownPressed();
    void signal_keyCtrlLeftPressed();
    void signal_keyCtrlRightPressed();
    void signal_keyUpPressed();
    void signal_keyDownPressed();
    void signal_keyLeftPressed();
    void signal_keyRightPressed();
    void signal_keyInsertPressed();
    void signal_keyDeletePressed();
    void signal_keyShiftHPressed();

private:
    using K = CommonHelper;
    using Signal = void (CommonHelper::*)();

    // Emits the signal of the first combination that matches; only this one if it is not null.
    bool emitIf(QKeyEvent *event, Signal only);
};
