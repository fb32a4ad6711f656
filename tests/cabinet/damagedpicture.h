#pragma once

#include "randombytes.h"

#include <QByteArray>
#include <QList>

// Makes picture files that nobody would draw: pictures of every format that is known here, with
// other bytes, without their end, with one another's header, and with sizes that no memory is
// enough for. The same seed gives the same files.
class DamagedPicture : private RandomBytes
{
public:
    explicit DamagedPicture(quint32 seed);

    QByteArray next();
    // Whole, one or more of each format.
    const QList<QByteArray> &pictures() const { return m_pictures; }

private:
    quint32 side();
    const QByteArray &picture();
    QByteArray withAnotherHeader();
    QByteArray withNumbers(QByteArray content);
    QByteArray huge();
    QByteArray hugePng();
    QByteArray hugeBmp();
    QByteArray hugeGif();
    QByteArray hugeJpeg();
    QByteArray hugeIcon();
    QByteArray hugeText();

    QList<QByteArray> m_pictures;
};
