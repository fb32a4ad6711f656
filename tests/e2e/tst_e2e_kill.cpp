#include "endtoendtest.h"
#include "waiting.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <random>

/// Killed at any instant, the program leaves a "config.ini" that is whole and
/// at most a second old, and starts again.
class tst_e2e_kill : public EndToEndTest
{
    Q_OBJECT

private slots:
    void killWhileValuesChange_leavesAWholeAndRecentFile();

private:
    /// When the test window was seen at a new X.
    struct Sighting
    {
        qint64 time; // of m_clock, in milliseconds
        int x;
    };

    QVector<Sighting> moveFor(int milliseconds, int from);
    QByteArray configText();
    bool isWhole(const QByteArray &text);

    QElapsedTimer m_clock;
};

namespace {
constexpr int Rounds = 12;
constexpr int OldestMs = 1000;
constexpr int KeyInterval = 5;
constexpr unsigned int Seed = 4711;
const QString PointX = QStringLiteral("/setting/testWindowPointX");

int direction(int x)
{
    return x < 500 ? 1 : -1;
}
} // namespace

/// Presses Ctrl+Right or Ctrl+Left, whichever leads to the middle of the screen,
/// again and again, and each time waits until the test window has moved.
QVector<tst_e2e_kill::Sighting> tst_e2e_kill::moveFor(int milliseconds, int from)
{
    QVector<Sighting> seen{{m_clock.elapsed(), from}};
    const int step = direction(from);
    const WindowId window = tool().testWindow().id;
    const qint64 end = m_clock.elapsed() + milliseconds;
    while (m_clock.elapsed() < end) {
        const int next = seen.last().x + step;
        desktop().keyboard().key(step > 0 ? "Right" : "Left", Qt::ControlModifier);
        if (!waitFor([&] { return desktop().windows().info(window).geometry.x() == next; }))
            break;
        seen.append({m_clock.elapsed(), next});
        QTest::qWait(KeyInterval);
    }
    return seen;
}

QByteArray tst_e2e_kill::configText()
{
    QFile file(tool().directory() + QStringLiteral("/config.ini"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Whether there is the one section, with a key and a value in each line.
bool tst_e2e_kill::isWhole(const QByteArray &text)
{
    if (!text.startsWith("[setting]\n") || !text.endsWith('\n'))
        return false;
    const QList<QByteArray> lines = text.trimmed().split('\n').mid(1);
    return std::all_of(lines.cbegin(), lines.cend(), [](const QByteArray &line) {
        return line.indexOf('=') > 0 && line.indexOf('=') < line.size() - 1;
    });
}

void tst_e2e_kill::killWhileValuesChange_leavesAWholeAndRecentFile()
{
    qInfo("Seed %u", Seed);
    std::mt19937 random(Seed);
    m_clock.start();
    // All keys are there once it has ended in the ordinary way.
    QVERIFY(startTool());
    QVERIFY2(tool().endBySignal(SIGTERM), qPrintable(tool().problem()));
    const QStringList keys = tool().configIni().keys();
    QVERIFY(keys.contains(PointX));
    const auto withoutX = [this] {
        QVariantMap values = tool().configIni();
        values.remove(PointX);
        return values;
    };
    const QVariantMap others = withoutX();

    for (int round = 0; round < Rounds; ++round) {
        const int from = tool().configValue(PointX).toInt();
        QVERIFY(startTool());
        QCOMPARE(tool().testWindow().geometry.x(), from);
        const QVector<Sighting> seen = moveFor(300 + int(random() % 1500), from);
        QVERIFY(seen.count() > 1);
        const qint64 killTime = m_clock.elapsed();
        tool().kill();

        QVERIFY2(isWhole(configText()), configText().constData());
        QCOMPARE(tool().configIni().keys(), keys);
        QCOMPARE(withoutX(), others);
        const int stored = tool().configValue(PointX).toInt();
        const auto way = [from](int x) { return (x - from) * direction(from); };
        QVERIFY(way(stored) <= way(seen.last().x));
        for (const Sighting &sighting : seen) {
            if (sighting.time <= killTime - scaledTimeout(OldestMs))
                QVERIFY2(way(stored) >= way(sighting.x),
                         qPrintable(QStringLiteral("Round %1: %2 is stored, %3 ms after %4")
                                        .arg(round)
                                        .arg(stored)
                                        .arg(killTime - sighting.time)
                                        .arg(sighting.x)));
        }
    }
    QVERIFY(startTool());
    QVERIFY2(tool().endBySignal(SIGTERM), qPrintable(tool().problem()));
}

QTEST_GUILESS_MAIN(tst_e2e_kill)
#include "tst_e2e_kill.moc"
