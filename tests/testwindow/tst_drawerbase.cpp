#include "drawerbase.h"
#include "filldrawer.h"

#include <QEvent>
#include <QMetaObject>
#include <QtTest>

namespace {

// Counts the paint events of a widget.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return QObject::eventFilter(watched, event);
    }

    int paints = 0;
};

} // namespace

class TestDrawerBase : public QObject
{
    Q_OBJECT

private slots:
    void constructor_startsInactiveOnItsTarget();
    void constructor_makesNoChildOfTheTarget();
    void metaObject_hasNothingOfItsOwn();
    void update_repaintsTheTargetOnTheNextTurn();
};

void TestDrawerBase::constructor_startsInactiveOnItsTarget()
{
    QWidget target;
    const FillDrawer drawer(&target, Qt::red);

    QVERIFY(!drawer.active);
    QCOMPARE(drawer.targetWidget, &target);
}

void TestDrawerBase::constructor_makesNoChildOfTheTarget()
{
    QWidget target;
    const FillDrawer drawer(&target, Qt::red);

    QVERIFY(!drawer.parent());
    QVERIFY(target.children().isEmpty());
}

void TestDrawerBase::metaObject_hasNothingOfItsOwn()
{
    QWidget target;
    const FillDrawer drawer(&target, Qt::red);
    const QMetaObject *meta = drawer.metaObject();

    // A drawer that declares none answers with the base's.
    QCOMPARE(QString::fromLatin1(meta->className()), QStringLiteral("DrawerBase"));
    QCOMPARE(meta->superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta->methodCount(), meta->methodOffset());
    QCOMPARE(meta->propertyCount(), meta->propertyOffset());
}

void TestDrawerBase::update_repaintsTheTargetOnTheNextTurn()
{
    QWidget target;
    target.resize(50, 50);
    target.show();
    QVERIFY(QTest::qWaitForWindowExposed(&target));
    PaintCounter counter(&target);
    FillDrawer drawer(&target, Qt::red);

    static_cast<DrawerBase &>(drawer).update();

    QCOMPARE(counter.paints, 0);
    QTRY_COMPARE(counter.paints, 1);
}

QTEST_MAIN(TestDrawerBase)
#include "tst_drawerbase.moc"
