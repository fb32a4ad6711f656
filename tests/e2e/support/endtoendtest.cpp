#include "endtoendtest.h"

#include "waiting.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>

namespace {
/// Clear of a test window of the default size in the upper left corner.
constexpr QPoint ControlWindowPlace = QPoint(600, 480);
constexpr int WidestFrame = 50;
/// A change is on the disk within a second; as much again for the test to look.
constexpr int StoreDeadline = 2000;

QString placeKey(const char *name)
{
    return QStringLiteral("/setting/testWindow") + QLatin1String(name);
}
} // namespace

std::unique_ptr<VirtualDesktop> EndToEndTest::createDesktop() const
{
    return std::make_unique<VirtualDesktop>();
}

void EndToEndTest::initTestCase()
{
    m_desktop = createDesktop();
    QVERIFY2(m_desktop->start(), qPrintable(m_desktop->problem()));
}

void EndToEndTest::cleanup()
{
    if (QTest::currentTestFailed())
        saveEvidence();
    m_tool.reset();
}

ToolProcess &EndToEndTest::tool()
{
    return m_tool ? *m_tool : newTool();
}

ToolProcess &EndToEndTest::newTool()
{
    m_tool = std::make_unique<ToolProcess>(*m_desktop);
    return *m_tool;
}

bool EndToEndTest::startTool(ToolProcess::TestWindow testWindow)
{
    // The pointer rests where no window comes to be.
    m_desktop->mouse().move(m_desktop->screen().rect().bottomRight());
    if (!tool().start(testWindow)) {
        qWarning("%s", qPrintable(tool().problem()));
        return false;
    }
    const WindowId control = tool().controlWindow().id;
    m_desktop->windows().move(control, ControlWindowPlace);
    // Some window managers put a frame around it.
    const auto isInPlace = [&] {
        const QPoint place = m_desktop->windows().info(control).geometry.topLeft();
        return (place - ControlWindowPlace).manhattanLength() < WidestFrame;
    };
    if (!waitFor(isInPlace) || !tool().focusControlWindow()) {
        qWarning("The control window takes neither place nor keyboard");
        return false;
    }
    return true;
}

bool EndToEndTest::startToolAt(const QRect &place)
{
    tool().writeConfig({{placeKey("PointX"), place.x()},
                        {placeKey("PointY"), place.y()},
                        {placeKey("Width"), place.width()},
                        {placeKey("Height"), place.height()}});
    return startTool();
}

QRect EndToEndTest::stored()
{
    const auto value = [this](const char *name) {
        return tool().configValue(placeKey(name)).toInt();
    };
    return {value("PointX"), value("PointY"), value("Width"), value("Height")};
}

bool EndToEndTest::isStored(const QRect &place)
{
    if (waitFor([&] { return stored() == place; }, StoreDeadline))
        return true;
    qWarning() << stored() << "is stored and not" << place;
    return false;
}

bool EndToEndTest::isTestWindowFilled(QRgb colour)
{
    const WindowInfo window = tool().testWindow();
    return window.isMapped && m_desktop->screen().isFilled(window.geometry, colour);
}

bool EndToEndTest::testWindowTurns(QRgb colour)
{
    if (waitFor([&] { return isTestWindowFilled(colour); }))
        return true;
    const WindowInfo window = tool().testWindow();
    const QRgb there = m_desktop->screen().pixel(window.geometry.center());
    qWarning("The test window, %smapped, shows #%06x at its centre and not #%06x",
             window.isMapped ? "" : "not ", there & RGB_MASK, colour & RGB_MASK);
    return false;
}

bool EndToEndTest::settle()
{
    for (int turn = 0; turn < 3; ++turn) {
        if (!desktop().windows().syncWithWindowManager()
            || !desktop().windows().answersPing(tool().controlWindow().id))
            return false;
    }
    return true;
}

bool EndToEndTest::testWindowCovers(const QRect &area)
{
    if (waitFor([&] { return tool().testWindow().geometry == area; }))
        return true;
    qWarning() << "The test window covers" << tool().testWindow().geometry << "and not" << area
               << (tool().isRunning() ? "" : "since the tool has ended") << tool().standardError();
    return false;
}

void EndToEndTest::saveEvidence()
{
    if (!m_desktop || m_desktop->displayName().isEmpty())
        return;
    const QString folder = QCoreApplication::applicationDirPath() + QStringLiteral("/e2e-failures");
    QDir().mkpath(folder);
    QString name = QString::fromLatin1(metaObject()->className()) + QLatin1Char('-')
                   + QString::fromLatin1(QTest::currentTestFunction());
    if (const char *row = QTest::currentDataTag())
        name +=
            QLatin1Char('-') + QString::fromUtf8(row).replace(QLatin1Char('/'), QLatin1Char('_'));
    const QString path = folder + QLatin1Char('/') + name;
    if (m_desktop->screen().grab().save(path + QStringLiteral(".png")))
        qWarning("The screen at that moment: %s.png", qPrintable(path));
    const QString config = path + QStringLiteral(".ini");
    QFile::remove(config);
    if (m_tool && QFile::copy(m_tool->directory() + QStringLiteral("/config.ini"), config))
        qWarning("The settings at that moment: %s", qPrintable(config));
}
