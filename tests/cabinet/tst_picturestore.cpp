#include "cabinetrig.h"
#include "picturefolder.h"
#include "picturestore.h"

#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

class TestPictureStore : public QObject
{
    Q_OBJECT

private slots:
    void init() { KeptPicture::set("earlier"); }

    void keep_waitsForNoDisk();
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
