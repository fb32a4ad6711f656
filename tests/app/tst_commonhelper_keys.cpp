#include "commonhelper.h"

#include <QKeyEvent>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QtTest>

#include <iterator>
#include <memory>
#include <vector>

namespace {

constexpr int keyModifiers[] = {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier,
                                Qt::MetaModifier, Qt::KeypadModifier};

QStringList declaredSignals()
{
    QStringList names;
    const QMetaObject &meta = CommonHelper::staticMetaObject;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        if (meta.method(index).methodType() == QMetaMethod::Signal)
            names << QString::fromLatin1(meta.method(index).name());
    }
    return names;
}

// A helper whose signals are all listened to.
class Listener
{
public:
    Listener()
    {
        const QStringList names = declaredSignals();
        for (const QString &name : names) {
            const QByteArray signature = QByteArray("2") + name.toLatin1() + "()";
            m_spies.push_back(std::make_unique<QSignalSpy>(&helper, signature.constData()));
        }
    }

    // The signals since the last call, without their common beginning and ending.
    QString heard()
    {
        QStringList names;
        for (const auto &spy : m_spies) {
            QString name = QString::fromLatin1(spy->signal());
            name.remove(QStringLiteral("signal_key")).remove(QStringLiteral("Pressed()"));
            for (int emission = 0; emission < spy->count(); ++emission)
                names << name;
            spy->clear();
        }
        return names.join(QLatin1Char(' '));
    }

    CommonHelper helper;

private:
    std::vector<std::unique_ptr<QSignalSpy>> m_spies;
};

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

const char *expectedSignal(int key, int modifiers)
{
    for (const Combination &combination : combinations) {
        if (key == combination.key && (modifiers & combination.modifiers) == combination.modifiers)
            return combination.name;
    }
    return "";
}

} // namespace

class TestCommonHelperKeys : public QObject
{
    Q_OBJECT

private slots:
    void signals_areDeclaredInTheirOrder();
    void eachCombination_emitsItsOwnSignal_data();
    void eachCombination_emitsItsOwnSignal();
    void shiftCtrlAndAnArrow_countAsTheShiftCombination_data();
    void shiftCtrlAndAnArrow_countAsTheShiftCombination();
    void modifiers_areNotLookedAtForPageKeys_data();
    void modifiers_areNotLookedAtForPageKeys();
    void otherModifiers_areIgnored_data();
    void otherModifiers_areIgnored();
    void deleteAndInsertKeys_emitNothing_backspaceAndEnterDo_data();
    void deleteAndInsertKeys_emitNothing_backspaceAndEnterDo();
    void otherKeys_emitNothing_data();
    void otherKeys_emitNothing();
    void everyKeyWithEveryModifier_emitsTheFirstMatchOnly();

    void testers_matchTheirOwnCombinationOnly();
};

void TestCommonHelperKeys::signals_areDeclaredInTheirOrder()
{
    QStringList names;
    for (const char *name :
         {"Home",      "End",        "Space",  "PageUp", "PageDown", "ShiftUp",  "ShiftDown",
          "ShiftLeft", "ShiftRight", "ShiftF", "CtrlUp", "CtrlDown", "CtrlLeft", "CtrlRight",
          "Up",        "Down",       "Left",   "Right",  "Insert",   "Delete",   "ShiftH"})
        names << QStringLiteral("signal_key%1Pressed").arg(QLatin1String(name));
    QCOMPARE(declaredSignals(), names);
}

void TestCommonHelperKeys::eachCombination_emitsItsOwnSignal_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("expected");
    for (const Combination &combination : combinations) {
        QTest::newRow(combination.name)
            << combination.key << combination.modifiers << QString::fromLatin1(combination.name);
    }
}

void TestCommonHelperKeys::eachCombination_emitsItsOwnSignal()
{
    QFETCH(const int, key);
    QFETCH(const int, modifiers);
    QFETCH(const QString, expected);
    Listener listener;
    QKeyEvent event = press(key, modifiers);
    listener.helper.dealKeyPressEvent(&event);
    QCOMPARE(listener.heard(), expected);
}

void TestCommonHelperKeys::shiftCtrlAndAnArrow_countAsTheShiftCombination_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("expected");
    const int both = Qt::ShiftModifier | Qt::ControlModifier;
    QTest::newRow("Up") << int(Qt::Key_Up) << both << QStringLiteral("ShiftUp");
    QTest::newRow("Down") << int(Qt::Key_Down) << both << QStringLiteral("ShiftDown");
    QTest::newRow("Left") << int(Qt::Key_Left) << both << QStringLiteral("ShiftLeft");
    QTest::newRow("Right") << int(Qt::Key_Right) << both << QStringLiteral("ShiftRight");
}

void TestCommonHelperKeys::shiftCtrlAndAnArrow_countAsTheShiftCombination()
{
    eachCombination_emitsItsOwnSignal();
}

void TestCommonHelperKeys::modifiers_areNotLookedAtForPageKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("expected");
    const int shift = Qt::ShiftModifier;
    const int ctrl = Qt::ControlModifier;
    QTest::newRow("Ctrl+PageUp") << int(Qt::Key_PageUp) << ctrl << QStringLiteral("PageUp");
    QTest::newRow("Shift+PageDown") << int(Qt::Key_PageDown) << shift << QStringLiteral("PageDown");
    QTest::newRow("Shift+Ctrl+Home")
        << int(Qt::Key_Home) << (shift | ctrl) << QStringLiteral("Home");
    QTest::newRow("Alt+End") << int(Qt::Key_End) << int(Qt::AltModifier) << QStringLiteral("End");
}

