#include "picturestore.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>

#include <chrono>
#include <future>
#include <utility>

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

// After the copying before.
void copyToStore(std::future<void> before, const QString &file)
{
    if (before.valid())
        before.wait();
    QSaveFile kept(PictureStore::path());
    if (kept.open(QIODevice::WriteOnly) && copy(file, kept))
        kept.commit();
}

struct Copying
{
    std::future<void> end; // of the last one
    QString file;
};

Copying &copying()
{
    static Copying copying;
    return copying;
}

} // namespace

namespace PictureStore {

QString path()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/BackgroundPicture/picture");
}

void keep(const QString &file)
{
    copying().file = file;
    copying().end = std::async(std::launch::async, copyToStore, std::move(copying().end), file);
}

QString current()
{
    using namespace std::chrono_literals;
    const std::future<void> &end = copying().end;
    return end.valid() && end.wait_for(0s) != std::future_status::ready ? copying().file : path();
}

void finish()
{
    if (copying().end.valid())
        copying().end.wait();
}

} // namespace PictureStore
