#include "picturestore.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>

namespace {

// False where not everything can be read.
bool copy(const QString &path, QIODevice &to)
{
    constexpr qint64 blockBytes = 1024 * 1024;
    QFile from(path);
    if (!from.open(QIODevice::ReadOnly))
        return false;
    for (QByteArray block = from.read(blockBytes); !block.isEmpty(); block = from.read(blockBytes))
        to.write(block);
    return from.error() == QFileDevice::NoError;
}

} // namespace

namespace PictureStore {

QString path()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/BackgroundPicture/picture");
}

void keep(const QString &file)
{
    QSaveFile kept(path());
    if (kept.open(QIODevice::WriteOnly) && copy(file, kept))
        kept.commit();
}

} // namespace PictureStore
