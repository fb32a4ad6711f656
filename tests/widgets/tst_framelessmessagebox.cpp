#include "framelessmessagebox.h"
#include "rows.h"
#include "titlebar.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTimer>
#include <QtTest>

using UX::Widgets::FramelessMessageBox;
using UX::Widgets::TitleBar;

Q_DECLARE_METATYPE(QMessageBox::Icon)
Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace {

const QString warningText = QStringLiteral("混测设置：请至少选中一项！");

// A message box whose title bar is in reach of the test.
class SampleBox : public FramelessMessageBox
{
public:
    using FramelessMessageBox::FramelessMessageBox;
    using FramelessMessageBox::m_cancelButton;
    using FramelessMessageBox::m_okButton;
    using FramelessMessageBox::m_titleBar;

    explicit SampleBox(QMessageBox::StandardButtons buttons)
        : FramelessMessageBox(QMessageBox::Warning, QStringLiteral("提示"), warningText, buttons)
    { }

    QWidget *closeButton() const { return m_titleBar->titleButton(TitleBar::CloseButton); }
    QLabel *textLabel() const { return findChild<QLabel *>(QStringLiteral("messageText")); }
    QLabel *iconLabel() const { return findChild<QLabel *>(QStringLiteral("messageIcon")); }
    QRect areaOf(const QWidget *part) const { return {part->mapTo(this, QPoint()), part->size()}; }
};

} // namespace

class TestFramelessMessageBox : public QObject
{
    Q_OBJECT

private slots:
    void box_isModalAndShowsTitleTextAndIcon();
    void icon_followsItsKind_data();
    void icon_followsItsKind();
    void button_isFoundByStandardButton();
    void noButtons_givesOk();
    void click_isTheResult_data();
    void click_isTheResult();
    void closing_isNoButton_data();
    void closing_isNoButton();
    void enter_clicksTheDefaultButton();
    void smallBox_showsTheWholeText();
    void smallBox_growsForALongText();
};

void TestFramelessMessageBox::box_isModalAndShowsTitleTextAndIcon()
{
    SampleBox box(QMessageBox::Ok);
    box.show();
    QCOMPARE(box.m_titleBar->title(), QStringLiteral("提示"));
    QCOMPARE(box.textLabel()->text(), warningText);
    QVERIFY(box.textLabel()->isVisible());
    QVERIFY(box.iconLabel()->isVisible());
    QVERIFY(box.closeButton()->isVisible());
    QVERIFY(!box.m_okButton->isVisible());
    QVERIFY(!box.m_cancelButton->isVisible());
    QVERIFY(box.isModal());
    QVERIFY(box.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(box.windowFlags().testFlag(Qt::MSWindowsFixedSizeDialogHint));
    QCOMPARE(box.windowType(), Qt::Dialog);
}

void TestFramelessMessageBox::icon_followsItsKind_data()
{
    const Table<QMessageBox::Icon, int> row("icon", "standardPixmap");
    row("none", QMessageBox::NoIcon, -1);
    row("information", QMessageBox::Information, int(QStyle::SP_MessageBoxInformation));
    row("warning", QMessageBox::Warning, int(QStyle::SP_MessageBoxWarning));
    row("critical", QMessageBox::Critical, int(QStyle::SP_MessageBoxCritical));
    row("question", QMessageBox::Question, int(QStyle::SP_MessageBoxQuestion));
}

void TestFramelessMessageBox::icon_followsItsKind()
{
    QFETCH(QMessageBox::Icon, icon);
    QFETCH(int, standardPixmap);
    SampleBox box(icon, QString(), warningText, QMessageBox::Ok);
    box.show();
    QCOMPARE(box.iconLabel()->isVisible(), standardPixmap >= 0);
    if (standardPixmap < 0)
        return;
    const int side = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box);
    const QIcon expected = box.style()->standardIcon(QStyle::StandardPixmap(standardPixmap));
    QCOMPARE(box.iconLabel()->property("pixmap").value<QPixmap>().toImage(),
             expected.pixmap(side, side).toImage());
}