void TestCommonHelperKeys::modifiers_areNotLookedAtForPageKeys()
{
    eachCombination_emitsItsOwnSignal();
}

void TestCommonHelperKeys::otherModifiers_areIgnored_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("expected");
    const int keypad = Qt::KeypadModifier;
    const int alt = Qt::AltModifier;
    QTest::newRow("keypad arrow") << int(Qt::Key_Left) << keypad << QStringLiteral("Left");
    QTest::newRow("keypad Enter") << int(Qt::Key_Enter) << keypad << QStringLiteral("Insert");
    QTest::newRow("Alt+Up") << int(Qt::Key_Up) << alt << QStringLiteral("Up");
    QTest::newRow("Shift+Alt+Up") << int(Qt::Key_Up) << int(Qt::AltModifier | Qt::ShiftModifier)
                                  << QStringLiteral("ShiftUp");
    QTest::newRow("Ctrl+Meta+Right")
        << int(Qt::Key_Right) << int(Qt::ControlModifier | Qt::MetaModifier)
        << QStringLiteral("CtrlRight");
    QTest::newRow("Shift+Ctrl+F") << int(Qt::Key_F) << int(Qt::ShiftModifier | Qt::ControlModifier)
                                  << QStringLiteral("ShiftF");
    QTest::newRow("Shift+Ctrl+H") << int(Qt::Key_H) << int(Qt::ShiftModifier | Qt::ControlModifier)
                                  << QStringLiteral("ShiftH");
}

void TestCommonHelperKeys::otherModifiers_areIgnored()
{
    eachCombination_emitsItsOwnSignal();
}

void TestCommonHelperKeys::deleteAndInsertKeys_emitNothing_backspaceAndEnterDo_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("expected");
    QTest::newRow("Delete") << int(Qt::Key_Delete) << 0 << QString();
    QTest::newRow("Insert") << int(Qt::Key_Insert) << 0 << QString();
    QTest::newRow("Return") << int(Qt::Key_Return) << 0 << QString();
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << 0 << QStringLiteral("Delete");
    QTest::newRow("Enter") << int(Qt::Key_Enter) << 0 << QStringLiteral("Insert");
}

void TestCommonHelperKeys::deleteAndInsertKeys_emitNothing_backspaceAndEnterDo()
{
    eachCombination_emitsItsOwnSignal();
}

void TestCommonHelperKeys::otherKeys_emitNothing_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("expected");
    QTest::newRow("Space does nothing") << int(Qt::Key_Space) << 0 << QString();
    QTest::newRow("H without Shift") << int(Qt::Key_H) << 0 << QString();
    QTest::newRow("F without Shift") << int(Qt::Key_F) << 0 << QString();
    QTest::newRow("Ctrl+F") << int(Qt::Key_F) << int(Qt::ControlModifier) << QString();
    QTest::newRow("Ctrl+H") << int(Qt::Key_H) << int(Qt::ControlModifier) << QString();
    QTest::newRow("digit") << int(Qt::Key_5) << 0 << QString();
    QTest::newRow("Shift+A") << int(Qt::Key_A) << int(Qt::ShiftModifier) << QString();
    QTest::newRow("Escape") << int(Qt::Key_Escape) << 0 << QString();
    QTest::newRow("Tab") << int(Qt::Key_Tab) << 0 << QString();
    QTest::newRow("Shift alone") << int(Qt::Key_Shift) << int(Qt::ShiftModifier) << QString();
    QTest::newRow("no key") << 0 << 0 << QString();
}

void TestCommonHelperKeys::otherKeys_emitNothing()
{
    eachCombination_emitsItsOwnSignal();
}

void TestCommonHelperKeys::everyKeyWithEveryModifier_emitsTheFirstMatchOnly()
{
    Listener listener;
    std::vector<int> keys;
    for (const Combination &combination : combinations)
        keys.push_back(combination.key);
    for (int key = Qt::Key_Space; key <= Qt::Key_AsciiTilde; ++key)
        keys.push_back(key);
    for (int key = Qt::Key_Escape; key <= Qt::Key_F35; ++key)
        keys.push_back(key);

    for (const int key : keys) {
        for (const int modifiers : modifierSets()) {
            QKeyEvent event = press(key, modifiers);
            listener.helper.dealKeyPressEvent(&event);
            const QString heard = listener.heard();
            if (heard != QLatin1String(expectedSignal(key, modifiers)))
                QFAIL(qPrintable(
                    QStringLiteral("key %1, modifiers %2: %3").arg(key).arg(modifiers).arg(heard)));
        }
    }
}

void TestCommonHelperKeys::testers_matchTheirOwnCombinationOnly()
{
    Listener listener;
    std::vector<int> keys = {Qt::Key_Insert, Qt::Key_Delete, Qt::Key_Return, Qt::Key_Space};
    for (const Combination &combination : combinations)
        keys.push_back(combination.key);

    for (const Combination &combination : combinations) {
        for (const int key : keys) {
            for (const int modifiers : modifierSets()) {
                const bool matches =
                    key == combination.key
                    && (modifiers & combination.modifiers) == combination.modifiers;
                QKeyEvent event = press(key, modifiers);
                QCOMPARE((listener.helper.*combination.tester)(&event), matches);
                QCOMPARE(listener.heard(),
                         matches ? QString::fromLatin1(combination.name) : QString());
            }
        }
    }
}

QTEST_GUILESS_MAIN(TestCommonHelperKeys)
#include "tst_commonhelper_keys.moc"
