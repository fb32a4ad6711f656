#include "paintedpicture.h"

#include <QtTest>

namespace {

// Counts how often it paints.
struct Painting
{
    QColor color;
    int count = 0;

    const QPixmap &show(PaintedPicture<QString> &picture, const QSize &size, const QString &key)
    {
        return picture.pixmap(size, key, [&](QPainter &painter) {
            ++count;
            painter.fillRect(QRect(QPoint(0, 0), size), color);
        });
    }
};

bool isFilled(const QPixmap &pixmap, const QSize &size, const QColor &color)
{
    QImage expected(size, QImage::Format_RGB32);
    expected.fill(color);
    return pixmap.toImage().convertToFormat(QImage::Format_RGB32) == expected;
}

} // namespace

class TestPaintedPicture : public QObject
{
    Q_OBJECT

private slots:
    void firstTime_paints();
    void sameAgain_showsWhatIsKept();
    void otherKey_paintsAgain();
    void otherSize_paintsAgain();
    void formerKey_paintsAgain();
    void pixmap_hidesWhatIsBelowIt();
    void emptySize_paintsNothing();
};

void TestPaintedPicture::firstTime_paints()
{
    PaintedPicture<QString> picture;
    Painting painting{Qt::red};
    // The key of a picture that was never painted is not its default value.
    QVERIFY(isFilled(painting.show(picture, {5, 3}, QString()), {5, 3}, Qt::red));
    QCOMPARE(painting.count, 1);
}

void TestPaintedPicture::sameAgain_showsWhatIsKept()
{
    PaintedPicture<QString> picture;
    Painting painting{Qt::red};
    painting.show(picture, {5, 3}, QStringLiteral("a"));
    painting.color = Qt::blue;
    QVERIFY(isFilled(painting.show(picture, {5, 3}, QStringLiteral("a")), {5, 3}, Qt::red));
    QCOMPARE(painting.count, 1);
}

void TestPaintedPicture::otherKey_paintsAgain()
{
    PaintedPicture<QString> picture;
    Painting painting{Qt::red};
    painting.show(picture, {5, 3}, QStringLiteral("a"));
    painting.color = Qt::blue;
    QVERIFY(isFilled(painting.show(picture, {5, 3}, QStringLiteral("b")), {5, 3}, Qt::blue));
    QCOMPARE(painting.count, 2);
}

void TestPaintedPicture::otherSize_paintsAgain()
{
    PaintedPicture<QString> picture;
    Painting painting{Qt::red};
    painting.show(picture, {5, 3}, QStringLiteral("a"));
    for (const QSize &size : {QSize(5, 4), QSize(6, 4), QSize(1, 1)}) {
        const int before = painting.count;
        QVERIFY(isFilled(painting.show(picture, size, QStringLiteral("a")), size, Qt::red));
        QCOMPARE(painting.count, before + 1);
    }
}

void TestPaintedPicture::formerKey_paintsAgain()
{
    PaintedPicture<QString> picture;
    Painting painting{Qt::red};
    painting.show(picture, {5, 3}, QStringLiteral("a"));
    painting.show(picture, {5, 3}, QStringLiteral("b"));
    painting.show(picture, {5, 3}, QStringLiteral("a"));
    QCOMPARE(painting.count, 3);
}

void TestPaintedPicture::pixmap_hidesWhatIsBelowIt()
{
    PaintedPicture<QString> picture;
    Painting painting{Qt::red};
    QVERIFY(!painting.show(picture, {5, 3}, QStringLiteral("a")).hasAlphaChannel());
}

void TestPaintedPicture::emptySize_paintsNothing()
{
    PaintedPicture<QString> picture;
    Painting painting{Qt::red};
    QVERIFY(painting.show(picture, {0, 3}, QStringLiteral("a")).isNull());
    QVERIFY(painting.show(picture, {0, 0}, QStringLiteral("a")).isNull());
    QCOMPARE(painting.count, 0);
    QVERIFY(isFilled(painting.show(picture, {2, 2}, QStringLiteral("a")), {2, 2}, Qt::red));
}

QTEST_MAIN(TestPaintedPicture)
#include "tst_paintedpicture.moc"
