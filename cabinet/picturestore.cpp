#include "picturestore.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>

#include <chrono>
#include <future>

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

void copyToStore(const QString &file)
{
    QSaveFile kept(PictureStore::path());
    if (kept.open(QIODevice::WriteOnly) && copy(file, kept))
        kept.commit();
}

// One after the other.
std::future<void> copying;
QString copiedFile;

} // namespace

namespace PictureStore {

QString path()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/BackgroundPicture/picture");
}

void keep(const QString &file)
{
    finish();
    copiedFile = file;
    copying = std::async(std::launch::async, copyToStore, file);
}

QString current()
{
    using namespace std::chrono_literals;
    const bool isCopying = copying.valid() && copying.wait_for(0s) != std::future_status::ready;
    return isCopying ? copiedFile : path();
}

void finish()
{
    if (copying.valid())
        copying.wait();
}

} // namespace PictureStore
