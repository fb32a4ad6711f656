#include "damagecounter.h"
#include "endtoendtest.h"
#include "waiting.h"

#include <QColor>
#include <QDir>
#include <QImage>
#include <QTest>

#include <functional>

/// The cabinet layout over colours and pictures, as it shows on the screen.
class tst_e2e_cabinet : public EndToEndTest
{
    Q_OBJECT

private slots:
    void rightToLeft_isAnchoredAtTheRightEdge();
    void colourAndPicture_takeEachOthersPlaceAndFollowTheWindow();
    void layout_coversWhatOtherTestsHaveShown();
    void layoutOverAPicture_isPaintedTenTimesASecond();
    void advancedSettings_showWhileTheDialogIsOpen();

private:
    using Backdrop = std::function<QRgb(const QPoint &)>;

    void startOnTheCabinetTab(QVariantMap values = {});
    void keepPicture();
    void clickInWindow(const QPoint &position);
    bool shows(const Backdrop &backdrop, bool fromRight = false);
};

namespace {

// In the control window.
const QPoint panelOffset(0, 53);
const QPoint purityTab(125, 40);
const QPoint cabinetTab(374, 40);
const QPoint fromRightButton = panelOffset + QPoint(407, 54);
const QPoint solidButton = panelOffset + QPoint(38, 158);
const QPoint pictureButton = panelOffset + QPoint(222, 158);
const QPoint layoutButton = panelOffset + QPoint(526, 158);
const QPoint setupButton = panelOffset + QPoint(446, 158);
const QPoint greenButton = panelOffset + QPoint(105, 31);

// In the dialog of the advanced settings.
const QSize dialogSize(360, 220);
const QPoint widerModuleLines(156, 132);

constexpr QRect Start = QRect(100, 80, 256, 256);
const QSize board(64, 32); // two by two modules of 32 by 16 pixels
const QSize number(52, 14); // room for the digits in the middle of a board
constexpr int boardLine = 4; // its width
const int farRight = 1000 * board.width(); // more than a window is wide
const QRgb black = qRgb(0, 0, 0);
const QRgb colour = qRgb(0, 96, 32);
const QRgb corners[2][2] = {{qRgb(10, 20, 30), qRgb(200, 0, 120)},
                            {qRgb(0, 130, 130), qRgb(90, 90, 90)}};

/// Whether a line of this width, centred on each multiple of the step, covers the place.
bool isOnLine(int place, int step, int width)
{
    return (place + width / 2) % step < width;
}

/// The lines by arithmetic on coordinates; the columns begin at a multiple of a board's width.
QRgb lineOrBackdrop(int x, int y, QRgb backdrop)
{
    if (isOnLine(x, board.width(), boardLine) || isOnLine(y, board.height(), boardLine))
        return qRgb(0, 0, 255);
    if (isOnLine(x, board.width() / 2, 1) || isOnLine(y, board.height() / 2, 1))
        return qRgb(255, 0, 0);
    return backdrop;
}

/// Yellow, or mixed with a little of what is behind at the edge of a digit.
bool isYellow(QRgb pixel)
{
    return qRed(pixel) > 150 && qGreen(pixel) > 150 && qBlue(pixel) < 100;
}

bool isNumberPlace(int x, int y)
{
    const QPoint fromMiddle(x % board.width() - board.width() / 2,
                            y % board.height() - board.height() / 2);
    return qAbs(fromMiddle.x()) <= number.width() / 2
           && qAbs(fromMiddle.y()) <= number.height() / 2;
}

} // namespace

void tst_e2e_cabinet::startOnTheCabinetTab(QVariantMap values)
{
    values[QStringLiteral("currentTabIndex")] = 4;
    values[QStringLiteral("testWindowPointX")] = Start.x();
    values[QStringLiteral("testWindowPointY")] = Start.y();
    values[QStringLiteral("testWindowWidth")] = Start.width();
    QVariantMap config;
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        config[QStringLiteral("/setting/") + value.key()] = value.value();
    tool().writeConfig(config);
    QVERIFY(startTool());
    QVERIFY(testWindowCovers(Start));
}

/// Four colours, one in each corner.
void tst_e2e_cabinet::keepPicture()
{
    QImage picture(2, 2, QImage::Format_RGB32);
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 2; ++x)
            picture.setPixel(x, y, corners[y][x]);
    }
    QVERIFY(QDir(tool().directory()).mkdir(QStringLiteral("BackgroundPicture")));
    QVERIFY(picture.save(tool().directory() + QStringLiteral("/BackgroundPicture/picture"), "PNG"));
}

void tst_e2e_cabinet::clickInWindow(const QPoint &position)
{
    desktop().mouse().click(tool().controlWindow().geometry.topLeft() + position);
}

/// Whether the test window comes to show the layout over this: lines and backdrop everywhere but
/// at the numbers, and a number in every whole board.
bool tst_e2e_cabinet::shows(const Backdrop &backdrop, bool fromRight)
{
    QPoint wrong;
    const auto isShown = [&] {
        const QImage image = desktop().screen().grab(tool().testWindow().geometry);
        QMap<QPair<int, int>, int> yellowPixels;
        for (int y = 0; y < image.height(); ++y) {
            for (int column = 0; column < image.width(); ++column) {
                wrong = QPoint(column, y);
                const int x = fromRight ? column - image.width() + farRight : column;
                const QRgb pixel = image.pixel(wrong) | 0xff000000U;
                if (isNumberPlace(x, y))
                    yellowPixels[{x / board.width(), y / board.height()}] += isYellow(pixel);
                else if (pixel != lineOrBackdrop(x, y, backdrop(wrong)))
                    return false;
            }
        }
        const int boards = (image.width() / board.width()) * (image.height() / board.height());
        int numbered = 0;
        for (const int pixels : qAsConst(yellowPixels))
            numbered += pixels > 10 ? 1 : 0;
        return numbered >= boards;
    };
    if (waitFor(isShown))
        return true;
    qWarning() << "The layout is wrong at" << wrong << "or a number is missing";
    return false;
}

