#include "endtoendtest.h"
#include "longrun.h"
#include "waiting.h"

#include <QFile>
#include <QTest>

#include <csignal>

/// What the running program holds in memory.
class tst_e2e_memory : public EndToEndTest
{
    Q_OBJECT

private slots:
    void openGl_isNotLoaded();
    void largeWindow_takesItsPixelsAndLayoutOnceMore();

protected:
    std::unique_ptr<VirtualDesktop> createDesktop() const override;

private:
    qint64 resident() { return LongRun::residentMemory(tool().processId()); }
    void clickInControlWindow(const QPoint &position);
};

namespace {
constexpr QSize Screen(3840, 2160);
/// To the right of the control window.
constexpr QRect Place(QPoint(1680, 0), QSize(2160, 2160));
constexpr qint64 PixelsOfPlace = 2160 * 2160 * 4 / 1024; // KiB
constexpr qint64 Rest = 4 * 1024; // KiB: fonts and what else comes with the first use
constexpr QPoint PurityTab(125, 40);
constexpr QPoint LayoutButton(526, 211);
} // namespace

std::unique_ptr<VirtualDesktop> tst_e2e_memory::createDesktop() const
{
    return std::make_unique<VirtualDesktop>(Screen);
}

void tst_e2e_memory::clickInControlWindow(const QPoint &position)
{
    desktop().mouse().click(tool().controlWindow().geometry.topLeft() + position);
}

void tst_e2e_memory::openGl_isNotLoaded()
{
    QVERIFY(startTool());
    QFile maps(QStringLiteral("/proc/%1/maps").arg(tool().processId()));
    QVERIFY(maps.open(QIODevice::ReadOnly));
    const QByteArray libraries = maps.readAll();
    QVERIFY(libraries.contains("libQt5Gui"));
    QVERIFY(!libraries.contains("_dri.so")); // OpenGL's drivers
}

void tst_e2e_memory::largeWindow_takesItsPixelsAndLayoutOnceMore()
{
    tool().writeConfig({{QStringLiteral("/setting/currentTabIndex"), 4}});
    QVERIFY(startTool());
    const qint64 small = resident();
    QVERIFY2(tool().endBySignal(SIGTERM), qPrintable(tool().problem()));

    QVERIFY(startToolAt(Place));
    QVERIFY(testWindowCovers(Place));
    clickInControlWindow(LayoutButton);
    QVERIFY(waitFor([&] { return resident() > small + PixelsOfPlace * 3 / 2; }));
    QVERIFY(!waitFor([&] { return resident() > small + 2 * PixelsOfPlace + Rest; }, 2000));

    clickInControlWindow(PurityTab);
    desktop().keyboard().key("Next");
    QVERIFY(waitFor([&] { return resident() < small + PixelsOfPlace + Rest; }));
}

QTEST_GUILESS_MAIN(tst_e2e_memory)
#include "tst_e2e_memory.moc"
