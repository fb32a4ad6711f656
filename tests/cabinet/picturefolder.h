#pragma once

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

// Picture files to choose from, and files that are none.
class PictureFolder
{
public:
    static QImage filled(const QSize &size, const QColor &color)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(color);
        return image;
    }

    static QByteArray encoded(const QImage &image, const char *format = "PNG")
    {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        if (!image.save(&buffer, format))
            qFatal("no picture of this format");
        return bytes;
    }

    // The file of a picture in one colour.
    static QByteArray file(const QColor &color, const QSize &size = QSize(8, 6),
                           const char *format = "PNG")
    {
        return encoded(filled(size, color), format);
    }

    QString path() const { return m_folder.path(); }

    // The path of a new file.
    QString add(const QByteArray &content)
    {
        QFile file(m_folder.filePath(QString::number(++m_count)));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("no file");
        return file.fileName();
    }

    QString add(const QImage &image) { return add(encoded(image)); }
    QString add(const QColor &color) { return add(file(color)); }

private:
    QTemporaryDir m_folder;
    int m_count = 0;
};
