#include "dictionary.h"
#include "drawcontainer.h"
#include "filldrawer.h"
#include "rows.h"
#include "textoracle.h"
#include "textwidth.h"

#include <QApplication>
#include <QtTest>

#include <memory>

namespace {

constexpr QRect place(100, 50, 600, 400);

const QString &reminder()
{
    static const QString text = QStringLiteral("[Fn+←]:显示/隐藏窗口右下角处提示\n"
                                               "[Fn+→]:显示/隐藏窗口中心处提示\n"
                                               "[Fn+↑]:功能向上切换\n"
                                               "[Fn+↓]:功能向下切换\n"
                                               "[⇧+↑↓←→]:窗口大小\n"
                                               "[⇧+F/双击]:全屏/取消全屏\n"
                                               "[⌘+↑↓←→]:窗口位置\n"
                                               "[↑↓←→]:灰度调节\n"
                                               "[Fn+Enter/Delete]:自动增加/减少灰度\n"
                                               "[⇧+H]:显示/隐藏窗口\n");
    return text;
}

int widestLine(const QString &text, const QFont &font)
{
    int widest = 0;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString &line : lines)
        widest = qMax(widest, textWidth(QFontMetrics(overlayFont(font)), line));
    return widest;
}

QRect litRectangle(const QImage &image)
{
    QRect lit;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != qRgb(0, 0, 0))
                lit |= QRect(x, y, 1, 1);
        }
    }
    return lit;
}

bool isBlack(const QImage &image)
{
    return litRectangle(image).isNull();
}

} // namespace

class TestDrawContainerOverlay : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }
    void overlays_areOffAtStart();
    void mousePosition_showsThePointInsideTheWindow_data();
    void mousePosition_showsThePointInsideTheWindow();
    void mousePosition_outsideShowsColourAndGreyAlone();
    void mousePosition_startsAtTheMiddle_data();
    void mousePosition_startsAtTheMiddle();
    void mousePosition_liesOverThePattern();
    void reminder_standsAtTheBottomRight();
    void reminder_needsTheWidestLineAndTenPixels();
    void reminder_followsTheLanguage();
    void overlays_areToggledByEndAndHome();
    void overlays_useTheWindowsFont();
    void overlays_areAllThatIsPaintedWithoutADrawer();
    void colour_showsItsNameInTheLanguage_data();
    void colour_showsItsNameInTheLanguage();
    void colour_neverChosenStaysEmptyInAnotherLanguage();
    void colour_unknownShowsNoNameAndKeepsThePreviousForALanguageChange();
    void colour_isMatchedByItsUntranslatedName();

private:
    // The picture of the centre overlay with this text.
    QImage centreText(const QString &text) const
    {
        return TextOracle(m_window->size(), m_window->font())
            .with({m_window->width() / 2 - 20, m_window->height() / 2 - 10}, text)
            .image();
    }

    std::unique_ptr<DrawContainer> m_window;
};

void TestDrawContainerOverlay::init()
{
    m_window = std::make_unique<DrawContainer>();
    m_window->setPalette(blackPalette());
    m_window->setGeometry(place);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QCursor::setPos(0, 0);
}

void TestDrawContainerOverlay::overlays_areOffAtStart()
{
    m_window->slot_changeSelectedDrawColor(Qt::red);
    m_window->slot_changeSelectedDrawGrey(QStringLiteral("255"));

    QVERIFY(isBlack(picture(*m_window)));
}

void TestDrawContainerOverlay::mousePosition_showsThePointInsideTheWindow_data()
{
    const Table<QPoint, const char *> row("point", "text");
    row("inside", {120, 45}, "(120,45)红:255");
    row("first pixel", {0, 0}, "(0,0)红:255");
    row("last pixel", {599, 399}, "(599,399)红:255");
    row("y one beyond the last row", {10, 400}, "(10,400)红:255");
    row("both one beyond", {600, 400}, "(600,400)红:255");
    row("x one beyond the last column", {600, 10}, "(600,10)红:255");
}

