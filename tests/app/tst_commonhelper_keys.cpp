#include "commonhelper.h"
#include "signallog.h"

#include <QKeyEvent>
#include <QMetaMethod>
#include <QtTest>

#include <iterator>
#include <vector>

namespace {

constexpr int keyModifiers[] = {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier,
                                Qt::MetaModifier, Qt::KeypadModifier};

using Tester = bool (CommonHelper::*)(QKeyEvent *);

// Each combination with the tester of its own.
struct Combination
{
    int key;
    int modifiers;
    const char *name;
    Tester tester;
};

// In the order in which they are looked for.
constexpr Combination combinations[] = {
    {Qt::Key_Home, 0, "Home", &CommonHelper::keyHomePress},
    {Qt::Key_End, 0, "End", &CommonHelper::keyEndPress},
    {Qt::Key_PageUp, 0, "PageUp", &CommonHelper::keyPageUpPress},
    {Qt::Key_PageDown, 0, "PageDown", &CommonHelper::keyPageDownPress},
    {Qt::Key_Up, Qt::ShiftModifier, "ShiftUp", &CommonHelper::keyShiftUpPress},
    {Qt::Key_Down, Qt::ShiftModifier, "ShiftDown", &CommonHelper::keyShiftDownPress},
    {Qt::Key_Left, Qt::ShiftModifier, "ShiftLeft", &CommonHelper::keyShiftLeftPress},
    {Qt::Key_Right, Qt::ShiftModifier, "ShiftRight", &CommonHelper::keyShiftRightPress},
    {Qt::Key_F, Qt::ShiftModifier, "ShiftF", &CommonHelper::keyShiftFPress},
    {Qt::Key_Up, Qt::ControlModifier, "CtrlUp", &CommonHelper::keyCtrlUpPress},
    {Qt::Key_Down, Qt::ControlModifier, "CtrlDown", &CommonHelper::keyCtrlDownPress},
    {Qt::Key_Left, Qt::ControlModifier, "CtrlLeft", &CommonHelper::keyCtrlLeftPress},
    {Qt::Key_Right, Qt::ControlModifier, "CtrlRight", &CommonHelper::keyCtrlRightPress},
    {Qt::Key_Left, 0, "Left", &CommonHelper::keyLeftPress},
    {Qt::Key_Down, 0, "Down", &CommonHelper::keyDownPress},
    {Qt::Key_Up, 0, "Up", &CommonHelper::keyUpPress},
    {Qt::Key_Right, 0, "Right", &CommonHelper::keyRightPress},
    {Qt::Key_Backspace, 0, "Delete", &CommonHelper::keyDeletePress},
    {Qt::Key_Enter, 0, "Insert", &CommonHelper::keyInsertPress},
    {Qt::Key_H, Qt::ShiftModifier, "ShiftH", &CommonHelper::keyShiftHPress},
};

QString logged(const Combination &combination)
{
    return QStringLiteral("signal_key%1Pressed()").arg(QLatin1String(combination.name));
}

QKeyEvent press(int key, int modifiers)
{
    return {QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers)};
}

// Every set of modifiers there is.
std::vector<int> modifierSets()
{
    std::vector<int> sets;
    for (uint bits = 0; bits < 1u << std::size(keyModifiers); ++bits) {
        int set = 0;
        for (size_t bit = 0; bit < std::size(keyModifiers); ++bit)
            set |= (bits >> bit & 1u) ? keyModifiers[bit] : 0;
        sets.push_back(set);
    }
    return sets;
}

// The signal as a log has it.
QString expectedSignal(int key, int modifiers)
{
    for (const Combination &combination : combinations) {
        if (key == combination.key && (modifiers & combination.modifiers) == combination.modifiers)
            return logged(combination);
    }
    return {};
}

} // namespace

class TestCommonHelperKeys : public QObject
{
    Q_OBJECT

private slots:
    void signals_areDeclaredInTheirOrder();
    void everyKeyWithEveryModifier_emitsTheFirstMatchOnly();

    void testers_matchTheirOwnCombinationOnly();
};

void TestCommonHelperKeys::signals_areDeclaredInTheirOrder()
{
    QStringList names;
    const QMetaObject &meta = CommonHelper::staticMetaObject;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index)
        names << QString::fromLatin1(meta.method(index).name());
    QStringList expected;
    for (const char *name :
         {"Home",      "End",        "Space",  "PageUp", "PageDown", "ShiftUp",  "ShiftDown",
          "ShiftLeft", "ShiftRight", "ShiftF", "CtrlUp", "CtrlDown", "CtrlLeft", "CtrlRight",
          "Up",        "Down",       "Left",   "Right",  "Insert",   "Delete",   "ShiftH"})
        expected << QStringLiteral("signal_key%1Pressed").arg(QLatin1String(name));
    QCOMPARE(names, expected);
}

// Among them those that look like a combination: Insert, Delete and Return, and Space.
void TestCommonHelperKeys::everyKeyWithEveryModifier_emitsTheFirstMatchOnly()
{
    CommonHelper helper;
    SignalLog log(&helper);
    std::vector<int> keys{0};
    for (int key = Qt::Key_Space; key <= Qt::Key_AsciiTilde; ++key)
        keys.push_back(key);
    for (int key = Qt::Key_Escape; key <= Qt::Key_F35; ++key)
        keys.push_back(key);

    for (const int key : keys) {
        for (const int modifiers : modifierSets()) {
            QKeyEvent event = press(key, modifiers);
            helper.dealKeyPressEvent(&event);
            const QString emitted = log.take();
            QVERIFY2(emitted == expectedSignal(key, modifiers),
                     qPrintable(QStringLiteral("key %1, modifiers %2: %3")
                                    .arg(key)
                                    .arg(modifiers)
                                    .arg(emitted)));
        }
    }
}

void TestCommonHelperKeys::testers_matchTheirOwnCombinationOnly()
{
    CommonHelper helper;
    SignalLog log(&helper);
    for (const Combination &tested : combinations) {
        for (const Combination &pressed : combinations) {
            for (const int modifiers : modifierSets()) {
                const bool matches =
                    pressed.key == tested.key && (modifiers & tested.modifiers) == tested.modifiers;
                QKeyEvent event = press(pressed.key, modifiers);
                QCOMPARE((helper.*tested.tester)(&event), matches);
                QCOMPARE(log.take(), matches ? logged(tested) : QString());
            }
        }
    }
}

QTEST_GUILESS_MAIN(TestCommonHelperKeys)
#include "tst_commonhelper_keys.moc"
