#include "configwatcher.h"
#include "endtoendtest.h"
#include "longrun.h"
#include "waiting.h"

#include <QDir>
#include <QElapsedTimer>
#include <QSaveFile>
#include <QTest>

#include <csignal>
#include <random>

/// Whatever the disk does and other programs do to "config.ini", the program answers, loses
/// nothing that can be saved, and never shows half a file.
class tst_e2e_disk : public EndToEndTest
{
    Q_OBJECT

private slots:
    void diskThatTakesNothing_getsAllOnceItDoes_data();
    void diskThatTakesNothing_getsAllOnceItDoes();
    void fileOfAnotherProgram_isWrittenWholeAgain_data();
    void fileOfAnotherProgram_isWrittenWholeAgain();
    void slowDisk_holdsNothingUp();
    void endOnASlowDisk_waitsForTheFile();
    void anotherSignalAtTheEnd_losesNothing();
    void anyFaults_loseNothing();

private:
    void start();
    void setFault(const QByteArray &fault);
    void replaceFile(const QByteArray &content);
    bool change();
    bool isAllStored();
    void breakSomething();
    int random(int count) { return int(m_random() % unsigned(count)); }

    QString configPath() { return tool().directory() + QStringLiteral("/config.ini"); }

    QTemporaryDir m_faults;
    QRect m_place;
    QStringList m_keys; // of the whole file
    std::unique_ptr<ConfigWatcher> m_watcher;
    std::mt19937 m_random;
};

namespace {
constexpr QRect Start = QRect(200, 150, 300, 300);
constexpr int AnswerMs = 1000;
/// Three writes of three seconds, and a second until the next try.
constexpr int StoreMs = 12000;
const QByteArray Full("full");
const QByteArray ReadOnly("read-only");
const QByteArray Slow("3000");

/// Lists in a list: reading them ends the program, and this one.
QByteArray hostile()
{
    constexpr int depth = 100000;
    return "[setting]\ntestWindowPointX=@Variant("
           + QByteArray("\\0\\0\\0\\x9\\0\\0\\0\\x1").repeated(depth) + ")\n";
}

bool isHostile(const QByteArray &config)
{
    return config.contains("@Variant(\\0\\0\\0\\x9");
}
} // namespace

/// Starts with every key in the file.
void tst_e2e_disk::start()
{
    QVERIFY(startToolAt(Start));
    QVERIFY2(tool().endBySignal(SIGTERM), qPrintable(tool().problem()));
    m_keys = tool().configIni().keys();
    m_place = Start;
    setFault({});
    tool().setEnvironment(QStringLiteral("LD_PRELOAD"), QStringLiteral(TARN_DISK_FAULTS));
    tool().setEnvironment(QStringLiteral("TARN_FAULTS_FOLDER"),
                          tool().directory() + QLatin1Char('/'));
    tool().setEnvironment(QStringLiteral("TARN_FAULTS_FILE"),
                          m_faults.filePath(QStringLiteral("fault")));
    // The sanitizers want to be the first library otherwise.
    tool().setEnvironment(QStringLiteral("ASAN_OPTIONS"),
                          qEnvironmentVariable("ASAN_OPTIONS")
                              + QStringLiteral(":verify_asan_link_order=0"));
    QVERIFY(startTool());
    QVERIFY(testWindowCovers(m_place));
    m_watcher = std::make_unique<ConfigWatcher>(configPath());
    QVERIFY(waitFor([this] { return m_watcher->versionCount() == 1; }));
}

void tst_e2e_disk::setFault(const QByteArray &fault)
{
    QSaveFile file(m_faults.filePath(QStringLiteral("fault")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(fault) == fault.size() && file.commit());
}

/// As another program does; removes the file for null.
void tst_e2e_disk::replaceFile(const QByteArray &content)
{
    m_watcher.reset();
    if (content.isNull()) {
        QVERIFY(QFile::remove(configPath()));
        return;
    }
    QSaveFile file(configPath());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    QVERIFY(file.commit());
}

/// Moves or resizes the test window by one key; whether it is there at once.
bool tst_e2e_disk::change()
{
    const bool isMove = random(2) != 0;
    const bool isBack = isMove ? m_place.x() > Start.right() : m_place.width() > Start.width();
    const int step = isBack ? -1 : 1;
    desktop().keyboard().key(isBack ? "Left" : "Right",
                             isMove ? Qt::ControlModifier : Qt::ShiftModifier);
    m_place.translate(isMove ? step : 0, 0);
    m_place.setWidth(m_place.width() + (isMove ? 0 : step));
    const WindowId window = tool().testWindow().id;
    QElapsedTimer elapsed;
    elapsed.start();
    if (waitFor([&] { return desktop().windows().info(window).geometry == m_place; }, AnswerMs))
        return true;
    waitFor([&] { return desktop().windows().info(window).geometry == m_place; });
    qWarning() << "The window is at" << desktop().windows().info(window).geometry << "and not at"
               << m_place << "after" << elapsed.elapsed() << "ms" << tool().problem();
    return false;
}

/// Whether everything comes to be in the file, which nobody has seen in any other state than whole.
bool tst_e2e_disk::isAllStored()
{
    const auto isStored = [this] {
        return !isHostile(ConfigWatcher::text(configPath())) && stored() == m_place
               && tool().configIni().keys() == m_keys;
    };
    if (!waitFor(isStored, StoreMs)) {
        qWarning() << ConfigWatcher::text(configPath()).left(2000) << "has not" << m_place;
        return false;
    }
    if (!m_watcher) {
        m_watcher = std::make_unique<ConfigWatcher>(configPath());
        return true;
    }
    if (!m_watcher->problem().isNull())
        qWarning("%s", qPrintable(m_watcher->problem()));
    return m_watcher->problem().isNull();
}

void tst_e2e_disk::diskThatTakesNothing_getsAllOnceItDoes_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::newRow("full") << Full;
    QTest::newRow("read-only") << ReadOnly;
}

