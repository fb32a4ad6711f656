#include "endtoendtest.h"
#include "waiting.h"
#include "xconnection.h"

#include <QTest>

#include <memory>

#include <X11/extensions/scrnsaver.h>

namespace {

constexpr int timeoutSeconds = 1;

} // namespace

/// While a pattern is shown the X server's own screen saver stays away.
class tst_e2e_awake : public EndToEndTest
{
    Q_OBJECT

private slots:
    void testWindow_holdsTheScreenSaverOffWhileItIsVisible();
    void killedProgram_leavesTheScreenSaverOn();

private:
    XScreenSaverInfo screenSaver();
    bool staysOff();
    bool comesOn();
};

XScreenSaverInfo tst_e2e_awake::screenSaver()
{
    Display *const display = desktop().connection().display();
    const std::unique_ptr<XScreenSaverInfo, decltype(&XFree)> info(XScreenSaverAllocInfo(), &XFree);
    XScreenSaverQueryInfo(display, desktop().connection().root(), info.get());
    return *info;
}

/// Once nothing has been pressed for much longer than the screen saver waits.
bool tst_e2e_awake::staysOff()
{
    return waitFor([this] { return screenSaver().idle > 2000UL * timeoutSeconds + 500; })
           && screenSaver().state == ScreenSaverOff;
}

bool tst_e2e_awake::comesOn()
{
    return waitFor([this] { return screenSaver().state == ScreenSaverOn; });
}

void tst_e2e_awake::testWindow_holdsTheScreenSaverOffWhileItIsVisible()
{
    XSetScreenSaver(desktop().connection().display(), timeoutSeconds, 0, DontPreferBlanking,
                    DefaultExposures);
    QVERIFY(startTool());
    QVERIFY(staysOff());

    desktop().keyboard().key("h", Qt::ShiftModifier);
    QVERIFY(waitFor([this] { return !tool().testWindow().isMapped; }));
    QVERIFY(comesOn());

    desktop().keyboard().key("h", Qt::ShiftModifier);
    QVERIFY(waitFor([this] { return tool().testWindow().isMapped; }));
    QVERIFY(staysOff());
}

void tst_e2e_awake::killedProgram_leavesTheScreenSaverOn()
{
    XSetScreenSaver(desktop().connection().display(), timeoutSeconds, 0, DontPreferBlanking,
                    DefaultExposures);
    QVERIFY(startTool());
    QVERIFY(staysOff());
    tool().kill();
    QVERIFY(comesOn());
}

QTEST_GUILESS_MAIN(tst_e2e_awake)
#include "tst_e2e_awake.moc"
