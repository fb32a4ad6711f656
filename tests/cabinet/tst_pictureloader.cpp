#include "permissions.h"
#include "picturefolder.h"
#include "pictureloader.h"
#include "rows.h"
#include "simulatedclock.h"

#include <QDateTime>
#include <QImage>
#include <QPainter>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

// Noise, so that no format makes it much smaller.
QImage noise(QImage::Format format)
{
    QImage image(67, 41, QImage::Format_RGB32);
    quint32 value = 1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            value = value * 1664525U + 1013904223U;
            image.setPixel(x, y, 0xff000000U | (value >> 8));
        }
    }
    return image.convertToFormat(format);
}

// One red pixel.
QByteArray gif()
{
    return QByteArray::fromHex("47494638396101000100800000ff0000000000"
                               "2c00000000010001000002024401003b");
}

void addPictures()
{
    QTest::addColumn<QByteArray>("data");
    const QPair<const char *, QImage::Format> depths[] = {{"1 bit", QImage::Format_Mono},
                                                          {"8 bits", QImage::Format_Indexed8},
                                                          {"16 bits", QImage::Format_RGB16},
                                                          {"24 bits", QImage::Format_RGB888},
                                                          {"32 bits", QImage::Format_ARGB32}};
    for (const char *format : {"BMP", "PNG", "JPG", "PPM", "XBM", "XPM"}) {
        for (const auto &depth : depths)
            QTest::addRow("%s, %s", format, depth.first)
                << PictureFolder::encoded(noise(depth.second), format);
    }
    QTest::newRow("GIF") << gif();
}

void setAge(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite)
        || !file.setFileTime(QDateTime::fromSecsSinceEpoch(1), QFile::FileModificationTime))
        qFatal("cannot set the time of a file");
}

// A PNG of one pixel, with another header (size, format and checksum).
QByteArray png(const char *header)
{
    QByteArray bytes = PictureFolder::encoded(PictureFolder::filled({1, 1}, Qt::red), "PNG");
    const QByteArray other = QByteArray::fromHex(header);
    return bytes.replace(16, other.size(), other);
}

// Four flat colours, so that no reduction makes others of them but at their edges.
QImage quarters(const QSize &size)
{
    QImage image(size, QImage::Format_Mono);
    image.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    QPainter painter(&image);
    const QPoint middle(size.width() / 2, size.height() / 2);
    painter.fillRect(image.rect(), Qt::black);
    painter.fillRect(QRect(QPoint(), middle - QPoint(1, 1)), Qt::white);
    painter.fillRect(QRect(middle, image.rect().bottomRight()), Qt::white);
    painter.end();
    return image;
}

} // namespace

class TestPictureLoader : public QObject
{
    Q_OBJECT

private slots:
    void picture_isReadAsQtReadsItEvenIfCutOff_data() { addPictures(); }
    void picture_isReadAsQtReadsItEvenIfCutOff();
    void bmpFromTopToBottom_isReadAsQtReadsIt();
    void missingRowsOfABmp_areBlack();
    void veryLargePicture_comesInEighths();
    void veryLongPicture_comesInEighthsOfItsLength();
    void veryLargeJpeg_isReducedWhileItIsDecoded();
    void pictureWithTooManyPixels_isNone_data();
    void pictureWithTooManyPixels_isNone();
    void dataThatIsNoPicture_isNone_data();
    void dataThatIsNoPicture_isNone();
    void fileThatIsTooLarge_isNone();
    void nameForAFineScreen_changesNoPicture();
    void file_isDecodedOncePerChange();
    void anotherFileOfTheSameSizeAndAge_isDecoded();
    void decodedPicture_isForgottenAfterTenSecondsAtRest();
    void header_isReadWithoutDecoding();
    void whatIsNoReadableFile_isNone_data();
    void whatIsNoReadableFile_isNone();

private:
    QImage read(const QByteArray &data) { return PictureLoader().load(m_folder.add(data)); }

    PictureFolder m_folder;
};

void TestPictureLoader::picture_isReadAsQtReadsItEvenIfCutOff()
{
    QFETCH(const QByteArray, data);
    const QImage picture = read(data);
    QVERIFY(!picture.isNull());
    QCOMPARE(picture, QImage::fromData(data));
    QVERIFY(PictureLoader::isPicture(m_folder.add(data)));
    for (const int missing : {1, 2, data.size() / 10, data.size() / 2, data.size() - 20}) {
        const QByteArray rest = data.left(data.size() - missing);
        const QImage expected = QImage::fromData(rest);
        QCOMPARE(read(rest).size(), expected.size());
        if (!data.startsWith("BM") && !data.startsWith("#define"))
            QCOMPARE(read(rest), expected); // those leave open what the missing pixels are
    }
}

void TestPictureLoader::bmpFromTopToBottom_isReadAsQtReadsIt()
{
    const QImage image = noise(QImage::Format_RGB32);
    QByteArray data = PictureFolder::encoded(image.mirrored(), "BMP");
    data.replace(22, 4, QByteArray::fromHex("d7ffffff")); // the height is negative for that
    QCOMPARE(read(data), image);
}

