#include "picturestore.h"

#include <QCoreApplication>
#include <QFile>
#include <QRunnable>
#include <QSaveFile>
#include <QThreadPool>

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

class Copying : public QRunnable
{
public:
    explicit Copying(QString file)
        : m_file(std::move(file))
    { }

    void run() override
    {
        QSaveFile kept(PictureStore::path());
        if (kept.open(QIODevice::WriteOnly) && copy(m_file, kept))
            kept.commit();
    }

private:
    const QString m_file;
};

// One copy after the other.
class Copies : public QThreadPool
{
public:
    Copies() { setMaxThreadCount(1); }

    QString lastFile;
};

Copies &copies()
{
    static Copies copies;
    return copies;
}

} // namespace

namespace PictureStore {

QString path()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/BackgroundPicture/picture");
}

void keep(const QString &file)
{
    copies().lastFile = file;
    copies().start(new Copying(file));
}

QString current()
{
    return copies().activeThreadCount() > 0 ? copies().lastFile : path();
}

void finish()
{
    copies().waitForDone();
}

} // namespace PictureStore
