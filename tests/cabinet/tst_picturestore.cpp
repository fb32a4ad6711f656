#include "cabinetrig.h"
#include "picturefolder.h"
#include "picturestore.h"

#include <QtTest>

#include <chrono>
#include <future>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

class TestPictureStore : public QObject
{
    Q_OBJECT

private slots:
    void init() { KeptPicture::set("earlier"); }

    void keep_waitsForNoDisk();
    void keep_waitsForNoCopyBefore();
    void lastOfMany_isKept();
    void fileThatCannotBeRead_leavesTheEarlierOne();

private:
    PictureFolder m_files;
};

// A pipe that nothing comes out of yet stands for the disk.
void TestPictureStore::keep_waitsForNoDisk()
{
#ifdef Q_OS_UNIX
    const QString path = m_files.path() + QStringLiteral("/pipe");
    QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    PictureStore::keep(path);
    QCOMPARE(PictureStore::current(), path);
    QFile kept(PictureStore::path());
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), QByteArray("earlier"));

    QFile pipe(path);
    QVERIFY(pipe.open(QIODevice::WriteOnly));
    pipe.write("later");
    pipe.close();
    QCOMPARE(KeptPicture::contents(), QByteArray("later"));
    QCOMPARE(PictureStore::current(), PictureStore::path());
#else
    QSKIP("There are no pipes in folders here.");
#endif
}

// The pipe ends by itself where it is waited for.
void TestPictureStore::keep_waitsForNoCopyBefore()
{
#ifdef Q_OS_UNIX
    const QString path = m_files.path() + QStringLiteral("/slow");
    QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    PictureStore::keep(path);
    std::promise<void> isKept;
    auto hasWaited = std::async(std::launch::async, [path, kept = isKept.get_future()] {
        const bool isLate = kept.wait_for(std::chrono::seconds(5)) != std::future_status::ready;
        QFile(path).open(QIODevice::WriteOnly);
        return isLate;
    });
    const QString last = m_files.add(QByteArray("last"));
    PictureStore::keep(last);
    const QString current = PictureStore::current();
    isKept.set_value();
    QVERIFY(!hasWaited.get());
    QCOMPARE(current, last);
    QCOMPARE(KeptPicture::contents(), QByteArray("last"));
#else
    QSKIP("There are no pipes in folders here.");
#endif
}

void TestPictureStore::lastOfMany_isKept()
{
    for (const char *content : {"1", "2", "3", "4", "5"})
        PictureStore::keep(m_files.add(QByteArray(content)));
    QCOMPARE(KeptPicture::contents(), QByteArray("5"));
}

void TestPictureStore::fileThatCannotBeRead_leavesTheEarlierOne()
{
    PictureStore::keep(m_files.path() + QStringLiteral("/none"));
    QCOMPARE(KeptPicture::contents(), QByteArray("earlier"));
}

QTEST_GUILESS_MAIN(TestPictureStore)
#include "tst_picturestore.moc"