void TestDrawContainerOverlay::mousePosition_showsThePointInsideTheWindow()
{
    QFETCH(QPoint, point);
    QFETCH(QString, text);
    m_window->slot_changeSelectedDrawColor(Qt::red);
    m_window->slot_changeSelectedDrawGrey(QStringLiteral("255"));
    m_window->slot_keyEndPressed();

    QCursor::setPos(place.topLeft() + point);

    QCOMPARE(picture(*m_window), centreText(text));
}

void TestDrawContainerOverlay::mousePosition_outsideShowsColourAndGreyAlone()
{
    m_window->slot_changeSelectedDrawColor(Qt::red);
    m_window->slot_changeSelectedDrawGrey(QStringLiteral("17"));
    m_window->slot_keyEndPressed();
    const QImage expected = centreText(QStringLiteral("红:17"));

    for (const QPoint outside :
         {QPoint(-1, 10), QPoint(601, 10), QPoint(10, -1), QPoint(10, 401)}) {
        QCursor::setPos(place.topLeft() + outside);
        QCOMPARE(picture(*m_window), expected);
    }
}

void TestDrawContainerOverlay::mousePosition_startsAtTheMiddle_data()
{
    const Table<QSize, QPoint> row("size", "start");
    row("even", {600, 400}, {280, 190});
    row("odd", {401, 201}, {180, 90});
    row("smaller than the text", {31, 15}, {-5, -3});
}

void TestDrawContainerOverlay::mousePosition_startsAtTheMiddle()
{
    QFETCH(QSize, size);
    QFETCH(QPoint, start);
    m_window->resize(size);
    m_window->slot_changeSelectedDrawGrey(QStringLiteral("88888"));
    m_window->slot_keyEndPressed();

    const QImage image = picture(*m_window);
    const QString text = QStringLiteral(":88888");
    QCOMPARE(image, TextOracle(size, m_window->font()).with(start, text).image());
    const QFontMetrics metrics(overlayFont(m_window->font()));
    const QRect lit = litRectangle(image);
    QVERIFY(!lit.isNull());
    QVERIFY(QRect(start, QSize(textWidth(metrics, text) + 1, metrics.height())).contains(lit));
}

void TestDrawContainerOverlay::overlays_areToggledByEndAndHome()
{
    for (const auto key :
         {&DrawContainer::slot_keyEndPressed, &DrawContainer::slot_keyHomePressed}) {
        (m_window.get()->*key)();
        QVERIFY(!isBlack(picture(*m_window)));
        (m_window.get()->*key)();
        QVERIFY(isBlack(picture(*m_window)));
    }
}

void TestDrawContainerOverlay::mousePosition_liesOverThePattern()
{
    FillDrawer drawer(m_window.get(), Qt::black);
    m_window->setDrawer(&drawer, true);
    m_window->setPalette(QPalette(Qt::red));
    m_window->slot_changeSelectedDrawGrey(QStringLiteral("0"));
    m_window->slot_keyEndPressed();

    QCOMPARE(picture(*m_window), centreText(QStringLiteral(":0")));
}

void TestDrawContainerOverlay::reminder_standsAtTheBottomRight()
{
    m_window->slot_keyHomePressed();
    const int widest = widestLine(reminder(), m_window->font());
    QVERIFY(widest + 10 <= 600);
    const QPoint start(600 - widest - 10, 400 - 190);

    const QImage image = picture(*m_window);

    QCOMPARE(image, TextOracle(place.size(), m_window->font()).with(start, reminder()).image());
    const QRect lit = litRectangle(image);
    QVERIFY(!lit.isNull());
    QVERIFY(QRect(start, QSize(widest + 1, 190)).contains(lit));
}

void TestDrawContainerOverlay::reminder_needsTheWidestLineAndTenPixels()
{
    const int enough = widestLine(reminder(), m_window->font()) + 10;
    m_window->slot_keyHomePressed();

    m_window->resize(enough, 400);
    QCOMPARE(
        picture(*m_window),
        TextOracle(m_window->size(), m_window->font()).with(QPoint(0, 210), reminder()).image());
    for (const int narrower : {enough - 1, 20}) {
        m_window->resize(narrower, 400);
        QVERIFY(isBlack(picture(*m_window)));
    }
}

