#include "picturefolder.h"
#include "scrgridwindow.h"

#include <QtTest>

class TestScrGridPicture : public QObject
{
    Q_OBJECT

private slots:
    void picture_isStretchedWithoutSmoothing();
    void picture_isStretchedAgainOnlyWhenAsked();
    void picture_isDecodedWhenItIsFirstShown();
    void translucentPicture_liesOverBlack();
    void fileThatIsNoPicture_leavesBlack();
    void whatCannotBeRead_leavesThePictureBefore();

private:
    PictureFolder m_pictures;
    const QString m_red = m_pictures.add(QColor(Qt::red));
};

void TestScrGridPicture::picture_isStretchedWithoutSmoothing()
{
    QImage image(2, 2, QImage::Format_RGB32);
    image.setPixel(0, 0, LayoutColor::red);
    image.setPixel(1, 0, LayoutColor::green);
    image.setPixel(0, 1, LayoutColor::blue);
    image.setPixel(1, 1, LayoutColor::black);
    ScrGridRig rig(QSize(90, 20));
    rig.drawer.setBackgroundImage(m_pictures.add(image));
    rig.painted();
    const QImage stretched = rig.drawer.m_bgPixmap.toImage();
    QCOMPARE(stretched.size(), QSize(90, 20));
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 90; ++x)
            QCOMPARE(stretched.pixel(x, y), image.pixel(x / 45, y / 10));
    }
    rig.drawer.m_moduleWidth = rig.drawer.m_moduleHeight = 1000;
    QCOMPARE(rig.painted().copy(2, 2, 88, 18),
             stretched.convertToFormat(QImage::Format_RGB32).copy(2, 2, 88, 18));
}

void TestScrGridPicture::picture_isStretchedAgainOnlyWhenAsked()
{
    ScrGridRig rig(QSize(40, 30));
    rig.drawer.setBackgroundImage(m_red);
    rig.painted();
    rig.canvas.resize(50, 20);
    rig.painted();
    QCOMPARE(rig.drawer.m_bgPixmap.size(), QSize(40, 30));
    rig.drawer.updateBackgroundImage();
    rig.painted();
    QCOMPARE(rig.drawer.m_bgPixmap.size(), QSize(50, 20));
}

void TestScrGridPicture::picture_isDecodedWhenItIsFirstShown()
{
    ScrGridRig rig(QSize(40, 30));
    const int before = PictureLoader::decodedCount();
    rig.drawer.setBackgroundImage(m_red);
    rig.drawer.m_bgPicturePath.clear();
    rig.painted(); // the solid colour
    rig.drawer.setBackgroundImage(m_red);
    rig.drawer.m_layoutOn = false;
    rig.painted();
    QCOMPARE(PictureLoader::decodedCount(), before);
    rig.drawer.m_layoutOn = true;
    for (const int width : {40, 50, 60}) {
        rig.canvas.resize(width, 30);
        rig.drawer.updateBackgroundImage();
        QCOMPARE(rig.painted().pixel(5, 5), LayoutColor::red);
        QCOMPARE(rig.drawer.m_bgPixmap.width(), width);
        QCOMPARE(PictureLoader::decodedCount(), before + 1);
    }
}

void TestScrGridPicture::translucentPicture_liesOverBlack()
{
    QImage image(3, 3, QImage::Format_ARGB32);
    image.fill(qRgba(255, 255, 255, 0));
    ScrGridWindow rig;
    rig.drawer.setBackgroundImage(m_pictures.add(image));
    rig.drawer.update();
    QVERIFY(rig.settle());
    QVERIFY(rig.shows(LayoutColor::black));
}

void TestScrGridPicture::fileThatIsNoPicture_leavesBlack()
{
    ScrGridWindow rig;
    rig.drawer.setBackgroundImage(m_red);
    rig.drawer.update();
    QTRY_VERIFY(rig.shows(LayoutColor::red));

    const QString path = m_pictures.add(QByteArray("no picture"));
    rig.drawer.setBackgroundImage(path);
    rig.drawer.update();

    QCOMPARE(rig.drawer.m_bgPicturePath, path);
    QTRY_VERIFY(rig.shows(LayoutColor::black));
    QVERIFY(rig.drawer.m_bgPixmap.isNull());
    QCOMPARE(onScreen(rig.window).pixel(1, 1), LayoutColor::blue); // the layout stays
    QVERIFY(rig.settle());
    rig.paints.count = 0;
    rig.drawer.update();
    QVERIFY(rig.settle());
    QCOMPARE(rig.paints.count, 1);
}

void TestScrGridPicture::whatCannotBeRead_leavesThePictureBefore()
{
    ScrGridRig rig(QSize(40, 30));
    rig.drawer.setBackgroundImage(m_red);
    rig.painted();
    for (const QString &path : {m_pictures.path() + QStringLiteral("/missing"), m_pictures.path(),
                                QStringLiteral("/dev/zero")}) {
        const qint64 before = rig.drawer.m_bgPixmap.cacheKey();
        rig.drawer.setBackgroundImage(path);
        rig.painted();
        rig.drawer.updateBackgroundImage();
        QCOMPARE(rig.painted().pixel(5, 5), LayoutColor::red);
        QCOMPARE(rig.drawer.m_bgPicturePath, path);
        QCOMPARE(rig.drawer.m_bgPixmap.cacheKey(), before);
    }
}

QTEST_MAIN(TestScrGridPicture)
#include "tst_scrgrid_picture.moc"
