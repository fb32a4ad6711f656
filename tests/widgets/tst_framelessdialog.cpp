#include "framelessdialog.h"
#include "rows.h"
#include "titlebar.h"
#include "windowdrag.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>
#include <QtTest>

using UX::Widgets::FramelessDialog;
using UX::Widgets::TitleBar;

namespace {

// A dialog as the program derives them, with its protected members in reach of the test.
class SampleDialog : public FramelessDialog
{
public:
    using FramelessDialog::FramelessDialog;
    using FramelessDialog::m_cancelButton;
    using FramelessDialog::m_content;
    using FramelessDialog::m_okButton;
    using FramelessDialog::m_titleBar;

    QPoint placeWhenShown;

    QRect areaOf(const QWidget *part) const { return {part->mapTo(this, QPoint()), part->size()}; }

protected:
    void showEvent(QShowEvent *event) override
    {
        placeWhenShown = pos();
        FramelessDialog::showEvent(event);
    }
};

} // namespace

class TestFramelessDialog : public QObject
{
    Q_OBJECT

private slots:
    void dialog_isFramelessWhateverTheFlags_data();
    void dialog_isFramelessWhateverTheFlags();
    void windowTitle_showsInTheTitleBar();
    void layout_goesIntoTheContentArea();
    void buttons_areVisibleAndNamed();
    void okButton_acceptsAndTheOthersReject_data();
    void okButton_acceptsAndTheOthersReject();
    void buttonRow_goesWithTheLastButton_data();
    void buttonRow_goesWithTheLastButton();
    void focus_isOnTheDefaultButton_data();
    void focus_isOnTheDefaultButton();
    void background_isFilledWithTheDefaultColor();
    void edge_isAllAroundAndOnePixelWide();
    void drag_movesTheDialogUnmaximised();

    void modality_followsTheWayOfShowing();
    void firstShow_centresOnTheParentWindow();
    void firstShow_staysOnTheScreen_data();
    void firstShow_staysOnTheScreen();
    void placeThatIsSet_isKept();
};

void TestFramelessDialog::dialog_isFramelessWhateverTheFlags_data()
{
    addRows<Qt::WindowFlags>(
        "flags", {{"none", Qt::WindowFlags()},
                  {"dialog", Qt::WindowFlags(Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint)}});
}