void TestFramelessMessageBox::button_isFoundByStandardButton()
{
    const SampleBox box(QMessageBox::Ok | QMessageBox::Cancel);
    QVERIFY(box.button(QMessageBox::Ok));
    QVERIFY(box.button(QMessageBox::Cancel));
    QVERIFY(box.button(QMessageBox::Ok) != box.button(QMessageBox::Cancel));
    QCOMPARE(box.button(QMessageBox::Yes), nullptr);
    QCOMPARE(box.button(QMessageBox::Ok)->objectName(), QStringLiteral("DialogPushBtn"));
    QCOMPARE(box.button(QMessageBox::Ok)->minimumWidth(), 70);
}

void TestFramelessMessageBox::noButtons_givesOk()
{
    const SampleBox box(QMessageBox::NoButton);
    QVERIFY(box.button(QMessageBox::Ok));
    QCOMPARE(box.findChild<QDialogButtonBox *>()->buttons().size(), 1);
}

void TestFramelessMessageBox::click_isTheResult_data()
{
    addRows<QMessageBox::StandardButton>(
        "which", {{"yes", QMessageBox::Yes}, {"cancel", QMessageBox::Cancel}});
}

void TestFramelessMessageBox::click_isTheResult()
{
    QFETCH(QMessageBox::StandardButton, which);
    SampleBox box(QMessageBox::Yes | QMessageBox::Cancel);
    QTimer::singleShot(0, &box, [&] { QTest::mouseClick(box.button(which), Qt::LeftButton); });
    QCOMPARE(box.exec(), int(which));
    QVERIFY(!box.isVisible());
}

void TestFramelessMessageBox::closing_isNoButton_data()
{
    addRows<bool>("byKey", {{"close button", false}, {"escape key", true}});
}

void TestFramelessMessageBox::closing_isNoButton()
{
    QFETCH(bool, byKey);
    SampleBox box(QMessageBox::Ok);
    QTimer::singleShot(0, &box, [&] {
        if (byKey)
            QTest::keyClick(&box, Qt::Key_Escape);
        else
            QTest::mouseClick(box.closeButton(), Qt::LeftButton);
    });
    QCOMPARE(box.exec(), int(QMessageBox::NoButton));
}

void TestFramelessMessageBox::enter_clicksTheDefaultButton()
{
    SampleBox box(QMessageBox::Ok | QMessageBox::Cancel);
    box.show();
    QVERIFY(QTest::qWaitForWindowActive(&box));
    QCOMPARE(QApplication::focusWidget(), box.button(QMessageBox::Ok));
    QVERIFY(box.button(QMessageBox::Ok)->isDefault());
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.result(), int(QMessageBox::Ok));
}

void TestFramelessMessageBox::smallBox_showsTheWholeText()
{
    SampleBox box(QMessageBox::Ok);
    box.setStyleSheet(QStringLiteral("QPushButton { min-height: 30px; }"));
    box.resize(206, 131);
    box.show();

    QCOMPARE(box.size(), QSize(206, 131));
    const QLabel *text = box.textLabel();
    QVERIFY(text->height() >= text->heightForWidth(text->width()));
    QVERIFY(text->width() > text->fontMetrics().height() * 3);
    const QRect textArea = box.areaOf(text);
    const QRect buttonArea = box.areaOf(box.button(QMessageBox::Ok));
    QVERIFY(box.rect().contains(textArea));
    QVERIFY(box.rect().contains(buttonArea));
    QVERIFY(!textArea.intersects(buttonArea));
    QVERIFY(!textArea.intersects(box.areaOf(box.iconLabel())));
    QVERIFY(buttonArea.height() >= 30);
}

void TestFramelessMessageBox::smallBox_growsForALongText()
{
    SampleBox box(QMessageBox::Warning, QString(), warningText.repeated(6), QMessageBox::Ok);
    box.resize(206, 131);
    box.show();

    QCOMPARE(box.width(), 206);
    QVERIFY(box.height() > 131);
    const QLabel *text = box.textLabel();
    QVERIFY(text->height() >= text->heightForWidth(text->width()));
}

QTEST_MAIN(TestFramelessMessageBox)
#include "tst_framelessmessagebox.moc"
