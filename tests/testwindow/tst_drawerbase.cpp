#include "drawerbase.h"
#include "filldrawer.h"
#include "paintcounter.h"

#include <QMetaObject>
#include <QtTest>

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

    QCOMPARE(counter.count, 0);
    QTRY_COMPARE(counter.count, 1);
}

QTEST_MAIN(TestDrawerBase)
#include "tst_drawerbase.moc"