void TestFramelessDialog::dialog_isFramelessWhateverTheFlags()
{
    QFETCH(Qt::WindowFlags, flags);
    const SampleDialog dialog(nullptr, flags);
    QCOMPARE(dialog.windowType(), Qt::Dialog);
    QVERIFY(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(dialog.windowFlags() & flags, flags);
}

void TestFramelessDialog::windowTitle_showsInTheTitleBar()
{
    SampleDialog dialog;
    dialog.resize(360, 200);
    dialog.show();
    dialog.setWindowTitle(QStringLiteral("高级设置"));
    QCOMPARE(dialog.m_titleBar->title(), QStringLiteral("高级设置"));
    QCOMPARE(dialog.m_titleBar->findChild<QLabel *>()->text(), QStringLiteral("高级设置"));
}

void TestFramelessDialog::layout_goesIntoTheContentArea()
{
    SampleDialog dialog;
    auto *label = new QLabel(QStringLiteral("content"));
    auto *layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    dialog.setLayout(layout);
    dialog.resize(360, 220);
    dialog.show();

    QCOMPARE(dialog.m_content->layout(), layout);
    QCOMPARE(label->parentWidget(), dialog.m_content);
    const QRect bar = dialog.areaOf(dialog.m_titleBar);
    const QRect content = dialog.areaOf(dialog.m_content);
    QCOMPARE(bar, QRect(0, 0, 360, 28));
    QCOMPARE(content.topLeft(), QPoint(0, 28));
    QCOMPARE(content.width(), 360);
    QCOMPARE(dialog.areaOf(label), content);
    QVERIFY(content.bottom() < dialog.areaOf(dialog.m_okButton).top());
    QVERIFY(dialog.rect().contains(dialog.areaOf(dialog.m_okButton)));
}

void TestFramelessDialog::buttons_areVisibleAndNamed()
{
    SampleDialog dialog;
    dialog.show();
    QVERIFY(dialog.m_okButton->isVisible());
    QVERIFY(dialog.m_cancelButton->isVisible());
    QCOMPARE(dialog.m_okButton->text(), QStringLiteral("确定"));
    QCOMPARE(dialog.m_cancelButton->text(), QStringLiteral("取消"));
    QVERIFY(dialog.areaOf(dialog.m_okButton).right() < dialog.areaOf(dialog.m_cancelButton).left());
    for (const QPushButton *button : {dialog.m_okButton, dialog.m_cancelButton}) {
        QCOMPARE(button->objectName(), QStringLiteral("DialogPushBtn"));
        QCOMPARE(button->minimumWidth(), 70);
    }
}

void TestFramelessDialog::okButton_acceptsAndTheOthersReject_data()
{
    addNames<QByteArray>("button", {"OK", "Cancel", "Close"});
}

void TestFramelessDialog::okButton_acceptsAndTheOthersReject()
{
    QFETCH(const QByteArray, button);
    SampleDialog dialog;
    QWidget *clicked = dialog.m_titleBar->titleButton(TitleBar::CloseButton);
    if (button != "Close")
        clicked = button == "OK" ? dialog.m_okButton : dialog.m_cancelButton;
    const QSignalSpy rejected(&dialog, &QDialog::rejected);
    QTimer::singleShot(0, &dialog, [clicked] { QTest::mouseClick(clicked, Qt::LeftButton); });
    QCOMPARE(dialog.exec(), int(button == "OK" ? QDialog::Accepted : QDialog::Rejected));
    QCOMPARE(rejected.count(), button == "OK" ? 0 : 1);
    QVERIFY(!dialog.isVisible());
}

void TestFramelessDialog::buttonRow_goesWithTheLastButton_data()
{
    const Table<bool, bool> row("ok", "cancel");
    row("both", true, true);
    row("OK alone", true, false);
    row("Cancel alone", false, true);
    row("none", false, false);
}

void TestFramelessDialog::buttonRow_goesWithTheLastButton()
{
    QFETCH(bool, ok);
    QFETCH(bool, cancel);
    SampleDialog dialog;
    dialog.setFixedSize(360, 220);
    dialog.setOKButtonVisible(ok);
    dialog.setCancelButtonVisible(cancel);
    dialog.show();

    QCOMPARE(dialog.m_okButton->isVisible(), ok);
    QCOMPARE(dialog.m_cancelButton->isVisible(), cancel);
    const bool contentReachesTheBottom = dialog.areaOf(dialog.m_content).bottom() == 219;
    QCOMPARE(contentReachesTheBottom, !ok && !cancel);

    dialog.setOKButtonVisible(true);
    QTRY_VERIFY(dialog.areaOf(dialog.m_content).bottom() < 219);
    QVERIFY(dialog.m_okButton->isVisible());
}

void TestFramelessDialog::focus_isOnTheDefaultButton_data()
{
    const Table<bool, bool> row("ok", "set");
    row("OK", true, false);
    row("Cancel, without OK", false, false);
    row("where the subclass has set it", true, true);
}

void TestFramelessDialog::focus_isOnTheDefaultButton()
{
    QFETCH(bool, ok);
    QFETCH(bool, set);
    SampleDialog dialog;
    auto *layout = new QVBoxLayout;
    auto *edit = new QLineEdit;
    layout->addWidget(edit);
    dialog.setLayout(layout);
    dialog.setOKButtonVisible(ok);
    if (set)
        edit->setFocus();
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));

    QPushButton *button = ok ? dialog.m_okButton : dialog.m_cancelButton;
    QCOMPARE(QApplication::focusWidget(), set ? static_cast<QWidget *>(edit) : button);
    QVERIFY(set || button->isDefault());
}

