#pragma once

#include <QDateTime>
#include <QImage>
#include <QString>
#include <QTimer>

// Decodes the picture files that the operator or the settings name, in a bounded amount of
// memory whatever they hold, and keeps the last picture: its thumbnail, every size of the test
// window and another choice of the same file take one decoding together, until ten seconds have
// gone by without any.
class PictureLoader
{
public:
    PictureLoader();

    // Whether it can be read and is a regular file (no folder, no pipe, no device).
    static bool isFile(const QString &path);

    // Told by the file's header, at little cost; what follows may be damaged nevertheless.
    static bool isPicture(const QString &path);

    // The format is found from the content, and what the toolkit reads counts as a picture even
    // if its end is missing. Null for a file that is none, or whose decoding takes more memory
    // than a picture of 16,384 x 16,384 pixels. What has more pixels than 8,192 x 8,192 comes
    // in the largest number of eighths of its size that has not.
    QImage load(const QString &path);

    // How many pictures have been decoded since the start of the program.
    static int decodedCount();

private:
    QString m_path; // of m_picture, with its state when it was decoded
    QDateTime m_modified;
    qint64 m_bytes = 0;
    QImage m_picture;
    QTimer m_forget; // runs from the last use
};
