#include "drawcontainer.h"
#include "drawctrlform.h"
#include "mainwindowrig.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSettings>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>

#include <random>

#ifdef Q_OS_LINUX
#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

namespace {

constexpr quint32 seed = 20260517;

QSize desktopSums()
{
    QSize sums(0, 0);
    const auto screens = QGuiApplication::screens();
    for (const QScreen *screen : screens)
        sums += screen->geometry().size();
    return sums;
}

// Bytes of every value, the same in every run.
QByteArray garbage(int size)
{
    std::mt19937 random(seed);
    QByteArray bytes(size, '\0');
    for (char &byte : bytes)
        byte = static_cast<char>(random() & 0xff);
    return bytes;
}

// Whatever stands there: a file, a link or a folder.
void removeAll(const QString &path)
{
    if (!QFile::remove(path))
        QDir(path).removeRecursively();
}

void writeFile(const QByteArray &content)
{
    QFile file(MainWindowRig::settingsPath());
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(content), qint64(content.size()));
}

// Takes the superuser's right to override permissions away from this process for a while.
class OrdinaryRights
{
public:
    OrdinaryRights() { set(true); }
    ~OrdinaryRights() { set(false); }
    Q_DISABLE_COPY(OrdinaryRights)

private:
    static void set(bool ordinary)
    {
#ifdef Q_OS_LINUX
        __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
        __user_cap_data_struct data[2] = {};
        if (syscall(SYS_capget, &header, data) != 0)
            return;
        constexpr quint32 overriding = 1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH;
        data[0].effective = ordinary ? data[0].effective & ~overriding : data[0].permitted;
        syscall(SYS_capset, &header, data);
#else
        Q_UNUSED(ordinary)
#endif
    }
};

// Leaves the owner nothing but reading, and what else is given, until the end of the scope.
class ReadOnly
{
public:
    ReadOnly(const QString &path, QFileDevice::Permissions more)
        : m_path(path)
        , m_before(QFile::permissions(path))
    {
        QFile::setPermissions(path, QFileDevice::ReadOwner | more);
    }
    ~ReadOnly() { QFile::setPermissions(m_path, m_before); }
    Q_DISABLE_COPY(ReadOnly)

private:
    const QString m_path;
    const QFileDevice::Permissions m_before;
};

