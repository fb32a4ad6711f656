#include "customerqlabel.h"
#include "rows.h"

#include <QMouseEvent>
#include <QSignalSpy>
#include <QtTest>

namespace {

// Counts the releases that its children do not keep.
class Parent : public QWidget
{
public:
    int releases = 0;

protected:
    void mouseReleaseEvent(QMouseEvent * /*event*/) override { ++releases; }
};

} // namespace

class TestCustomerQlabel : public QObject
{
    Q_OBJECT

private slots:
    void constructors_passTheirArgumentsOn();
    void release_isAClick_data();
    void release_isAClick();
    void press_isNoClick();
    void release_staysWithTheLabel();
};

void TestCustomerQlabel::constructors_passTheirArgumentsOn()
{
    QWidget parent;
    const CustomerQlabel plain(&parent, Qt::Tool);
    QVERIFY(plain.parentWidget() == &parent);
    QCOMPARE(plain.windowType(), Qt::Tool);
    QCOMPARE(plain.text(), QString());

    const CustomerQlabel text(QStringLiteral("高级"), &parent, Qt::WindowFlags());
    QVERIFY(text.parentWidget() == &parent);
    QCOMPARE(text.text(), QStringLiteral("高级"));
    QVERIFY(!text.isWindow());

    const CustomerQlabel alone;
    QVERIFY(!alone.parentWidget());
}

void TestCustomerQlabel::release_isAClick_data()
{
    const Table<int, QPoint> row("button", "position");
    row("left inside", Qt::LeftButton, {10, 10});
    row("right inside", Qt::RightButton, {10, 10});
    row("middle inside", Qt::MiddleButton, {10, 10});
    row("back inside", Qt::BackButton, {10, 10});
    row("left outside", Qt::LeftButton, {500, -20});
    row("right outside", Qt::RightButton, {-1, 0});
}

void TestCustomerQlabel::release_isAClick()
{
    QFETCH(const int, button);
    QFETCH(const QPoint, position);
    CustomerQlabel label(QStringLiteral("text"));
    label.setTextInteractionFlags(Qt::TextSelectableByMouse); // makes no difference
    label.resize(60, 20);
    QSignalSpy clicked(&label, &CustomerQlabel::clicked);
    QMouseEvent release(QEvent::MouseButtonRelease, position, Qt::MouseButton(button), Qt::NoButton,
                        Qt::NoModifier);
    QCoreApplication::sendEvent(&label, &release);

    QCOMPARE(clicked.count(), 1);
}

void TestCustomerQlabel::press_isNoClick()
{
    CustomerQlabel label;
    label.resize(60, 20);
    QSignalSpy clicked(&label, &CustomerQlabel::clicked);
    QTest::mousePress(&label, Qt::LeftButton);
    QTest::mouseMove(&label, QPoint(3, 3));
    QCOMPARE(clicked.count(), 0);
    QTest::mouseRelease(&label, Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
}

void TestCustomerQlabel::release_staysWithTheLabel()
{
    Parent parent;
    CustomerQlabel label(&parent);
    label.resize(60, 20);
    QTest::mouseRelease(&label, Qt::LeftButton);
    // A label of Qt's own hands the release on.
    QLabel plain(&parent);
    plain.resize(60, 20);
    QCOMPARE(parent.releases, 0);
    QTest::mouseRelease(&plain, Qt::LeftButton);
    QCOMPARE(parent.releases, 1);
}

QTEST_MAIN(TestCustomerQlabel)
#include "tst_customerqlabel.moc"
