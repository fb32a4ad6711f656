#include "commonhelper.h"
#include "rows.h"

#include <QKeyEvent>
#include <QSignalSpy>
#include <QtTest>

namespace {

// X's key codes of three keys beside one another.
constexpr quint32 positionOfD = 40;
constexpr quint32 positionOfF = 41;
constexpr quint32 positionOfH = 43;

} // namespace

class tst_CommonHelper_layouts : public QObject
{
    Q_OBJECT

private slots:
    void shortcut_isFoundOnEveryLayout_data();
    void shortcut_isFoundOnEveryLayout();
};

void tst_CommonHelper_layouts::shortcut_isFoundOnEveryLayout_data()
{
    const Table<int, quint32, int, int> row("key", "position", "fullScreens", "hides");
    row("US F", Qt::Key_F, positionOfF, 1, 0);
    row("US H", Qt::Key_H, positionOfH, 0, 1);
    row("Russian F", 0x0410, positionOfF, 1, 0);
    row("Russian H", 0x0420, positionOfH, 0, 1);
    row("Russian D", 0x0412, positionOfD, 0, 0);
    row("Greek F", 0x03a6, positionOfF, 1, 0);
    row("Arabic F, a bracket", Qt::Key_BracketLeft, positionOfF, 1, 0);
    row("Dvorak, U where F is", Qt::Key_U, positionOfF, 0, 0);
    row("Dvorak, D where H is", Qt::Key_D, positionOfH, 0, 0);
    row("Dvorak, H where J is", Qt::Key_H, quint32(44), 0, 1);
    row("Turkish, a letter beyond Z", Qt::Key_Udiaeresis, positionOfH, 0, 0);
    row("an arrow key", Qt::Key_PageUp, quint32(112), 0, 0);
}

void tst_CommonHelper_layouts::shortcut_isFoundOnEveryLayout()
{
#ifndef Q_OS_LINUX
    QSKIP("the table has Linux's key codes");
#endif
    QFETCH(int, key);
    QFETCH(quint32, position);
    CommonHelper helper;
    const QSignalSpy fullScreen(&helper, &CommonHelper::signal_keyShiftFPressed);
    const QSignalSpy hide(&helper, &CommonHelper::signal_keyShiftHPressed);
    QKeyEvent press(QEvent::KeyPress, key, Qt::ShiftModifier, position, 0, 0);
    helper.dealKeyPressEvent(&press);
    QTEST(fullScreen.count(), "fullScreens");
    QTEST(hide.count(), "hides");
}

QTEST_APPLESS_MAIN(tst_CommonHelper_layouts)
#include "tst_commonhelper_layouts.moc"
