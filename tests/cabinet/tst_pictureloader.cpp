#include "permissions.h"
#include "pictureloader.h"

#include <QBuffer>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

QByteArray saved(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!image.save(&buffer, format))
        qFatal("no picture of this format");
    return bytes;
}

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
    for (const char *format : {"BMP", "PNG", "JPG", "PPM"}) {
        for (const auto &depth : depths)
            QTest::addRow("%s, %s", format, depth.first) << saved(noise(depth.second), format);
    }
}

} // namespace

class TestPictureLoader : public QObject
{
    Q_OBJECT

private slots:
    void picture_isReadAsQtReadsIt_data();
    void picture_isReadAsQtReadsIt();
    void gif_isReadAsQtReadsIt();
    void cutOffPicture_isNone_data();
    void cutOffPicture_isNone();
    void pictureWithTooManyPixels_isNone_data();
    void pictureWithTooManyPixels_isNone();
    void dataThatIsNoPicture_isNone_data();
    void dataThatIsNoPicture_isNone();
    void file_isReadWhole();
    void emptyFile_isReadAsNothing();
    void fileThatIsTooLarge_isReadAsNothing();
    void whatIsNoReadableFile_isNotRead_data();
    void whatIsNoReadableFile_isNotRead();

private:
    QTemporaryDir m_folder;
};

void TestPictureLoader::picture_isReadAsQtReadsIt_data()
{
    addPictures();
}

void TestPictureLoader::picture_isReadAsQtReadsIt()
{
    QFETCH(const QByteArray, data);
    const QImage picture = readPicture(data);
    QVERIFY(!picture.isNull());
    QCOMPARE(picture, QImage::fromData(data));
}

void TestPictureLoader::gif_isReadAsQtReadsIt()
{
    const QImage picture = readPicture(gif());
    QCOMPARE(picture.size(), QSize(1, 1));
    QCOMPARE(picture.pixel(0, 0), qRgb(255, 0, 0));
}

void TestPictureLoader::cutOffPicture_isNone_data()
{
    addPictures();
}

void TestPictureLoader::cutOffPicture_isNone()
{
    QFETCH(const QByteArray, data);
    for (const int percent : {1, 10, 50, 90, 98})
        QVERIFY2(readPicture(data.left(data.size() * percent / 100)).isNull(),
                 qPrintable(QString::number(percent)));
}

void TestPictureLoader::pictureWithTooManyPixels_isNone_data()
{
    QTest::addColumn<QByteArray>("data");
    QImage large(8200, 8200, QImage::Format_Mono);
    large.fill(1);
    QTest::newRow("whole PNG") << saved(large, "PNG");
    QByteArray header = saved(noise(QImage::Format_RGB32), "BMP");
    header.replace(18, 8, QByteArray::fromHex("00000100ffff0000"));
    QTest::newRow("BMP that declares them") << header;
    header.replace(18, 8, QByteArray::fromHex("ffffff7fffffff7f"));
    QTest::newRow("BMP that declares the most") << header;
}

void TestPictureLoader::pictureWithTooManyPixels_isNone()
{
    QFETCH(const QByteArray, data);
    QVERIFY(data.size() < 1000000);
    QVERIFY(readPicture(data).isNull());
}

void TestPictureLoader::dataThatIsNoPicture_isNone_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("zero bytes") << QByteArray("");
    QTest::newRow("zeros") << QByteArray(5000, '\0');
    QTest::newRow("text") << QByteArray("no picture");
    QTest::newRow("only the start of a PNG") << QByteArray("\x89PNG\r\n\x1a\n");
    QTest::newRow("drawing instructions")
        << QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>");
}

void TestPictureLoader::dataThatIsNoPicture_isNone()
{
    QFETCH(const QByteArray, data);
    QVERIFY(readPicture(data).isNull());
}

void TestPictureLoader::file_isReadWhole()
{
    const QByteArray data = saved(noise(QImage::Format_RGB32), "PNG");
    QFile file(m_folder.filePath(QStringLiteral("whole")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(data), qint64(data.size()));
    file.close();
    const std::optional<QByteArray> read = readPictureFile(file.fileName());
    QVERIFY(read.has_value());
    QCOMPARE(*read, data);
}

void TestPictureLoader::emptyFile_isReadAsNothing()
{
    QFile file(m_folder.filePath(QStringLiteral("empty")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const std::optional<QByteArray> read = readPictureFile(file.fileName());
    QVERIFY(read.has_value());
    QVERIFY(read->isEmpty());
}

void TestPictureLoader::fileThatIsTooLarge_isReadAsNothing()
{
    QFile file(m_folder.filePath(QStringLiteral("large")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(qint64(1) << 40)); // takes no room on the disk
    const std::optional<QByteArray> read = readPictureFile(file.fileName());
    QVERIFY(read.has_value());
    QVERIFY(read->isEmpty());
}

void TestPictureLoader::whatIsNoReadableFile_isNotRead_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("empty path") << QString();
    QTest::newRow("missing") << m_folder.filePath(QStringLiteral("missing"));
    QTest::newRow("folder") << m_folder.path();
#ifdef Q_OS_UNIX
    const QString pipe = m_folder.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QTest::newRow("pipe") << pipe;
    const QString link = m_folder.filePath(QStringLiteral("link"));
    QVERIFY(QFile::link(pipe, link));
    QTest::newRow("link to a pipe") << link;
    QTest::newRow("device without end") << QStringLiteral("/dev/zero");
#endif
    QFile locked(m_folder.filePath(QStringLiteral("locked")));
    QVERIFY(locked.open(QIODevice::WriteOnly));
    QVERIFY(locked.setPermissions(QFileDevice::Permissions()));
    QTest::newRow("unreadable") << locked.fileName();
}

void TestPictureLoader::whatIsNoReadableFile_isNotRead()
{
    QFETCH(const QString, path);
    const OrdinaryRights rights;
    QVERIFY(!readPictureFile(path).has_value());
}

QTEST_GUILESS_MAIN(TestPictureLoader)
#include "tst_pictureloader.moc"