void tst_e2e_cabinet::rightToLeft_isAnchoredAtTheRightEdge()
{
    startOnTheCabinetTab();
    QVERIFY(testWindowTurns(qRgb(255, 0, 0))); // as before every pattern
    clickInWindow(layoutButton);
    QVERIFY(shows([](const QPoint &) { return black; }));
    clickInWindow(fromRightButton);
    QVERIFY(shows([](const QPoint &) { return black; }, true));
    const QPoint corner = Start.bottomRight();
    desktop().mouse().drag(corner, corner - QPoint(23, 0));
    QVERIFY(testWindowCovers(Start.adjusted(0, 0, -23, 0)));
    QVERIFY(shows([](const QPoint &) { return black; }, true));
}

void tst_e2e_cabinet::colourAndPicture_takeEachOthersPlaceAndFollowTheWindow()
{
    keepPicture();
    startOnTheCabinetTab({{QStringLiteral("tarnBackgroundSelect"), true},
                          {QStringLiteral("tarnBackColor"), QColor(colour)},
                          {QStringLiteral("tarnBackgroundColor"),
                           QStringLiteral("background-color: rgb(0,96,32)")}});
    QRect place = Start;
    const Backdrop solid = [](const QPoint &) { return colour; };
    const Backdrop picture = [&place](const QPoint &pixel) {
        return corners[2 * pixel.y() / place.height()][2 * pixel.x() / place.width()];
    };
    clickInWindow(layoutButton);
    QVERIFY(shows(solid));
    clickInWindow(pictureButton);
    QVERIFY(shows(picture));
    clickInWindow(solidButton);
    QVERIFY(shows(solid));
    clickInWindow(pictureButton);
    QVERIFY(shows(picture));

    place = Start.adjusted(0, 0, -60, 32);
    desktop().mouse().drag(Start.bottomRight(), place.bottomRight());
    QVERIFY(testWindowCovers(place));
    QVERIFY(shows(picture));
    clickInWindow(solidButton);
    QVERIFY(shows(solid));
}

void tst_e2e_cabinet::layout_coversWhatOtherTestsHaveShown()
{
    keepPicture();
    startOnTheCabinetTab();
    const Backdrop picture = [](const QPoint &pixel) {
        return corners[2 * pixel.y() / Start.height()][2 * pixel.x() / Start.width()];
    };
    for (int press = 0; press < 9; ++press) // through purity and gradient into the grid
        desktop().keyboard().key("Next");
    QVERIFY(waitFor([this] {
        return tool().configValue(QStringLiteral("/setting/currentTabIndex")).toInt() == 3;
    }));
    clickInWindow(cabinetTab);
    clickInWindow(layoutButton);
    QVERIFY(shows(picture));

    clickInWindow(purityTab);
    clickInWindow(greenButton);
    QVERIFY(testWindowTurns(qRgb(0, 255, 0)));
    clickInWindow(cabinetTab);
    clickInWindow(layoutButton);
    QVERIFY(shows(picture));
    clickInWindow(solidButton);
    QVERIFY(shows([](const QPoint &) { return black; }));
}

/// What is behind is set again with each paint, and must not ask for another one.
void tst_e2e_cabinet::layoutOverAPicture_isPaintedTenTimesASecond()
{
    keepPicture();
    startOnTheCabinetTab();
    clickInWindow(layoutButton);
    QVERIFY(waitFor([this] { return desktop().screen().count(Start, corners[1][1]) > 0; }));
    constexpr int intervals = 20;
    DamageCounter painted(desktop().connection(), tool().testWindow().id);
    QVERIFY(waitFor([&] { return painted.reports().size() > intervals; }));
    const QVector<DamageCounter::Report> reports = painted.reports();
    const unsigned long span = reports.at(intervals).time - reports.first().time;
    QVERIFY2(span >= 1800, qPrintable(QStringLiteral("Painted 20 times within %1 ms").arg(span)));
}

void tst_e2e_cabinet::advancedSettings_showWhileTheDialogIsOpen()
{
    startOnTheCabinetTab();
    clickInWindow(layoutButton);
    QVERIFY(shows([](const QPoint &) { return black; }));

    clickInWindow(setupButton);
    WindowInfo dialog;
    const auto opens = [&] {
        for (const WindowInfo &window : tool().mappedWindows()) {
            if (window.geometry.size() == dialogSize)
                dialog = window;
        }
        return dialog.id != 0;
    };
    QVERIFY(waitFor(opens));
    const QPoint besideAModuleLine = Start.topLeft() + QPoint(board.width() / 2 - 1, 5);
    QCOMPARE(desktop().screen().pixel(besideAModuleLine) | 0xff000000U, black);
    desktop().mouse().click(dialog.geometry.topLeft() + widerModuleLines);
    QVERIFY(waitFor([&] {
        return (desktop().screen().pixel(besideAModuleLine) | 0xff000000U) == qRgb(255, 0, 0);
    }));
    QVERIFY(desktop().windows().info(dialog.id).isMapped);
    QVERIFY(waitFor([&] {
        return tool().configValue(QStringLiteral("/setting/advanceModeWidth")).toInt() == 2;
    }));
}

QTEST_GUILESS_MAIN(tst_e2e_cabinet)
#include "tst_e2e_cabinet.moc"
