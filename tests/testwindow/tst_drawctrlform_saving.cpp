#include "placementpanel.h"
#include "testsettings.h"

#include <QDataStream>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>

namespace {

const QString keyX = QStringLiteral("testWindowPointX");
const QString keyY = QStringLiteral("testWindowPointY");
const QString keyWidth = QStringLiteral("testWindowWidth");
const QString keyHeight = QStringLiteral("testWindowHeight");
const QString keyVisible = QStringLiteral("testWindowVisible");

// A whole placement that restores as it is.
QVariantMap savedPlacement()
{
    return {{keyX, 30}, {keyY, 40}, {keyWidth, 120}, {keyHeight, 120}, {keyVisible, false}};
}

// The file as it stands on the disk, with no help of the settings object.
QByteArray onDisk(const TestSettings &settings)
{
    QFile file(settings.path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Settings whose file notes how often it is written.
class CountedSettings
{
public:
    CountedSettings() { writes = 0; }

    QSettings *get() { return &m_settings; }

    static int writes;

private:
    static QSettings::Format format()
    {
        static const QSettings::Format counted =
            QSettings::registerFormat(QStringLiteral("counted"), read, write);
        return counted;
    }

    static bool read(QIODevice &device, QSettings::SettingsMap &values)
    {
        QDataStream stream(&device);
        stream >> values;
        return true;
    }

    static bool write(QIODevice &device, const QSettings::SettingsMap &values)
    {
        QDataStream stream(&device);
        stream << values;
        ++writes;
        return true;
    }

    QTemporaryDir m_folder;
    QSettings m_settings{m_folder.filePath(QStringLiteral("config.counted")), format()};
};

int CountedSettings::writes = 0;

// Longer than a change may stay unsaved.
bool waitPastTheDeadline()
{
    QTimer clock;
    QSignalSpy ticks(&clock, &QTimer::timeout);
    clock.start(100);
    while (ticks.count() < 12) {
        if (!ticks.wait())
            return false;
    }
    return true;
}

} // namespace

using Change = std::function<void(PlacementPanel &)>;
Q_DECLARE_METATYPE(Change)

// When the panel writes to the settings file, and when it does not.
class TestDrawCtrlFormSaving : public QObject
{
    Q_OBJECT

private slots:
    void restoring_writesNothing_data();
    void restoring_writesNothing();
    void rangeChange_writesNothing();
    void placeBeyondTheDesktop_survivesARunWithoutAChange();
    void change_reachesTheFileWithinASecond_data();
    void change_reachesTheFileWithinASecond();
    void fullScreenWhileHidden_showsTheWindowInTheFileToo();
    void changes_inARunAreSavedTogether();
    void changes_thatGoOnAreSavedMeanwhile();
    void destruction_savesWhatIsStillDue();
};

void TestDrawCtrlFormSaving::restoring_writesNothing_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::newRow("empty") << QVariantMap();
    QTest::newRow("whole") << savedPlacement();
    QTest::newRow("not square") << QVariantMap{{keyWidth, 300}, {keyHeight, 200}};
    QTest::newRow("out of range") << QVariantMap{{keyX, 99999}, {keyWidth, -3}};
    QTest::newRow("wrong types") << QVariantMap{{keyX, QStringLiteral("a")},
                                                {keyVisible, QStringLiteral("b")}};
}

void TestDrawCtrlFormSaving::restoring_writesNothing()
{
    QFETCH(QVariantMap, values);
    CountedSettings settings;
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        settings.get()->setValue(QStringLiteral("/setting/") + value.key(), value.value());
    settings.get()->sync();
    CountedSettings::writes = 0;
    const QStringList keys = settings.get()->allKeys();

    const PlacementPanel panel(settings.get());
    QVERIFY(waitPastTheDeadline());

    QCOMPARE(CountedSettings::writes, 0);
    QCOMPARE(settings.get()->allKeys(), keys);
}

void TestDrawCtrlFormSaving::rangeChange_writesNothing()
{
    CountedSettings settings;
    const PlacementPanel panel(settings.get());

    panel.form->getScreenSize();
    panel.form->slot_dealScreenChange(0);
    QVERIFY(waitPastTheDeadline());

    QCOMPARE(CountedSettings::writes, 0);
}

void TestDrawCtrlFormSaving::placeBeyondTheDesktop_survivesARunWithoutAChange()
{
    // As after a start with a screen unplugged.
    QVariantMap values = savedPlacement();
    values[keyX] = 5000;
    TestSettings settings(values);
    settings.reopen();
    const QByteArray before = onDisk(settings);
    {
        const PlacementPanel panel(settings.get());
        QCOMPARE(panel.target.x(), desktopSums().width() - 1);
        panel.form->getScreenSize();
    }
    settings->sync();

    QCOMPARE(onDisk(settings), before);
    QVERIFY(before.contains("testWindowPointX=5000"));
}

void TestDrawCtrlFormSaving::change_reachesTheFileWithinASecond_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QByteArray>("line");
    const auto add = [](const char *row, const Change &change, const char *line) {
        QTest::newRow(row) << change << QByteArray(line);
    };

