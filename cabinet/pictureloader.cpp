#include "pictureloader.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QImageReader>

#include <algorithm>
#include <utility>

namespace {

// Data that notices when its reader wants more than there is: some picture formats fill in what
// is cut off and say nothing.
class PictureData : public QIODevice
{
public:
    explicit PictureData(QByteArray data)
        : m_data(std::move(data))
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    qint64 size() const override { return m_data.size(); }

    bool seek(qint64 position) override
    {
        if (position < 0 || position > size() || !QIODevice::seek(position))
            return false;
        m_at = position;
        return true;
    }

    void expectWholePicture(bool exactReads)
    {
        m_exactReads = exactReads;
        m_cutOff = false;
    }

    bool isCutOff() const { return m_cutOff; }

protected:
    qint64 readData(char *target, qint64 wanted) override
    {
        const qint64 count = std::min(wanted, size() - m_at);
        if (wanted > 0 && (count == 0 || (m_exactReads && count < wanted)))
            m_cutOff = true;
        std::copy_n(m_data.constData() + m_at, count, target);
        m_at += count;
        return count;
    }

    qint64 writeData(const char *, qint64) override { return -1; }

private:
    const QByteArray m_data;
    qint64 m_at = 0;
    bool m_exactReads = false; // every read asks for as much as it needs, not for a block
    bool m_cutOff = false;
};

bool isPixelFormat(const QByteArray &format)
{
    // Not the formats that are programs rather than pixels, whose cost nobody knows beforehand.
    static const char *const formats[] = {"bmp", "gif", "jpeg", "pbm", "pgm", "png", "ppm"};
    return std::any_of(std::begin(formats), std::end(formats),
                       [&format](const char *name) { return format == name; });
}

} // namespace

std::optional<QByteArray> readPictureFile(const QString &path)
{
    // Opening a pipe would wait for its other end.
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.size() <= maxPictureBytes ? file.read(file.size()) : QByteArray();
}

QImage readPicture(const QByteArray &data)
{
    PictureData device(data);
    QImageReader reader(&device);
    const QByteArray format = reader.format();
    if (!isPixelFormat(format))
        return {};
    const QSize size = reader.size();
    if (!size.isValid() || qint64(size.width()) * size.height() > maxPicturePixels)
        return {};
    device.expectWholePicture(format == "bmp");
    const QImage image = reader.read();
    return device.isCutOff() ? QImage() : image;
}
