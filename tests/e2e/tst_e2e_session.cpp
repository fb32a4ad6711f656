#include "endtoendtest.h"
#include "sessionmanager.h"

#include <QTest>

/// The end of the desktop session loses no setting, even of a change that it cuts off.
class tst_e2e_session : public EndToEndTest
{
    Q_OBJECT

private slots:
    void endOfTheSession_savesAndEndsInTheOrdinaryWay();
};

void tst_e2e_session::endOfTheSession_savesAndEndsInTheOrdinaryWay()
{
    SessionManager session;
    QVERIFY(!session.address().isEmpty());
    tool().setEnvironment(QStringLiteral("SESSION_MANAGER"),
                          QString::fromLocal8Bit(session.address()));
    QVERIFY(startTool());
    QVERIFY(session.waitForProgram());
    desktop().keyboard().key("Next");
    desktop().keyboard().key("Down");
    QVERIFY(testWindowTurns(qRgb(0, 254, 0)));

    QVERIFY(session.announceEnd());
    QCOMPARE(tool().configValue(QStringLiteral("/setting/testPurityGreyLevel")).toInt(), 254);
    QVERIFY(tool().isRunning());
    QVERIFY(tool().testWindow().isMapped);

    session.dismiss();
    QVERIFY2(tool().waitForCleanExit(), qPrintable(tool().problem()));
}

QTEST_GUILESS_MAIN(tst_e2e_session)
#include "tst_e2e_session.moc"
