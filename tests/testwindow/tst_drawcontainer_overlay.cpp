#include "dictionary.h"
#include "drawcontainer.h"
#include "filldrawer.h"
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
    void mousePosition_atXOneBeyondTheLastColumnIsStillShown();
    void mousePosition_outsideShowsColourAndGreyAlone();
    void mousePosition_startsAtTheMiddle_data();
    void mousePosition_startsAtTheMiddle();
    void mousePosition_isToggledByEnd();
    void mousePosition_liesOverThePattern();
    void reminder_standsAtTheBottomRight();
    void reminder_isToggledByHome();
    void reminder_needsTheWidestLineAndTenPixels();
    void reminder_inANarrowerWindowIsNotShown();
    void reminder_followsTheLanguage();
    void overlays_useTheWindowsFont();
    void overlays_areAllThatIsPaintedWithoutADrawer();

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
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QString>("text");

    QTest::newRow("inside") << QPoint(120, 45) << "(120,45)红:255";
    QTest::newRow("first pixel") << QPoint(0, 0) << "(0,0)红:255";
    QTest::newRow("last pixel") << QPoint(599, 399) << "(599,399)红:255";
    QTest::newRow("y one beyond the last row") << QPoint(10, 400) << "(10,400)红:255";
    QTest::newRow("both one beyond") << QPoint(600, 400) << "(600,400)红:255";
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

void TestDrawContainerOverlay::mousePosition_atXOneBeyondTheLastColumnIsStillShown()
{
    m_window->slot_keyEndPressed();

    QCursor::setPos(place.topLeft() + QPoint(600, 10));

    QCOMPARE(picture(*m_window), centreText(QStringLiteral("(600,10):")));
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
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("start");

    QTest::newRow("even") << QSize(600, 400) << QPoint(280, 190);
    QTest::newRow("odd") << QSize(401, 201) << QPoint(180, 90);
    QTest::newRow("smaller than the text") << QSize(31, 15) << QPoint(-5, -3);
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

void TestDrawContainerOverlay::mousePosition_isToggledByEnd()
{
    m_window->slot_keyEndPressed();
    QVERIFY(!isBlack(picture(*m_window)));
    m_window->slot_keyEndPressed();
    QVERIFY(isBlack(picture(*m_window)));
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

void TestDrawContainerOverlay::reminder_isToggledByHome()
{
    m_window->slot_keyHomePressed();
    QVERIFY(!isBlack(picture(*m_window)));
    m_window->slot_keyHomePressed();
    QVERIFY(isBlack(picture(*m_window)));
}

void TestDrawContainerOverlay::reminder_needsTheWidestLineAndTenPixels()
{
    const int enough = widestLine(reminder(), m_window->font()) + 10;
    m_window->slot_keyHomePressed();

    m_window->resize(enough, 400);
    QCOMPARE(
        picture(*m_window),
        TextOracle(m_window->size(), m_window->font()).with(QPoint(0, 210), reminder()).image());
}

void TestDrawContainerOverlay::reminder_inANarrowerWindowIsNotShown()
{
    const int enough = widestLine(reminder(), m_window->font()) + 10;
    m_window->slot_keyHomePressed();

    m_window->resize(enough - 1, 400);
    QVERIFY(isBlack(picture(*m_window)));
    m_window->resize(20, 400);
    QVERIFY(isBlack(picture(*m_window)));
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

QTEST_MAIN(TestDrawContainerOverlay)
#include "tst_drawcontainer_overlay.moc"
