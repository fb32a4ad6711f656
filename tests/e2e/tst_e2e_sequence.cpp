#include "endtoendtest.h"
#include "gridimage.h"
#include "waiting.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QTest>

#include <array>

/// The page keys' walk through all patterns, as it shows on the screen.
class tst_e2e_sequence : public EndToEndTest
{
    Q_OBJECT

private slots:
    void pageDown_walksThroughAllPatterns();

private:
    bool shows(int step);
    QImage testWindowImage();
    int tab();
};

namespace {

constexpr int steps = 24;
constexpr int size = 256; // of the test window at first start, in pixels
constexpr std::array<QRgb, 4> colours = {qRgb(255, 0, 0), qRgb(0, 255, 0), qRgb(0, 0, 255),
                                         qRgb(255, 255, 255)};

QImage gradient(QRgb colour)
{
    QImage image(size, size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QLinearGradient ramp(0, 0, 256, 0);
    ramp.setColorAt(0, Qt::black);
    ramp.setColorAt(1, QColor(colour));
    ramp.setSpread(QGradient::RepeatSpread);
    QPainter painter(&image);
    painter.setBrush(ramp);
    painter.drawRect(-1, -1, size, size);
    return image;
}

int tabOf(int step)
{
    return step < 4 ? 1 : step < 8 ? 2 : 3;
}

} // namespace

QImage tst_e2e_sequence::testWindowImage()
{
    return desktop().screen().grab(QRect(0, 0, size, size));
}

int tst_e2e_sequence::tab()
{
    return tool().configValue(QStringLiteral("/setting/currentTabIndex")).toInt();
}

// Whether the screen comes to show this step of the walk, 0 to 23, and its tab is current.
bool tst_e2e_sequence::shows(int step)
{
    const auto isThere = [this, step] {
        if (tab() != tabOf(step))
            return false;
        const QImage image = testWindowImage();
        if (step < 4)
            return isTestWindowFilled(colours.at(static_cast<std::size_t>(step)));
        if (step < 8)
            return image == gradient(colours.at(static_cast<std::size_t>(step - 4)));
        const int grid = step - 8;
        return gridOffset(image, colours.at(static_cast<std::size_t>(grid / 4)), grid % 4) >= 0;
    };
    if (waitFor(isThere))
        return true;
    qWarning("Step %d is not shown; the tab is %d", step, tab());
    return false;
}

void tst_e2e_sequence::pageDown_walksThroughAllPatterns()
{
    QVERIFY(startTool());
    QVERIFY(testWindowTurns(colours.front()));
    for (int press = 1; press <= steps; ++press) {
        desktop().keyboard().key("Next");
        QVERIFY(shows(press % steps));
    }
    QVERIFY2(tool().quit(), qPrintable(tool().problem()));
}

QTEST_GUILESS_MAIN(tst_e2e_sequence)
#include "tst_e2e_sequence.moc"