void tst_e2e_disk::diskThatTakesNothing_getsAllOnceItDoes()
{
    QFETCH(const QByteArray, fault);
    start();
    QVERIFY(!QTest::currentTestFailed());
    setFault(fault);
    QElapsedTimer elapsed;
    elapsed.start();
    while (elapsed.elapsed() < AnswerMs)
        QVERIFY(change());
    // Longer than a save comes after the last change.
    while (elapsed.elapsed() < 3 * AnswerMs)
        QVERIFY(desktop().windows().answersPing(tool().controlWindow().id, AnswerMs));
    QCOMPARE(stored(), Start);
    setFault({});
    QVERIFY(isAllStored());
    QVERIFY2(tool().quit(), qPrintable(tool().problem()));
}

void tst_e2e_disk::fileOfAnotherProgram_isWrittenWholeAgain_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("none") << QByteArray();
    QTest::newRow("another") << QByteArray("[setting]\ntestWindowPointX=7\n");
    QTest::newRow("hostile") << hostile();
}

void tst_e2e_disk::fileOfAnotherProgram_isWrittenWholeAgain()
{
    QFETCH(const QByteArray, content);
    start();
    QVERIFY(!QTest::currentTestFailed());
    replaceFile(content);
    QVERIFY(change());
    QVERIFY(isAllStored());
    QVERIFY2(tool().quit(), qPrintable(tool().problem()));
    QVERIFY(isAllStored());
}

void tst_e2e_disk::slowDisk_holdsNothingUp()
{
    start();
    QVERIFY(!QTest::currentTestFailed());
    setFault(Slow);
    // Until the first save is done, and so another one on its way.
    while (m_watcher->versionCount() == 1)
        QVERIFY(change() && desktop().windows().answersPing(tool().controlWindow().id, AnswerMs));
    QVERIFY(change());
    setFault({});
    QVERIFY(isAllStored());
    QVERIFY2(tool().quit(), qPrintable(tool().problem()));
}

void tst_e2e_disk::endOnASlowDisk_waitsForTheFile()
{
    start();
    QVERIFY(!QTest::currentTestFailed());
    setFault("500");
    QVERIFY(change());
    QVERIFY2(tool().quit(), qPrintable(tool().problem()));
    QCOMPARE(stored(), m_place);
    QVERIFY(isAllStored());
}

/// A terminal that is closed sends more than one.
void tst_e2e_disk::anotherSignalAtTheEnd_losesNothing()
{
    start();
    QVERIFY(!QTest::currentTestFailed());
    setFault("1000");
    QVERIFY(change());
    const auto sendSignal = [this] { ::kill(pid_t(tool().processId()), SIGTERM); };
    sendSignal();
    QVERIFY(waitFor([this] {
        return !desktop().windows().answersPing(tool().controlWindow().id, AnswerMs / 10);
    }));
    sendSignal();
    QVERIFY2(tool().waitForCleanExit(), qPrintable(tool().problem()));
    QVERIFY(isAllStored());
}

void tst_e2e_disk::breakSomething()
{
    switch (random(7)) {
    case 0:
        return setFault(Full);
    case 1:
        return setFault(ReadOnly);
    case 2:
        return setFault(QByteArray::number(random(3000)));
    case 3:
        return replaceFile({});
    case 4:
        return replaceFile(hostile());
    case 5:
        return replaceFile("[setting]\ntestWindowPointX=7\n");
    default:
        return; // well
    }
}

void tst_e2e_disk::anyFaults_loseNothing()
{
    const quint32 seed = LongRun::seed(1);
    const int rounds = LongRun::count(4);
    qInfo("Seed %u, %d rounds", seed, rounds);
    m_random.seed(seed);
    start();
    QVERIFY(!QTest::currentTestFailed());
    const qint64 memory = LongRun::residentMemory(tool().processId());
    for (int round = 0; round < rounds; ++round) {
        const QString where = QStringLiteral("Round %1").arg(round);
        breakSomething();
        QVERIFY2(!QTest::currentTestFailed(), qPrintable(where));
        const QRect before = m_place;
        for (int changes = random(50); changes > 0 || m_place == before; --changes)
            QVERIFY2(change(), qPrintable(where));
        setFault({});
        QVERIFY2(isAllStored(), qPrintable(where));
    }
    LongRun::report(rounds, memory, LongRun::residentMemory(tool().processId()));
    QVERIFY2(tool().quit(), qPrintable(tool().problem()));
    QVERIFY(isAllStored());
}

QTEST_GUILESS_MAIN(tst_e2e_disk)
#include "tst_e2e_disk.moc"
