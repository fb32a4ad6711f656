#pragma once

#include <QByteArray>
#include <QImage>

class DrawContainer;
class QIODevice;
class QString;

// Picture files as media servers and players want them: of the pattern's very values.
namespace PictureFile {

// The format that the name's ending stands for, PNG without one; empty where pictures of that
// kind cannot be written.
QByteArray format(const QString &path);

// An empty text, or why what the test window shows could not be written. There is a whole file or
// none, or the one of before.
QString write(DrawContainer &window, const QString &path);

// What the test window shows once it has painted all of it, with no screen; null where memory does
// not suffice.
QImage take(DrawContainer &window);

// To an open device. The same picture gives the same bytes. One that is handed over is not copied.
bool encode(QImage picture, QIODevice &device, const QByteArray &format);

} // namespace PictureFile
