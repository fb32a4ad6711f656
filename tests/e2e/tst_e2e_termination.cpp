#include "endtoendtest.h"
#include "waiting.h"

#include <QTest>

#include <csignal>

/// However the program is ended, it ends in the ordinary way and loses no
/// setting.
class tst_e2e_termination : public EndToEndTest
{
    Q_OBJECT

private slots:
    void signal_endsInTheOrdinaryWay();
    void closingTheControlWindow_endsInTheOrdinaryWay();
    void closingTheTestWindow_keepsTheProgramRunning();

private:
    void changeGreyTo254();
    QVariant savedGrey();
};

void tst_e2e_termination::changeGreyTo254()
{
    QVERIFY(startTool());
    desktop().keyboard().key("Next");
    desktop().keyboard().key("Down");
    QVERIFY(testWindowTurns(qRgb(0, 254, 0)));
}

QVariant tst_e2e_termination::savedGrey()
{
    return tool().configValue(QStringLiteral("/setting/testPurityGreyLevel"));
}

void tst_e2e_termination::signal_endsInTheOrdinaryWay()
{
    changeGreyTo254();
    if (QTest::currentTestFailed())
        return;

    QVERIFY2(tool().endBySignal(SIGTERM), qPrintable(tool().problem()));
    QCOMPARE(savedGrey().toInt(), 254);
}

void tst_e2e_termination::closingTheControlWindow_endsInTheOrdinaryWay()
{
    changeGreyTo254();
    if (QTest::currentTestFailed())
        return;

    QVERIFY2(tool().quit(), qPrintable(tool().problem()));
    QCOMPARE(savedGrey().toInt(), 254);
}

void tst_e2e_termination::closingTheTestWindow_keepsTheProgramRunning()
{
    QVERIFY(startTool());

    desktop().windows().close(tool().testWindow().id);
    QVERIFY(waitFor([this] { return !tool().testWindow().isMapped; }));
    QVERIFY(desktop().windows().answersPing(tool().controlWindow().id));

    QVERIFY2(tool().quit(), qPrintable(tool().problem()));
}

QTEST_GUILESS_MAIN(tst_e2e_termination)
#include "tst_e2e_termination.moc"
