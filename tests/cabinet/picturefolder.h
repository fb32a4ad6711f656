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

    static QByteArray png(const QImage &image)
    {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        return bytes;
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

    QString add(const QImage &image) { return add(png(image)); }
    QString add(const QColor &color) { return add(filled({5, 3}, color)); }

private:
    QTemporaryDir m_folder;
    int m_count = 0;
};