QByteArray readFile()
{
    QFile file(MainWindowRig::settingsPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Looks over a main window that was started with anything in its settings file.
class Inspection
{
public:
    explicit Inspection(MainWindow &window)
        : m_window(window)
    { }

    // The first thing that is wrong, empty if nothing is.
    QString problem()
    {
        const QSize desktop = desktopSums();
        const QWidget *testWindow = MainWindowRig::testWindow();
        const QRect place = testWindow->geometry();
        const int w = desktop.width();
        const int h = desktop.height();
        control("spinBoxX", "hScrollBarX", 1 - w, w - 1, place.x());
        control("spinBoxY", "hScrollBarY", 1 - h, h - 1, place.y());
        control("spinBoxWidth", "hScrollBarWidth", 1, w, place.width());
        control("spinBoxHeight", "hScrollBarHeight", 1, h, place.height());
        spinBox("spinBoxScale", 0, 255);
        spinBox("spinBoxAutoScale", 0, 255);
        spinBox("spinBoxSpeed", 1, 100);
        spinBox("labelGrayLevel", 0, 255);
        spinBox("labelSpeed", 1, 100);
        visibility(testWindow->isHidden());
        choices();
        return m_problem;
    }

private:
    void expect(bool right, const QString &what)
    {
        if (!right && m_problem.isEmpty())
            m_problem = what;
    }

    int spinBox(const char *name, int minimum, int maximum)
    {
        const auto *found = m_window.findChild<QSpinBox *>(QLatin1String(name));
        const int value = found ? found->value() : minimum - 1;
        expect(value >= minimum && value <= maximum, QStringLiteral("%1 shows %2, not %3 to %4")
                                                         .arg(QLatin1String(name))
                                                         .arg(value)
                                                         .arg(minimum)
                                                         .arg(maximum));
        return value;
    }

    void control(const char *box, const char *bar, int minimum, int maximum, int real)
    {
        const int value = spinBox(box, minimum, maximum);
        const auto *slider = m_window.findChild<QSlider *>(QLatin1String(bar));
        expect(slider && slider->value() == value,
               QStringLiteral("%1 and its slider differ").arg(QLatin1String(box)));
        expect(value == real, QStringLiteral("%1 shows %2 and the test window has %3")
                                  .arg(QLatin1String(box))
                                  .arg(value)
                                  .arg(real));
    }

    void visibility(bool isHidden)
    {
        const auto *panel = m_window.findChild<DrawCtrlForm *>();
        const auto buttons = panel->findChildren<QPushButton *>();
        for (const QPushButton *button : buttons) {
            const bool shows = button->text() == QStringLiteral("显示");
            expect(button->isEnabled() == (shows == isHidden),
                   QStringLiteral("The button \"%1\" is wrong").arg(button->text()));
        }
        expect(buttons.count() == 2, QStringLiteral("Not two buttons"));
    }

    void choices()
    {
        const auto *tabs = m_window.findChild<QTabWidget *>(QStringLiteral("tabWidget"));
        expect(tabs->currentIndex() >= 0 && tabs->currentIndex() < 7, QStringLiteral("No tab"));
        const auto isChecked = [this](const char *name) {
            return m_window.findChild<QRadioButton *>(QLatin1String(name))->isChecked();
        };
        expect(isChecked("radioButtonAuto") != isChecked("radioButtonMual"),
               QStringLiteral("Not one mode of the purity test"));
    }

    MainWindow &m_window;
    QString m_problem;
};

// What the operator does first: looks at the windows, and at some patterns.
void use(MainWindow &window)
{
    window.show();
    window.updateLanguage();
    for (int page = 0; page < 24; ++page) {
        window.slot_SwitchDownTabControl();
        MainWindowRig::testWindow()->grab();
    }
    QCoreApplication::processEvents();
}

void moveTo(MainWindow &window, int x)
{
    window.findChild<QSpinBox *>(QStringLiteral("spinBoxX"))->setValue(x);
}

} // namespace

// The program's start with a settings file that nobody would write.
class TestHostileSettings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void strangeFile_startsWithDefaults_data();
    void strangeFile_startsWithDefaults();
    void readOnlyFileInAReadOnlyFolder_isReadAndLeftAlone();
    void readOnlyFolder_losesNothingButTheSaving();
    void unwritablePlace_losesNothingButTheSaving_data();
    void unwritablePlace_losesNothingButTheSaving();
    void folderThatIsAFile_losesNothingButTheSaving();
    void longFile_startsWithItsValues();
};

void TestHostileSettings::init()
{
    removeAll(MainWindowRig::settingsPath());
    // What could not be saved is still waiting for its file.
    QSettings settings(MainWindowRig::settingsPath(), QSettings::IniFormat);
    settings.clear();
    settings.sync();
    removeAll(MainWindowRig::settingsPath());
}

void TestHostileSettings::cleanup()
{
    // A failure leaves the file behind, to be looked at.
    if (!QTest::currentTestFailed())
        init();
}

void TestHostileSettings::strangeFile_startsWithDefaults_data()
{
    QTest::addColumn<bool>("exists");
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("missing") << false << QByteArray();
    QTest::newRow("empty") << true << QByteArray();
    QTest::newRow("one line end") << true << QByteArray("\n");
    QTest::newRow("zeros") << true << QByteArray(4096, '\0');
    QTest::newRow("binary garbage") << true << garbage(4096);
    QTest::newRow("megabytes of garbage") << true << garbage(4 << 20);
    QTest::newRow("a line of megabytes") << true << QByteArray(4 << 20, 'x');
    QTest::newRow("megabytes of sections") << true << QByteArray("[a]\n").repeated(1 << 20);
    QTest::newRow("a section that does not end") << true << QByteArray("[setting");
    QTest::newRow("half a character") << true << QByteArray("[setting]\ncurrentTabIndex=\xe5\xae");
}

void TestHostileSettings::strangeFile_startsWithDefaults()
{
    QFETCH(bool, exists);
    QFETCH(QByteArray, content);
    if (exists)
        writeFile(content);

    MainWindow window;
    use(window);

    QCOMPARE(Inspection(window).problem(), QString());
    QCOMPARE(MainWindowRig::testWindow()->geometry(), QRect(0, 0, 256, 256));
    QVERIFY(MainWindowRig::testWindow()->isVisible());
}

