#include "pictureloader.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

namespace {

constexpr int usualDepth = 32; // bits to a pixel
constexpr qint64 maxDecodedBits = qint64(16384) * 16384 * usualDepth;
constexpr qint64 maxKeptPixels = qint64(8192) * 8192;
constexpr int forgetMs = 10000;
constexpr qint64 maxFileBytes = maxDecodedBits / 8 + 64 * 1024; // no compression, and a header

int decoded = 0;

bool isPixelFormat(const QByteArray &format)
{
    // Not the formats that are programs rather than pixels, nor icons, in which a picture of
    // another size may be packed: nobody knows their cost beforehand.
    static const char *const formats[] = {"bmp", "gif", "jpeg", "pbm", "pgm",
                                          "png", "ppm", "xbm",  "xpm"};
    return std::any_of(std::begin(formats), std::end(formats),
                       [&format](const char *name) { return format == name; });
}

// The height is negative for a BMP whose rows run from top to bottom.
bool isOfBoundedSize(const QImageReader &reader)
{
    const QSize size = reader.size();
    const qint64 pixels = qAbs(qint64(size.width()) * size.height());
    if (size.width() <= 0 || pixels == 0)
        return false; // and the pixels' format is anything
    const int depth = QImage::toPixelFormat(reader.imageFormat()).bitsPerPixel();
    return pixels <= maxDecodedBits / std::max(usualDepth, depth);
}

bool open(QFile &file)
{
    // Opening a pipe would wait for its other end.
    return QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly);
}

bool open(QFile &file, QImageReader &reader)
{
    if (!open(file) || file.size() > maxFileBytes)
        return false;
    reader.setDevice(&file);
    return isPixelFormat(reader.format()) && isOfBoundedSize(reader);
}

// As many eighths as may be kept, of sides that are never less than a pixel.
QSize keptSize(const QSize &size)
{
    constexpr int whole = 8; // JPEG is decoded to every eighth of its size
    int eighths = whole;
    const auto reduced = [&eighths](int side) {
        return std::max<qint64>(1, qint64(side) * eighths / whole);
    };
    while (reduced(size.width()) * reduced(size.height()) > maxKeptPixels)
        --eighths;
    return {int(reduced(size.width())), int(reduced(size.height()))};
}

QImage decode(const QString &path)
{
    QFile file(path);
    QImageReader reader;
    if (!open(file, reader))
        return {};
    ++decoded;
    QImage image;
    const QSize size = reader.size();
    if (reader.format() == "jpeg") {
        reader.setScaledSize(keptSize(size));
    } else {
        // Formats that go on without the rows that are missing leave there what memory holds.
        image = QImage(size.width(), qAbs(size.height()), reader.imageFormat());
        image.fill(0);
    }
    if (!reader.read(&image))
        return {};
    image.setDevicePixelRatio(1); // whatever the file's name ends in
    const QSize kept = keptSize(image.size());
    return image.size() == kept ? image
                                : image.scaled(kept, Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

} // namespace

PictureLoader::PictureLoader()
{
    m_forget.setSingleShot(true);
    m_forget.setInterval(forgetMs);
    QObject::connect(&m_forget, &QTimer::timeout, &m_forget, [this] {
        m_path.clear();
        m_picture = QImage();
    });
}

bool PictureLoader::isFile(const QString &path)
{
    QFile file(path);
    return open(file);
}

bool PictureLoader::isPicture(const QString &path)
{
    QFile file(path);
    QImageReader reader;
    return open(file, reader);
}

QImage PictureLoader::load(const QString &path)
{
    const QFileInfo file(path);
    const bool isKept =
        path == m_path && file.lastModified() == m_modified && file.size() == m_bytes;
    QImage picture = isKept ? m_picture : decode(path);
    if (!picture.isNull()) {
        m_path = path;
        m_modified = file.lastModified();
        m_bytes = file.size();
        m_picture = picture;
    }
    m_forget.start(); // the decoding may have taken longer
    return picture;
}

int PictureLoader::decodedCount()
{
    return decoded;
}