void TestDrawContainerOverlay::reminder_followsTheLanguage()
{
    const QString translated = QStringLiteral("short\na somewhat longer line\n");
    const Dictionary dictionary({{reminder(), translated}});
    m_window->slot_keyHomePressed();

    m_window->updateLanguage();

    const QPoint start(600 - widestLine(translated, m_window->font()) - 10, 210);
    QCOMPARE(picture(*m_window),
             TextOracle(place.size(), m_window->font()).with(start, translated).image());
}

void TestDrawContainerOverlay::overlays_useTheWindowsFont()
{
    QFont font = m_window->font();
    font.setPixelSize(font.pixelSize() == 15 ? 17 : 15);
    m_window->setFont(font);
    m_window->slot_keyHomePressed();
    m_window->slot_keyEndPressed();

    const QPoint start(600 - widestLine(reminder(), font) - 10, 210);
    QCOMPARE(picture(*m_window), TextOracle(place.size(), font)
                                     .with(QPoint(280, 190), QStringLiteral(":"))
                                     .with(start, reminder())
                                     .image());
}

void TestDrawContainerOverlay::overlays_areAllThatIsPaintedWithoutADrawer()
{
    FillDrawer drawer(m_window.get(), Qt::red);
    m_window->setDrawer(&drawer, false);
    m_window->slot_keyEndPressed();

    QCOMPARE(picture(*m_window), centreText(QStringLiteral(":")));
    QCOMPARE(drawer.draws, 0);
}

void TestDrawContainerOverlay::colour_showsItsNameInTheLanguage_data()
{
    const Table<QColor, const char *> row("color", "name");
    row("red", Qt::red, "红");
    row("green", Qt::green, "绿");
    row("blue", Qt::blue, "蓝");
    row("white", Qt::white, "白");
    row("yellow", Qt::yellow, "黄");
    row("cyan", Qt::cyan, "青");
    row("purple", Qt::magenta, "紫");
}

void TestDrawContainerOverlay::colour_showsItsNameInTheLanguage()
{
    QFETCH(QColor, color);
    QFETCH(QString, name);
    m_window->slot_keyEndPressed();
    m_window->slot_changeSelectedDrawColor(color);
    QCOMPARE(picture(*m_window), centreText(name + QLatin1Char(':')));
    const Dictionary dictionary({{name, QStringLiteral("Translated")}});

    m_window->updateLanguage();

    QCOMPARE(picture(*m_window), centreText(QStringLiteral("Translated:")));
}

void TestDrawContainerOverlay::colour_neverChosenStaysEmptyInAnotherLanguage()
{
    m_window->slot_keyEndPressed();
    const Dictionary dictionary({{QStringLiteral("红"), QStringLiteral("Red")}});

    m_window->updateLanguage();

    QCOMPARE(picture(*m_window), centreText(QStringLiteral(":")));
}

void TestDrawContainerOverlay::colour_unknownShowsNoNameAndKeepsThePreviousForALanguageChange()
{
    m_window->slot_keyEndPressed();
    m_window->slot_changeSelectedDrawColor(Qt::yellow);
    for (const QColor &unknown : {QColor(1, 2, 3), QColor(255, 255, 0, 128)}) {
        m_window->slot_changeSelectedDrawColor(unknown);
        QCOMPARE(picture(*m_window), centreText(QStringLiteral(":")));
    }
    const Dictionary dictionary({{QStringLiteral("黄"), QStringLiteral("Yellow")}});

    m_window->updateLanguage();

    QCOMPARE(picture(*m_window), centreText(QStringLiteral("Yellow:")));
}

void TestDrawContainerOverlay::colour_isMatchedByItsUntranslatedName()
{
    m_window->slot_keyEndPressed();
    m_window->slot_changeSelectedDrawColor(Qt::red);
    const Dictionary dictionary({{QStringLiteral("红"), QStringLiteral("Red")},
                                 {QStringLiteral("绿"), QStringLiteral("Green")}});
    m_window->updateLanguage();

    // A translated name matches no row, so the name is shown but not remembered.
    m_window->slot_changeSelectedDrawColor(Qt::green);
    QCOMPARE(picture(*m_window), centreText(QStringLiteral("Green:")));
    m_window->updateLanguage();
    QCOMPARE(picture(*m_window), centreText(QStringLiteral("Red:")));
}

QTEST_MAIN(TestDrawContainerOverlay)
#include "tst_drawcontainer_overlay.moc"