    add(
        "slider", [](const PlacementPanel &p) { p.x()->setValue(17); }, "PointX=17\n");
    add(
        "spin box", [](const PlacementPanel &p) { p.spinBox(QStringLiteral("Y"))->setValue(-18); },
        "PointY=-18\n");
    add(
        "key, size", [](const PlacementPanel &p) { p.form->slot_keyShiftRightPressed(); },
        "Width=121\n");
    add(
        "key, place", [](const PlacementPanel &p) { p.form->slot_keyCtrlUpPressed(); },
        "PointY=39\n");
    add(
        "mouse drag",
        [](const PlacementPanel &p) { p.form->slot_drawWidgetPositionChange(30, 99); },
        "PointY=99\n");
    add(
        "mouse resize", [](const PlacementPanel &p) { p.form->slot_drawWidgetSizeChange(120, 98); },
        "Height=98\n");
    add(
        "hide button",
        [](const PlacementPanel &p) { QTest::mouseClick(p.hideButton(), Qt::LeftButton); },
        "Visible=true\n");
    add(
        "hidden by itself", [](const PlacementPanel &p) { p.form->slot_enableShowButton(); },
        "Visible=true\n");
    add(
        "hidden by nobody in particular", [](PlacementPanel &p) { p.target.hide(); },
        "Visible=true\n");
}

void TestDrawCtrlFormSaving::change_reachesTheFileWithinASecond()
{
    QFETCH(Change, change);
    QFETCH(QByteArray, line);
    TestSettings settings(savedPlacement());
    settings.reopen();
    PlacementPanel panel(settings.get());
    QVERIFY(!onDisk(settings).contains(line));

    QElapsedTimer sinceChange;
    sinceChange.start();
    change(panel);
    QTRY_VERIFY(onDisk(settings).contains(line));

    QVERIFY(sinceChange.elapsed() < 1000);
}

void TestDrawCtrlFormSaving::fullScreenWhileHidden_showsTheWindowInTheFileToo()
{
    QVariantMap values = savedPlacement();
    values[keyVisible] = true;
    TestSettings settings(values);
    settings.reopen();
    PlacementPanel panel(settings.get());
    QVERIFY(panel.showButton()->isEnabled());

    panel.target.showFullScreen();

    QVERIFY(!panel.showButton()->isEnabled());
    QVERIFY(panel.hideButton()->isEnabled());
    QTRY_VERIFY(onDisk(settings).contains("Visible=false\n"));
}

void TestDrawCtrlFormSaving::changes_inARunAreSavedTogether()
{
    CountedSettings settings;
    const PlacementPanel panel(settings.get());

    for (int i = 1; i <= 50; ++i) {
        panel.x()->setValue(i);
        QCoreApplication::processEvents();
    }
    QVERIFY(CountedSettings::writes <= 1);
    QTRY_VERIFY(CountedSettings::writes > 0);
    QVERIFY(waitPastTheDeadline());

    QCOMPARE(CountedSettings::writes, 1);
    QCOMPARE(settings.get()->value(QStringLiteral("/setting/testWindowPointX")).toInt(), 50);
}

void TestDrawCtrlFormSaving::changes_thatGoOnAreSavedMeanwhile()
{
    CountedSettings settings;
    const PlacementPanel panel(settings.get());
    int position = 0;
    QTimer mouse;
    connect(&mouse, &QTimer::timeout, &mouse, [&] { panel.x()->setValue(++position); });
    QElapsedTimer dragging;
    dragging.start();

    mouse.start(20);
    QTRY_VERIFY(CountedSettings::writes > 0);
    QVERIFY(dragging.elapsed() < 1000);
    QTRY_VERIFY(CountedSettings::writes > 2);

    // Not at every step.
    QVERIFY(dragging.elapsed() > 1000);
    QVERIFY(position > 20);
}

void TestDrawCtrlFormSaving::destruction_savesWhatIsStillDue()
{
    TestSettings settings(savedPlacement());
    settings.reopen();
    {
        const PlacementPanel panel(settings.get());
        panel.x()->setValue(7);
        QVERIFY(onDisk(settings).contains("PointX=30"));
    }

    QCOMPARE(settings.stored().value(keyX).toInt(), 7);
}

QTEST_MAIN(TestDrawCtrlFormSaving)
#include "tst_drawctrlform_saving.moc"