void TestFramelessDialog::background_isFilledWithTheDefaultColor()
{
    QCOMPARE(FramelessDialog::m_defaultBackgroundColor, QColor(48, 50, 56));
    SampleDialog dialog;
    dialog.resize(360, 220);
    dialog.show();
    QCOMPARE(dialog.grab().toImage().pixelColor(180, 100), QColor(48, 50, 56));

    FramelessDialog::m_defaultBackgroundColor = QColor(1, 2, 3);
    const QImage changed = dialog.grab().toImage();
    FramelessDialog::m_defaultBackgroundColor = QColor(48, 50, 56);
    for (const QPoint &point : {QPoint(0, 0), QPoint(359, 219), QPoint(180, 100)})
        QCOMPARE(changed.pixelColor(point), QColor(1, 2, 3));
}

void TestFramelessDialog::edge_isAllAroundAndOnePixelWide()
{
    SampleDialog dialog(nullptr, Qt::WindowFlags());
    dialog.setStyleSheet(QStringLiteral("QWidget#DialogEdge { background-color: red }"));
    dialog.resize(300, 200);
    dialog.show();
    dialog.resize(310, 190);
    const QImage image = dialog.grab().toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool isEdge = !image.rect().adjusted(1, 1, -1, -1).contains(x, y);
            QCOMPARE(image.pixelColor(x, y) == Qt::red, isEdge);
        }
    }
}

void TestFramelessDialog::drag_movesTheDialogUnmaximised()
{
    SampleDialog dialog;
    dialog.setGeometry(200, 150, 360, 220);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::mouseDClick(dialog.m_titleBar, Qt::LeftButton, Qt::NoModifier, QPoint(40, 14));
    QVERIFY(!dialog.isMaximized());
    dragThroughTheWindow(dialog, QPoint(40, 14), QPoint(-23, 71), Qt::LeftButton);
    QCOMPARE(dialog.geometry(), QRect(177, 221, 360, 220));
}

void TestFramelessDialog::modality_followsTheWayOfShowing()
{
    SampleDialog shown;
    shown.show();
    QVERIFY(!shown.isModal());

    SampleDialog opened;
    opened.open();
    QVERIFY(opened.isVisible());
    QCOMPARE(opened.windowModality(), Qt::WindowModal);

    SampleDialog executed;
    Qt::WindowModality modality = Qt::NonModal;
    QTimer::singleShot(0, &executed, [&] {
        modality = executed.windowModality();
        executed.done(7);
    });
    QCOMPARE(executed.exec(), 7);
    QCOMPARE(modality, Qt::ApplicationModal);
}

void TestFramelessDialog::firstShow_centresOnTheParentWindow()
{
    QWidget window(nullptr, Qt::FramelessWindowHint);
    window.setGeometry(100, 120, 500, 300);
    auto *panel = new QWidget(&window);
    panel->setGeometry(300, 200, 50, 50);
    window.show();
    SampleDialog dialog(panel);
    dialog.resize(300, 200);
    dialog.show();
    QCOMPARE(dialog.geometry(), QRect(200, 170, 300, 200));
    QCOMPARE(dialog.placeWhenShown, QPoint(200, 170));
}

void TestFramelessDialog::firstShow_staysOnTheScreen_data()
{
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    const Table<QPoint, QPoint> row("parentPlace", "expected");
    row("top left", area.topLeft(), area.topLeft());
    row("bottom right", area.bottomRight() - QPoint(60, 60), area.bottomRight() - QPoint(299, 199));
}

void TestFramelessDialog::firstShow_staysOnTheScreen()
{
    QFETCH(QPoint, parentPlace);
    QFETCH(QPoint, expected);
    QWidget window(nullptr, Qt::FramelessWindowHint);
    window.setGeometry(QRect(parentPlace, QSize(60, 60)));
    window.show();
    SampleDialog dialog(&window);
    dialog.resize(300, 200);
    dialog.show();
    QCOMPARE(dialog.geometry(), QRect(expected, QSize(300, 200)));
}

void TestFramelessDialog::placeThatIsSet_isKept()
{
    SampleDialog dialog;
    for (const QPoint &place : {QPoint(33, 44), QPoint(55, 66)}) { // before the first show as well
        dialog.move(place);
        dialog.show();
        QCOMPARE(dialog.pos(), place);
        dialog.hide();
    }
    dialog.show();
    QCOMPARE(dialog.pos(), QPoint(55, 66));
}

QTEST_MAIN(TestFramelessDialog)
#include "tst_framelessdialog.moc"
