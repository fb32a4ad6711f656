#include "endtoendtest.h"
#include "waiting.h"

#include <QTest>

/// Digits that are typed into a spin box.
class tst_e2e_typing : public EndToEndTest
{
    Q_OBJECT

private slots:
    void typedDigits_arriveOnceAndOtherKeysNot();

private:
    bool openPurityTab();
    bool clickIntoSpinBox();
    void clearSpinBox();
    QPoint findTextCursor(const QRect &area);
};

namespace {
constexpr QRgb Green = qRgb(0, 255, 0);
}

bool tst_e2e_typing::openPurityTab()
{
    if (!startTool())
        return false;
    desktop().keyboard().key("Next");
    return testWindowTurns(Green);
}

/// A point of the area where text can be written, as the pointer's shape tells;
/// null if there is none.
QPoint tst_e2e_typing::findTextCursor(const QRect &area)
{
    constexpr int StepX = 12;
    constexpr int StepY = 6;
    const WindowId control = tool().controlWindow().id;
    for (int x = area.right() - StepX; x > area.left(); x -= StepX) {
        for (int y = area.top() + StepY; y < area.bottom(); y += StepY) {
            desktop().mouse().move(QPoint(x, y));
            // Two answers: the first may overtake the new shape of the pointer.
            for (int i = 0; i < 2; ++i)
                desktop().windows().answersPing(control);
            if (desktop().mouse().isTextCursor())
                return {x, y};
        }
    }
    return {};
}

bool tst_e2e_typing::clickIntoSpinBox()
{
    // In manual mode a single spin box of the panel is enabled: the grey level.
    const QRect window = tool().controlWindow().geometry;
    QPoint inside;
    if (!waitFor([&] { return !(inside = findTextCursor(window)).isNull(); })) {
        qWarning("No spin box is found in the control window");
        return false;
    }
    desktop().mouse().click(inside);
    return true;
}

void tst_e2e_typing::clearSpinBox()
{
    // The caret stands somewhere in "255".
    for (int i = 0; i < 3; ++i) {
        desktop().keyboard().key("BackSpace");
        desktop().keyboard().key("Delete");
    }
}

void tst_e2e_typing::typedDigits_arriveOnceAndOtherKeysNot()
{
    QVERIFY(openPurityTab());
    QVERIFY(clickIntoSpinBox());
    clearSpinBox();

    desktop().keyboard().key("4");
    QVERIFY(testWindowTurns(qRgb(0, 4, 0)));
    // Selecting all would let the next digit replace the first, and Tab would
    // take the keyboard elsewhere.
    desktop().keyboard().key("a");
    desktop().keyboard().key("space");
    desktop().keyboard().key("a", Qt::ControlModifier);
    desktop().keyboard().key("Tab");
    desktop().keyboard().key("2");
    QVERIFY(testWindowTurns(qRgb(0, 42, 0)));
    QVERIFY2(tool().quit(), qPrintable(tool().problem()));
    QCOMPARE(tool().configValue(QStringLiteral("/setting/testPurityGreyLevel")).toInt(), 42);
}

QTEST_GUILESS_MAIN(tst_e2e_typing)
#include "tst_e2e_typing.moc"