void TestHostileSettings::readOnlyFileInAReadOnlyFolder_isReadAndLeftAlone()
{
    const QByteArray content("[setting]\ntestWindowPointX=33\n");
    writeFile(content);
    const ReadOnly file(MainWindowRig::settingsPath(), {});
    const ReadOnly folder(QCoreApplication::applicationDirPath(), QFileDevice::ExeOwner);
    const OrdinaryRights rights;
    QVERIFY(!QFile(MainWindowRig::settingsPath()).open(QIODevice::ReadWrite));
    {
        MainWindow window;
        QCOMPARE(Inspection(window).problem(), QString());
        QCOMPARE(MainWindowRig::testWindow()->x(), 33);

        moveTo(window, 44);
        QCOMPARE(MainWindowRig::testWindow()->x(), 44);
        window.saveSettings();
        use(window);
    }
    QCOMPARE(readFile(), content);
}

// The folder alone: there is no file, and none can be made.
void TestHostileSettings::readOnlyFolder_losesNothingButTheSaving()
{
    const ReadOnly folder(QCoreApplication::applicationDirPath(), QFileDevice::ExeOwner);
    const OrdinaryRights rights;
    MainWindow window;
    QCOMPARE(Inspection(window).problem(), QString());

    moveTo(window, 44);
    window.saveSettings();
    use(window);
    QCOMPARE(MainWindowRig::testWindow()->geometry(), QRect(44, 0, 256, 256));
    QVERIFY(!QFile::exists(MainWindowRig::settingsPath()));
}

void TestHostileSettings::unwritablePlace_losesNothingButTheSaving_data()
{
    QTest::addColumn<QString>("target"); // of a link; none for a folder

    QTest::newRow("a folder") << QString();
    QTest::newRow("a dangling link") << QStringLiteral("/nowhere/config.ini");
    QTest::newRow("a link into a file") << QStringLiteral("/dev/null/config.ini");
    QTest::newRow("a link to itself") << MainWindowRig::settingsPath();
}

void TestHostileSettings::unwritablePlace_losesNothingButTheSaving()
{
    QFETCH(QString, target);
    const QString path = MainWindowRig::settingsPath();
    if (target.isEmpty())
        QVERIFY(QDir().mkpath(path + QStringLiteral("/occupied")));
    else
        QVERIFY(QFile::link(target, path));

    MainWindow window;
    QCOMPARE(Inspection(window).problem(), QString());
    QCOMPARE(MainWindowRig::testWindow()->geometry(), QRect(0, 0, 256, 256));

    moveTo(window, 44);
    window.saveSettings();
    use(window);
    QCOMPARE(Inspection(window).problem(), QString());
    QCOMPARE(MainWindowRig::testWindow()->geometry(), QRect(44, 0, 256, 256));
}

void TestHostileSettings::folderThatIsAFile_losesNothingButTheSaving()
{
    const QTemporaryDir place;
    const QString folder = place.filePath(QStringLiteral("application"));
    QFile file(folder);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QSettings settings(folder + QStringLiteral("/config.ini"), QSettings::IniFormat);
    QWidget testWindow(nullptr, Qt::FramelessWindowHint);
    DrawCtrlForm panel(&testWindow, &settings, nullptr);
    QCOMPARE(testWindow.geometry(), QRect(0, 0, 256, 256));

    panel.findChild<QSpinBox *>(QStringLiteral("spinBoxX"))->setValue(44);
    panel.saveWindowBaseInfo();
    settings.sync();

    QCOMPARE(settings.status(), QSettings::AccessError);
    QCOMPARE(testWindow.geometry(), QRect(44, 0, 256, 256));
    QCOMPARE(QFile(folder).size(), 0);
}

void TestHostileSettings::longFile_startsWithItsValues()
{
    QByteArray content("[setting]\n");
    for (int line = 0; line < 100000; ++line)
        content += "filler" + QByteArray::number(line) + "=0123456789012345678901234567890\n";
    content += "testWindowPointX=33\n";
    QVERIFY(content.size() > 4 << 20);
    writeFile(content);

    const MainWindow window;

    QCOMPARE(MainWindowRig::testWindow()->geometry(), QRect(33, 0, 256, 256));
}

QTEST_MAIN(TestHostileSettings)
#include "tst_hostilesettings.moc"
