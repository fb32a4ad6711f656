#include "damagedpicture.h"
#include "longrun.h"
#include "pictureloader.h"
#include "pictureonpanel.h"

#include <QImageReader>
#include <QLoggingCategory>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <csignal>

#include <sys/time.h>
#include <unistd.h>
#endif

namespace {

#if defined(__SANITIZE_ADDRESS__)
// A ninth more for what the sanitizer notes about every byte, and what it keeps of freed memory.
constexpr qint64 sanitizerKiB = 512 * 1024;
constexpr int slowness = 4;
#else
constexpr qint64 sanitizerKiB = 0;
constexpr int slowness = 1;
#endif

constexpr qint64 mostDecoded = qint64(16384) * 16384; // pixels
constexpr qint64 mostKept = qint64(8192) * 8192;
// Both at once, and room for the rest.
constexpr qint64 mostKiB = (mostDecoded + mostKept) * 4 / 1024 + 64 * 1024 + sanitizerKiB;

constexpr int mostSeconds = 10 * slowness; // of processor time for one file

// Ends the test in the middle of a file that takes too much processor time; the file stays.
#ifdef Q_OS_UNIX
void expectEnd(int seconds)
{
    std::signal(SIGPROF, [](int) {
        constexpr char text[] = "A picture takes too long.\n";
        const ssize_t written = ::write(STDERR_FILENO, text, sizeof text - 1);
        Q_UNUSED(written)
        std::abort();
    });
    const itimerval time = {{0, 0}, {seconds, 0}};
    ::setitimer(ITIMER_PROF, &time, nullptr);
}
#else
void expectEnd(int /*seconds*/) { }
#endif

// From here on the highest is what there is now. Without this, as on other systems, it is that of
// all files together.
void forgetHighestMemory()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QIODevice::WriteOnly))
        file.write("5");
}

bool isAccepted(const QByteArray &format)
{
    static const QList<QByteArray> formats = {"bmp", "gif", "jpeg", "pbm", "pgm",
                                              "png", "ppm", "xbm",  "xpm"};
    return formats.contains(format);
}

} // namespace

// A thousand damaged pictures, in a long run ten thousand, read as the cabinet panel reads them.
class TestPictureLoaderRandom : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyFormatThatQtReads_isAmongThePictures();
    void anyFile_isAPictureOrNone();

private:
    QString check(const QByteArray &content);
    QString checkLoader();
    QString checkPanel(const QByteArray &content);

    QString m_path;
    std::unique_ptr<CabinetRig> m_rig;
};

// Qt complains about most of the files, and the test framework stops its output after so many.
void TestPictureLoaderRandom::initTestCase()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false\nqt.*.warning=false"));
}

void TestPictureLoaderRandom::everyFormatThatQtReads_isAmongThePictures()
{
    QList<QByteArray> formats = QImageReader::supportedImageFormats();
    const DamagedPicture pictures(1);
    for (QByteArray picture : pictures.pictures()) {
        QBuffer buffer(&picture);
        const QImageReader reader(&buffer);
        formats.removeAll(reader.format());
        if (reader.format() == "jpeg")
            formats.removeAll("jpg");
        if (reader.format() == "svg") // whatever it is packed in
            formats.removeAll("svgz");
        if (reader.format() == "ico")
            formats.removeAll("cur");
    }
    QCOMPARE(formats, QList<QByteArray>());
}

QString TestPictureLoaderRandom::checkLoader()
{
    const int before = PictureLoader::decodedCount();
    const bool isPicture = PictureLoader::isPicture(m_path);
    const QImage picture = PictureLoader().load(m_path);
    QFile file(m_path);
    QImageReader reader;
    if (file.open(QIODevice::ReadOnly))
        reader.setDevice(&file);
    if (isPicture && !isAccepted(reader.format()))
        return QStringLiteral("a picture of the format \"%1\"").arg(QLatin1String(reader.format()));
    if (!isPicture)
        return picture.isNull() && PictureLoader::decodedCount() == before
                   ? QString()
                   : QStringLiteral("decoded without being a picture");
    if (picture.isNull())
        return {};
    const QSize size(reader.size().width(), qAbs(reader.size().height()));
    const auto isKeptWhole = [](const QSize &pixels) {
        return qint64(pixels.width()) * pixels.height() <= mostKept;
    };
    // Of a GIF, the frame may tell another size than the screen.
    const bool isOfItsSize = picture.size() == size || reader.format() == "gif";
    if (!isKeptWhole(picture.size()) || (isKeptWhole(size) && !isOfItsSize))
        return QStringLiteral("%1 x %2 pixels for %3 x %4")
            .arg(picture.width())
            .arg(picture.height())
            .arg(size.width())
            .arg(size.height());
    return {};
}

// The operator chooses the file, and sees it in the test window.
QString TestPictureLoaderRandom::checkPanel(const QByteArray &content)
{
    const QString before = m_rig->drawer->m_bgPicturePath;
    const QByteArray kept = KeptPicture::contents();
    DialogAnswers::file(m_path);
    m_rig->click("labelimage");
    m_rig->canvas.grab();
    const bool isPicture = !m_rig->drawer->picture(m_path).isNull();
    if (m_rig->drawer->m_bgPicturePath != (isPicture ? m_path : before))
        return QStringLiteral("the layout shows ") + m_rig->drawer->m_bgPicturePath;
    if (KeptPicture::contents() != (isPicture ? content : kept))
        return QStringLiteral("another picture is kept");
    return {};
}

QString TestPictureLoaderRandom::check(const QByteArray &content)
{
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        return QStringLiteral("no file");
    file.close();
    forgetHighestMemory();
    const qint64 before = LongRun::residentMemory();
    expectEnd(mostSeconds);
    const QString problem = m_rig ? checkPanel(content) : checkLoader();
    expectEnd(0);
    const qint64 taken = LongRun::residentMemory(0, "VmHWM") - before;
    return taken > mostKiB ? QStringLiteral("takes %1 KiB").arg(taken) : problem;
}

void TestPictureLoaderRandom::anyFile_isAPictureOrNone()
{
    const quint32 seed = LongRun::seed(20261122);
    const int files = LongRun::count(1000);
    constexpr int filesPerPanel = 20;
    qInfo("Seed %u, %d files", seed, files);
    const DialogAnswers answers;
    const QString folder = QCoreApplication::applicationDirPath();
    DamagedPicture damaged(seed);
    qint64 firstMemory = 0;
    for (int number = 0; number < files; ++number) {
        if (number == qMin(filesPerPanel, files - 1))
            firstMemory = LongRun::residentMemory();
        if (number % filesPerPanel == 0) {
            m_rig = std::make_unique<CabinetRig>(QVariantMap(), PictureFolder::file(Qt::cyan));
            m_rig->layOut();
        }
        m_path = QStringLiteral("%1/damaged-%2").arg(folder).arg(number);
        // A failure leaves the file behind, to be looked at.
        const QString problem = check(damaged.next());
        QVERIFY2(problem.isEmpty(), qPrintable(m_path + QStringLiteral(": ") + problem));
        QFile::remove(m_path);
        m_rig.reset();
    }
    LongRun::report(files, firstMemory, LongRun::residentMemory());
}

QTEST_MAIN(TestPictureLoaderRandom)
#include "tst_pictureloader_random.moc"
