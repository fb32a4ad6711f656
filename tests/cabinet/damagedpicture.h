#pragma once

#include <QByteArray>
#include <QList>

#include <random>

// Makes picture files that nobody would draw: pictures of every format that is known here, with
// other bytes, without their end, with one another's header, and with sizes that no memory is
// enough for. The same seed gives the same files.
class DamagedPicture
{
public:
    explicit DamagedPicture(quint32 seed);

    QByteArray next();
    // Whole, one or more of each format.
    const QList<QByteArray> &pictures() const { return m_pictures; }

private:
    int below(int limit);
    quint32 side();
    QByteArray garbage(int size);
    const QByteArray &picture();
    QByteArray damaged(QByteArray content);
    QByteArray withAnotherHeader();
    QByteArray withNumbers(QByteArray content);
    QByteArray huge();
    QByteArray hugePng();
    QByteArray hugeBmp();
    QByteArray hugeGif();
    QByteArray hugeJpeg();
    QByteArray hugeIcon();
    QByteArray hugeText();

    std::mt19937 m_random;
    QList<QByteArray> m_pictures;
};