void TestPictureLoader::missingRowsOfABmp_areBlack()
{
    const QImage image = noise(QImage::Format_RGB32);
    const QByteArray data = PictureFolder::encoded(image, "BMP");
    for (const int rows : {1, 20}) {
        const int rowBytes = (data.size() - 54) / image.height();
        const QByteArray rest = data.left(data.size() - (rows - 1) * rowBytes - 1);
        QImage(image.size(), image.format()).fill(Qt::red); // what may lie in the memory
        const QImage picture = read(rest);
        QCOMPARE(picture.copy(0, rows, image.width(), image.height()),
                 image.copy(0, rows, image.width(), image.height()));
        for (int y = 0; y < rows; ++y) {
            for (int x = 0; x < image.width(); ++x)
                QCOMPARE(picture.pixel(x, y) & 0xffffffU, 0U);
        }
    }
}

void TestPictureLoader::veryLargePicture_comesInEighths()
{
    const QString largest = m_folder.add(quarters({8192, 8192}));
    QCOMPARE(PictureLoader().load(largest).size(), QSize(8192, 8192));
    const QString path = m_folder.add(quarters({9000, 8000}));
    QVERIFY(PictureLoader::isPicture(path));
    const QImage picture = PictureLoader().load(path);
    const QSize reduced(7875, 7000);
    QCOMPARE(picture.size(), reduced);
    for (const int x : {0, reduced.width() / 2 - 3, reduced.width() / 2 + 3, reduced.width() - 1}) {
        for (const int y : {0, reduced.height() / 2 - 3, reduced.height() / 2 + 3}) {
            const bool isLight = (x < reduced.width() / 2) == (y < reduced.height() / 2);
            QCOMPARE(qGray(picture.pixel(x, y)) > 127, isLight);
        }
    }
}

// Its other side cannot become less than a pixel.
void TestPictureLoader::veryLongPicture_comesInEighthsOfItsLength()
{
    QByteArray data = PictureFolder::encoded(noise(QImage::Format_Mono), "BMP");
    data.replace(18, 8, QByteArray::fromHex("0000001001000000"));
    QCOMPARE(read(data).size(), QSize(1 << 26, 1));
}

// It loses the finest details, of which a reduction afterwards would take every eighth.
void TestPictureLoader::veryLargeJpeg_isReducedWhileItIsDecoded()
{
    QImage stripes(11648, 8736, QImage::Format_Grayscale8);
    for (int y = 0; y < stripes.height(); ++y) {
        uchar *line = stripes.scanLine(y);
        for (int x = 0; x < stripes.width(); ++x)
            line[x] = x % 2 == 0 ? 255 : 0;
    }
    const QImage picture = read(PictureFolder::encoded(stripes, "JPG"));
    QCOMPARE(picture.size(), QSize(8736, 6552));
    for (int x = 0; x < picture.width(); ++x) {
        const int gray = qGray(picture.pixel(x, 3000));
        QVERIFY2(gray > 16 && gray < 239, qPrintable(QString::number(gray)));
    }
}

void TestPictureLoader::pictureWithTooManyPixels_isNone_data()
{
    QByteArray header = PictureFolder::encoded(noise(QImage::Format_RGB32), "BMP");
    header.replace(18, 8, QByteArray::fromHex("0040000001400000"));
    const Table<QByteArray> row("data");
    row("BMP that declares them", header);
    header.replace(18, 8, QByteArray::fromHex("00400000ffbfffff"));
    row("BMP that declares them from top to bottom", header);
    header.replace(18, 8, QByteArray::fromHex("ffffff7fffffff7f"));
    row("BMP that declares the most", header);
    header.replace(18, 8, QByteArray::fromHex("0100000000000080"));
    row("BMP that declares the least height", header);
    header.replace(18, 8, QByteArray::fromHex("ffffffff01000000"));
    row("BMP of a negative width", header);
    row("PPM that declares them", QByteArray("P6 16384 16385 255\n") + header);
    QByteArray wide = gif();
    for (const int place : {6, 24}) // the screen and the picture on it
        wide.replace(place, 4, QByteArray::fromHex("ffffffff"));
    row("GIF that declares them", wide);
    row("PNG that declares them", png("000040000000400108060000006294c321"));
    // 16 bits a colour: half as many pixels, 16384 x 8192.
    row("deep PNG that declares them", png("00004000000020011006000000b9b25387"));
}

void TestPictureLoader::pictureWithTooManyPixels_isNone()
{
    QFETCH(const QByteArray, data);
    QVERIFY(data.size() < 1000000);
    const int before = PictureLoader::decodedCount();
    QVERIFY(read(data).isNull());
    QVERIFY(!PictureLoader::isPicture(m_folder.add(data)));
    QCOMPARE(PictureLoader::decodedCount(), before);
}

