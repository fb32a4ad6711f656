#include "rows.h"
#include "terminationsignals.h"

#include <QSignalSpy>
#include <QTest>

#include <csignal>

class TestTerminationSignals : public QObject
{
    Q_OBJECT

private slots:
    void signal_reachesTheEventLoop_data();
    void signal_reachesTheEventLoop();
    void nothingHappens_insideTheHandler();
    void ignoredHangup_staysIgnored();
    void handlersOfBefore_comeBack();
};

namespace {

volatile std::sig_atomic_t caught = 0;

void countCaught(int /*signal*/)
{
    caught = caught + 1;
}

} // namespace

void TestTerminationSignals::signal_reachesTheEventLoop_data()
{
    addRows<int>("signal", {{"SIGINT", SIGINT}, {"SIGTERM", SIGTERM}, {"SIGHUP", SIGHUP}});
}

void TestTerminationSignals::signal_reachesTheEventLoop()
{
    QFETCH(int, signal);
    std::signal(signal, SIG_DFL);
    TerminationSignals signalsOfTheSystem;
    QSignalSpy requested(&signalsOfTheSystem, &TerminationSignals::requested);
    QCOMPARE(std::raise(signal), 0);
    QTRY_COMPARE(requested.count(), 1);
}

void TestTerminationSignals::nothingHappens_insideTheHandler()
{
    TerminationSignals signalsOfTheSystem;
    QSignalSpy requested(&signalsOfTheSystem, &TerminationSignals::requested);
    QCOMPARE(std::raise(SIGTERM), 0);
    QCOMPARE(requested.count(), 0);
    QTRY_COMPARE(requested.count(), 1);
}

void TestTerminationSignals::ignoredHangup_staysIgnored()
{
    std::signal(SIGHUP, SIG_IGN);
    {
        TerminationSignals signalsOfTheSystem;
        QSignalSpy requested(&signalsOfTheSystem, &TerminationSignals::requested);
        QCOMPARE(std::raise(SIGHUP), 0);
        QCOMPARE(std::raise(SIGTERM), 0); // comes through after it
        QTRY_COMPARE(requested.count(), 1);
        QCoreApplication::processEvents();
        QCOMPARE(requested.count(), 1);
    }
    std::signal(SIGHUP, SIG_DFL);
}

void TestTerminationSignals::handlersOfBefore_comeBack()
{
    caught = 0;
    std::signal(SIGTERM, countCaught);
    {
        TerminationSignals signalsOfTheSystem;
        QCOMPARE(std::raise(SIGTERM), 0);
        QCOMPARE(int(caught), 0);
    }
    QCOMPARE(std::raise(SIGTERM), 0);
    QCOMPARE(int(caught), 1);
    std::signal(SIGTERM, SIG_DFL);
}

QTEST_GUILESS_MAIN(TestTerminationSignals)
#include "tst_terminationsignals.moc"
