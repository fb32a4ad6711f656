#include "qtcolorbutton.h"
#include "rows.h"

#include <QDrag>
#include <QMouseEvent>
#include <QTest>

#include <cmath>
#include <memory>

namespace {

const QColor translucent(200, 100, 40, 128);

// source over destination, both channels of 0 to 255, the source not premultiplied.
int blended(int source, int destination, int alpha)
{
    return int(std::lround((source * alpha + destination * (255 - alpha)) / 255.0));
}

QColor over(const QColor &source, const QColor &destination)
{
    const int alpha = source.alpha();
    return {blended(source.red(), destination.red(), alpha),
            blended(source.green(), destination.green(), alpha),
            blended(source.blue(), destination.blue(), alpha)};
}

// Blending may round either way.
bool isNear(const QColor &one, const QColor &other)
{
    return std::abs(one.red() - other.red()) <= 1 && std::abs(one.green() - other.green()) <= 1
           && std::abs(one.blue() - other.blue()) <= 1;
}

bool isEvenCheck(int x, int y, int origin_x, int origin_y, int check)
{
    const auto half = [check](int distance) {
        return int(std::floor(double(distance) / check)) & 1;
    };
    return half(x - origin_x) == half(y - origin_y);
}

// The swatch of a button of this size, at a point of the button, on a background as it is there
// without the swatch.
QColor expectedSwatch(const QSize &size, const QPoint &at, const QColor &color, bool checkered,
                      const QColor &background)
{
    const int width = size.width() - 10;
    const int height = size.height() - 10;
    const int x = at.x() - 5;
    const int y = at.y() - 5;
    if (x < 0 || y < 0 || x >= width || y >= height)
        return background;
    QColor pixel = background;
    if (checkered) {
        const bool even = isEvenCheck(x, y, (width % 10 + 10) / 2, (height % 10 + 10) / 2, 10);
        pixel = even ? Qt::white : Qt::black;
    }
    pixel = over(color, pixel);
    const int depth = qMin(qMin(x, y), qMin(width - 1 - x, height - 1 - y));
    if (depth == 0)
        pixel = over(QColor(0, 0, 0, 51), pixel);
    else if (depth == 1)
        pixel = over(QColor(0, 0, 0, 26), pixel);
    return pixel;
}

// What hangs on the pointer during a drag of color.
QColor expectedDragPixel(int x, int y, const QColor &color)
{
    if (x == 0 || y == 0 || x == 23 || y == 23)
        return Qt::black;
    const QColor opaque(color.red(), color.green(), color.blue());
    if (x >= 6 && x < 17 && y >= 6 && y < 17)
        return opaque;
    return over(color, isEvenCheck(x, y, 12, 12, 20) ? Qt::lightGray : Qt::darkGray);
}

} // namespace

// What a colour button paints, against arithmetic on the coordinates.
class TestQtColorButtonPixels : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_button = std::make_unique<QtColorButton>(); }
    void cleanup() { m_button.reset(); }

    void swatch_isPaintedToThePixel_data();
    void swatch_isPaintedToThePixel();
    void disabledButton_paintsNoSwatch();
    void tinyButton_paintsNoSwatch();
    void dragPicture_isPaintedToThePixel_data();
    void dragPicture_isPaintedToThePixel();

private:
    QImage picture() { return m_button->grab().toImage().convertToFormat(QImage::Format_RGB32); }

    std::unique_ptr<QtColorButton> m_button;
};

void TestQtColorButtonPixels::swatch_isPaintedToThePixel_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<bool>("checkered");
    const QSize sizes[] = {{24, 24}, {25, 30}, {47, 33}, {60, 51}, {16, 16}};
    for (const QSize &size : sizes) {
        for (const QColor &color : {QColor(Qt::red), translucent, QColor(0, 0, 0, 0)}) {
            for (const bool checkered : {true, false}) {
                QTest::addRow("%dx%d %s %s", size.width(), size.height(),
                              qPrintable(color.name(QColor::HexArgb)),
                              checkered ? "checkered" : "plain")
                    << size << color << checkered;
            }
        }
    }
}

void TestQtColorButtonPixels::swatch_isPaintedToThePixel()
{
    QFETCH(const QSize, size);
    QFETCH(const QColor, color);
    QFETCH(const bool, checkered);
    QToolButton plain;
    plain.resize(size);
    const QImage background = plain.grab().toImage();
    m_button->resize(size);
    m_button->setColor(color);
    m_button->setBackgroundCheckered(checkered);
    const QImage image = picture();
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QColor expected =
                expectedSwatch(size, QPoint(x, y), color, checkered, background.pixelColor(x, y));
            QVERIFY2(isNear(image.pixelColor(x, y), expected),
                     qPrintable(QStringLiteral("(%1,%2) is %3 and not %4")
                                    .arg(x)
                                    .arg(y)
                                    .arg(image.pixelColor(x, y).name(), expected.name())));
        }
    }
}

void TestQtColorButtonPixels::disabledButton_paintsNoSwatch()
{
    QToolButton plain;
    plain.resize(40, 40);
    plain.setEnabled(false);
    m_button->resize(40, 40);
    m_button->setColor(Qt::red);
    QVERIFY(picture() != plain.grab().toImage().convertToFormat(QImage::Format_RGB32));
    m_button->setEnabled(false);
    QCOMPARE(picture(), plain.grab().toImage().convertToFormat(QImage::Format_RGB32));
}

void TestQtColorButtonPixels::tinyButton_paintsNoSwatch()
{
    QToolButton plain;
    plain.resize(10, 10);
    m_button->setColor(Qt::red);
    m_button->resize(10, 10);
    QCOMPARE(picture(), plain.grab().toImage().convertToFormat(QImage::Format_RGB32));
}

void TestQtColorButtonPixels::dragPicture_isPaintedToThePixel_data()
{
    addRows<QColor>("color", {{"opaque", Qt::blue}, {"translucent", translucent}});
}

void TestQtColorButtonPixels::dragPicture_isPaintedToThePixel()
{
    QFETCH(const QColor, color);
    m_button->resize(40, 40);
    m_button->setColor(color);
    QTest::mousePress(m_button.get(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    QMouseEvent move(QEvent::MouseMove, QPoint(90, 90), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(m_button.get(), &move);
    const auto *drag = m_button->findChild<QDrag *>();
    QVERIFY(drag);
    const QImage image = drag->pixmap().toImage();
    QCOMPARE(image.size(), QSize(24, 24));
    for (int y = 0; y < 24; ++y) {
        for (int x = 0; x < 24; ++x)
            QVERIFY2(isNear(image.pixelColor(x, y), expectedDragPixel(x, y, color)),
                     qPrintable(QStringLiteral("(%1,%2)").arg(x).arg(y)));
    }
}

QTEST_MAIN(TestQtColorButtonPixels)
#include "tst_qtcolorbutton_pixels.moc"