void TestPictureLoader::dataThatIsNoPicture_isNone_data()
{
    const Table<QByteArray> row("data");
    row("nothing", QByteArray());
    row("zeros", QByteArray(5000, '\0'));
    row("text", "no picture");
    row("only the start of a PNG", "\x89PNG\r\n\x1a\n");
    row("drawing instructions",
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>");
}

void TestPictureLoader::dataThatIsNoPicture_isNone()
{
    QFETCH(const QByteArray, data);
    const QString path = m_folder.add(data);
    QVERIFY(PictureLoader::isFile(path));
    QVERIFY(!PictureLoader::isPicture(path));
    QVERIFY(PictureLoader().load(path).isNull());
}

void TestPictureLoader::fileThatIsTooLarge_isNone()
{
    QFile file(m_folder.add(noise(QImage::Format_RGB32)));
    QVERIFY(file.resize(qint64(1) << 40)); // takes no room on the disk
    QVERIFY(!PictureLoader::isPicture(file.fileName()));
    QVERIFY(PictureLoader().load(file.fileName()).isNull());
}

void TestPictureLoader::nameForAFineScreen_changesNoPicture()
{
    const QString path = m_folder.path() + QStringLiteral("/picture@2x.png");
    QVERIFY(noise(QImage::Format_RGB32).save(path));
    QCOMPARE(PictureLoader().load(path).devicePixelRatio(), 1.0);
}

void TestPictureLoader::file_isDecodedOncePerChange()
{
    const QString path = m_folder.add(Qt::red);
    PictureLoader loader;
    const auto decoded = [before = PictureLoader::decodedCount()] {
        return PictureLoader::decodedCount() - before;
    };
    const QImage picture = loader.load(path);
    QCOMPARE(loader.load(path), picture);
    QVERIFY(loader.load(m_folder.add(QByteArray("no picture"))).isNull());
    QCOMPARE(loader.load(path), picture);
    QCOMPARE(decoded(), 1);
    QVERIFY(PictureFolder::filled({9, 9}, Qt::blue).save(path, "PNG")); // another length
    QCOMPARE(loader.load(path).pixelColor(0, 0), QColor(Qt::blue));
    setAge(path);
    QVERIFY(!loader.load(path).isNull());
    QCOMPARE(decoded(), 3);
}

void TestPictureLoader::anotherFileOfTheSameSizeAndAge_isDecoded()
{
    PictureLoader loader;
    for (const QColor color : {Qt::red, Qt::blue}) {
        const QString path =
            m_folder.add(PictureFolder::encoded(PictureFolder::filled({9, 9}, color), "BMP"));
        setAge(path);
        QCOMPARE(loader.load(path).pixelColor(0, 0), color);
    }
}

void TestPictureLoader::decodedPicture_isForgottenAfterTenSecondsAtRest()
{
    SimulatedClock::start();
    const QString path = m_folder.add(PictureFolder::encoded(noise(QImage::Format_RGB32)));
    PictureLoader loader;
    const int before = PictureLoader::decodedCount();
    for (int use = 0; use < 3; ++use) {
        QVERIFY(!loader.load(path).isNull());
        QCOMPARE(PictureLoader::decodedCount(), before + 1);
        SimulatedClock::run(9000);
    }
    SimulatedClock::run(2000);
    QVERIFY(!loader.load(path).isNull());
    QCOMPARE(PictureLoader::decodedCount(), before + 2);
}

void TestPictureLoader::header_isReadWithoutDecoding()
{
    const QByteArray data = PictureFolder::encoded(noise(QImage::Format_RGB32));
    const QString damaged = m_folder.add(data.left(data.size() / 2));
    const int before = PictureLoader::decodedCount();
    QVERIFY(PictureLoader::isPicture(damaged));
    // 16384 x 16384 pixels; with 16 bits a colour, 16384 x 8192.
    QVERIFY(PictureLoader::isPicture(m_folder.add(png("00004000000040000806000000a9c81084"))));
    QVERIFY(PictureLoader::isPicture(m_folder.add(png("0000400000002000100600000072ee8022"))));
    QCOMPARE(PictureLoader::decodedCount(), before);
    QVERIFY(PictureLoader().load(damaged).isNull());
}

void TestPictureLoader::whatIsNoReadableFile_isNone_data()
{
    const Table<QString> row("path");
    row("empty path", QString());
    row("missing", m_folder.path() + QStringLiteral("/missing"));
    row("folder", m_folder.path());
#ifdef Q_OS_UNIX
    const QString pipe = m_folder.path() + QStringLiteral("/pipe");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    row("pipe", pipe);
    const QString link = m_folder.path() + QStringLiteral("/link");
    QVERIFY(QFile::link(pipe, link));
    row("link to a pipe", link);
    row("device without end", QStringLiteral("/dev/zero"));
#endif
    QFile locked(m_folder.add(Qt::red));
    QVERIFY(locked.setPermissions(QFileDevice::Permissions()));
    row("unreadable", locked.fileName());
}

void TestPictureLoader::whatIsNoReadableFile_isNone()
{
    QFETCH(const QString, path);
    const OrdinaryRights rights;
    QVERIFY(!PictureLoader::isFile(path));
    QVERIFY(!PictureLoader::isPicture(path));
    QVERIFY(PictureLoader().load(path).isNull());
}

QTEST_GUILESS_MAIN(TestPictureLoader)
#include "tst_pictureloader.moc"
