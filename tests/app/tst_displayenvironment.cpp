#include "displayenvironment.h"
#include "rows.h"

#include <QCoreApplication>
#include <QTest>

class TestDisplayEnvironment : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void scaling_isSwitchedOff_data();
    void scaling_isSwitchedOff();
    void waylandSession_asksForItsXServerFirst_data();
    void waylandSession_asksForItsXServerFirst();
    void chosenPlatform_stays();
    void otherSession_choosesNothing();
    void openGl_isLoadedOnlyWhereItIsAskedFor();
};

void TestDisplayEnvironment::init()
{
    for (const char *variable :
         {"WAYLAND_DISPLAY", "XDG_SESSION_TYPE", "QT_QPA_PLATFORM", "QT_XCB_GL_INTEGRATION"})
        qunsetenv(variable);
}

void TestDisplayEnvironment::scaling_isSwitchedOff_data()
{
    addNames<QByteArray>("variable", {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS",
                                      "QT_AUTO_SCREEN_SCALE_FACTOR", "QT_ENABLE_HIGHDPI_SCALING",
                                      "QT_DEVICE_PIXEL_RATIO"});
}

void TestDisplayEnvironment::scaling_isSwitchedOff()
{
    QFETCH(QByteArray, variable);
    qputenv(variable.constData(), "2");
    DisplayEnvironment::prepare();
    QVERIFY(!qEnvironmentVariableIsSet(variable.constData()));
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_DisableHighDpiScaling));
}

void TestDisplayEnvironment::waylandSession_asksForItsXServerFirst_data()
{
    const Table<QByteArray, QByteArray> row("variable", "value");
    row("display", "WAYLAND_DISPLAY", "wayland-0");
    row("session", "XDG_SESSION_TYPE", "wayland");
}

void TestDisplayEnvironment::waylandSession_asksForItsXServerFirst()
{
    QFETCH(QByteArray, variable);
    QFETCH(QByteArray, value);
    qputenv(variable.constData(), value);
    DisplayEnvironment::prepare();
    QCOMPARE(qgetenv("QT_QPA_PLATFORM"), QByteArray("xcb;wayland"));
}

void TestDisplayEnvironment::chosenPlatform_stays()
{
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    qputenv("QT_QPA_PLATFORM", "wayland");
    DisplayEnvironment::prepare();
    QCOMPARE(qgetenv("QT_QPA_PLATFORM"), QByteArray("wayland"));
}

void TestDisplayEnvironment::otherSession_choosesNothing()
{
    qputenv("XDG_SESSION_TYPE", "x11");
    DisplayEnvironment::prepare();
    QVERIFY(!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"));
}

void TestDisplayEnvironment::openGl_isLoadedOnlyWhereItIsAskedFor()
{
    DisplayEnvironment::prepare();
    QCOMPARE(qgetenv("QT_XCB_GL_INTEGRATION"), QByteArray("none"));
    qputenv("QT_XCB_GL_INTEGRATION", "xcb_egl");
    DisplayEnvironment::prepare();
    QCOMPARE(qgetenv("QT_XCB_GL_INTEGRATION"), QByteArray("xcb_egl"));
}

QTEST_APPLESS_MAIN(TestDisplayEnvironment)
#include "tst_displayenvironment.moc"
