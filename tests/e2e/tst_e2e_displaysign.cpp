#include "compositorserver.h"
#include "dummyserver.h"
#include "endtoendtest.h"
#include "waiting.h"

#include <QProcess>
#include <QTest>

/// The sign in the control window's title bar, by its pixels.
class tst_e2e_displaysign : public EndToEndTest
{
    Q_OBJECT

private slots:
    void alteredGamma_showsTheSignUntilItIsBack();
    void scalingCompositor_showsTheSign();

protected:
    std::unique_ptr<VirtualDesktop> createDesktop() const override;

private:
    bool setGamma(const QString &gamma);
    QImage titleBar();
};

std::unique_ptr<VirtualDesktop> tst_e2e_displaysign::createDesktop() const
{
    return std::make_unique<VirtualDesktop>(std::make_unique<DummyServer>());
}

bool tst_e2e_displaysign::setGamma(const QString &gamma)
{
    return QProcess::execute(QStringLiteral("xrandr"),
                             {QStringLiteral("--display"), desktop().displayName(),
                              QStringLiteral("--output"), QStringLiteral("DUMMY0"),
                              QStringLiteral("--gamma"), gamma})
           == 0;
}

QImage tst_e2e_displaysign::titleBar()
{
    QRect place = tool().controlWindow().geometry;
    place.setHeight(28);
    return desktop().screen().grab(place);
}

void tst_e2e_displaysign::alteredGamma_showsTheSignUntilItIsBack()
{
    QVERIFY(setGamma(QStringLiteral("1:1:1")));
    QVERIFY(startTool());
    const QImage before = titleBar();

    QVERIFY(setGamma(QStringLiteral("1:1:0.8")));
    QVERIFY(waitFor([&] { return titleBar() != before; }));
    QVERIFY(setGamma(QStringLiteral("1:1:1")));
    QVERIFY(waitFor([&] { return titleBar() == before; }));
}

void tst_e2e_displaysign::scalingCompositor_showsTheSign()
{
    VirtualDesktop scaled(std::make_unique<CompositorServer>(QStringLiteral("kwin_wayland"),
                                                             VirtualDesktop::DefaultSize, 1.5));
    QVERIFY2(scaled.start(), qPrintable(scaled.problem()));
    ToolProcess program(scaled);
    program.setEnvironment(QStringLiteral("WAYLAND_DISPLAY"),
                           scaled.runtimeDirectory() + QStringLiteral("/wayland-0"));
    QVERIFY2(program.start(), qPrintable(program.problem()));
    QVERIFY(waitFor([&] {
        return scaled.screen().count(program.controlWindow().geometry, qRgb(255, 210, 30)) > 0;
    }));
}

QTEST_GUILESS_MAIN(tst_e2e_displaysign)
#include "tst_e2e_displaysign.moc"
