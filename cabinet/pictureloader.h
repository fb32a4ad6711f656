#pragma once

#include <QImage>

#include <optional>

class QByteArray;
class QString;

// Pictures that the operator or the settings name are read here and nowhere else: whatever
// they hold, they take a bounded amount of memory.

// The most pixels that a picture may have, and the largest file, in bytes: as many without any
// compression, and some room for what stands before them.
constexpr qint64 maxPicturePixels = qint64(64) * 1024 * 1024;
constexpr qint64 maxPictureBytes = 4 * maxPicturePixels + 64 * 1024;

// All bytes of a regular file; none when it is larger than maxPictureBytes. Nothing when it
// cannot be opened or is no regular file (a folder, a pipe, a device).
std::optional<QByteArray> readPictureFile(const QString &path);

// The format is found from the content. A null image for data that is no picture, is cut off,
// or declares more pixels than maxPicturePixels.
QImage readPicture(const QByteArray &data);
