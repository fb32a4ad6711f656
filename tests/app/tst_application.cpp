#include "application.h"
#include "drawcontainer.h"

#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QWindow>

// What a widget is given of the keyboard.
class KeyRecorder : public QLineEdit
{
public:
    int presses = 0;
    int releases = 0;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        ++presses;
        QLineEdit::keyPressEvent(event);
    }
    void keyReleaseEvent(QKeyEvent *event) override
    {
        ++releases;
        QLineEdit::keyReleaseEvent(event);
    }
};

class TestApplication : public QObject
{
    Q_OBJECT

private slots:
    void keyRelease_isSeenByNoWidget();
    void letters_doNotReachATextField();
    void digitsBackspaceAndDelete_reachTheFocusedWidget();
    void digitTypedIntoASpinBox_arrivesOnce();
    void shortcut_isEmittedOnce();
    void shortcut_worksFromTheTestWindow();
    void backspaceThatNobodyTook_isTheDeleteShortcut();
    void backspaceInASpinBox_isNoShortcut();
    void space_doesNothing();
    void keyNumberPress_knowsWhatPasses();

private:
    MainWindow &mainWindow() { return static_cast<Application *>(qApp)->mainWindow(); }
    QTabWidget *tabs() { return mainWindow().findChild<QTabWidget *>(QStringLiteral("tabWidget")); }
    QWidget *testWindow();

    template<typename Widget>
    Widget *find(const char *name)
    {
        return mainWindow().findChild<Widget *>(QString::fromLatin1(name));
    }

    // A key press on its way from the window system: to the window, from there to the focus.
    void typeInto(QWidget *widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
};

QWidget *TestApplication::testWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (qobject_cast<DrawContainer *>(window))
            return window;
    }
    return nullptr;
}

void TestApplication::typeInto(QWidget *widget, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    widget->window()->show();
    widget->window()->activateWindow();
    widget->setFocus();
    QTRY_VERIFY(widget->window()->isActiveWindow());
    QTest::keyClick(widget->window()->windowHandle(), key, modifiers);
}

void TestApplication::keyRelease_isSeenByNoWidget()
{
    KeyRecorder field;
    typeInto(&field, Qt::Key_5);
    QCOMPARE(field.presses, 1);
    QCOMPARE(field.releases, 0);

    QKeyEvent repeated(QEvent::KeyRelease, Qt::Key_5, Qt::NoModifier, QStringLiteral("5"), true);
    QVERIFY(QCoreApplication::sendEvent(&field, &repeated));
    QCOMPARE(field.releases, 0);
}

void TestApplication::letters_doNotReachATextField()
{
    KeyRecorder field;
    for (const Qt::Key key :
         {Qt::Key_A, Qt::Key_H, Qt::Key_Z, Qt::Key_Minus, Qt::Key_Left, Qt::Key_Tab})
        typeInto(&field, key);
    QCOMPARE(field.presses, 0);
    QCOMPARE(field.text(), QString());
}

void TestApplication::digitsBackspaceAndDelete_reachTheFocusedWidget()
{
    KeyRecorder field;
    for (int digit = 0; digit <= 9; ++digit)
        typeInto(&field, static_cast<Qt::Key>(Qt::Key_0 + digit));
    QCOMPARE(field.text(), QStringLiteral("0123456789"));
    typeInto(&field, Qt::Key_Backspace);
    QCOMPARE(field.text(), QStringLiteral("012345678"));
    field.setCursorPosition(0);
    typeInto(&field, Qt::Key_Delete);
    QCOMPARE(field.text(), QStringLiteral("12345678"));
    typeInto(&field, Qt::Key_9, Qt::ControlModifier); // passes, though it types nothing
    QCOMPARE(field.presses, 13);
}

void TestApplication::digitTypedIntoASpinBox_arrivesOnce()
{
    QSpinBox spinBox;
    spinBox.setRange(0, 9999);
    spinBox.setValue(1);
    typeInto(&spinBox, Qt::Key_Delete);
    spinBox.clear();
    typeInto(&spinBox, Qt::Key_7);
    QCOMPARE(spinBox.text(), QStringLiteral("7"));
}

void TestApplication::shortcut_isEmittedOnce()
{
    tabs()->setCurrentIndex(0);
    QSignalSpy pressed(static_cast<Application *>(qApp), &Application::signal_keyPress);
    typeInto(tabs()->widget(0)->findChild<QSpinBox *>(), Qt::Key_PageDown);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(tabs()->currentIndex(), 1);
}

void TestApplication::shortcut_worksFromTheTestWindow()
{
    tabs()->setCurrentIndex(0);
    typeInto(testWindow(), Qt::Key_PageDown);
    QCOMPARE(tabs()->currentIndex(), 1);
}

// Backspace starts the automatic run of the purity test, which shows in its mode buttons.
void TestApplication::backspaceThatNobodyTook_isTheDeleteShortcut()
{
    tabs()->setCurrentIndex(1);
    auto *automatic = find<QRadioButton>("radioButtonAuto");
    find<QRadioButton>("radioButtonMual")->setChecked(true);
    typeInto(find<QSlider>("hScrollBarScale"), Qt::Key_Backspace);
    QVERIFY(automatic->isChecked());
}

void TestApplication::backspaceInASpinBox_isNoShortcut()
{
    tabs()->setCurrentIndex(1);
    auto *manual = find<QRadioButton>("radioButtonMual");
    manual->setChecked(true);
    find<QSpinBox>("spinBoxScale")->setValue(200);
    typeInto(find<QSpinBox>("spinBoxScale"), Qt::Key_Backspace);
    QVERIFY(manual->isChecked());
}

void TestApplication::space_doesNothing()
{
    tabs()->setCurrentIndex(0);
    auto *hide = tabs()->widget(0)->findChildren<QPushButton *>().constLast();
    typeInto(hide, Qt::Key_Space);
    QVERIFY(testWindow()->isVisible());
    QCOMPARE(tabs()->currentIndex(), 0);
}

void TestApplication::keyNumberPress_knowsWhatPasses()
{
    const auto passes = [](int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        return Application::keyNumberPress(&event);
    };
    for (int key = Qt::Key_0; key <= Qt::Key_9; ++key) {
        QVERIFY(passes(key));
        QVERIFY(passes(key, Qt::ShiftModifier | Qt::ControlModifier));
    }
    QVERIFY(passes(Qt::Key_Backspace));
    QVERIFY(passes(Qt::Key_Delete));
    for (const int key :
         {int(Qt::Key_0) - 1, int(Qt::Key_9) + 1, int(Qt::Key_A), int(Qt::Key_Enter),
          int(Qt::Key_Return), int(Qt::Key_Tab), int(Qt::Key_Escape), int(Qt::Key_Space)})
        QVERIFY(!passes(key));
}

int main(int argc, char **argv)
{
    const QString settingsFile =
        QFileInfo(QString::fromLocal8Bit(argv[0])).absolutePath() + QStringLiteral("/config.ini");
    QFile::remove(settingsFile);
    Application application(argc, argv);
    application.mainWindow().show();
    TestApplication test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_application.moc"
