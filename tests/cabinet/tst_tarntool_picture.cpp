#include "cabinetrig.h"
#include "customerqlabel.h"
#include "filedialog.h"
#include "permissions.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

QRgb cornerOf(CabinetRig &rig)
{
    return rig.drawer->m_bgPixmap.toImage().pixel(0, 0);
}

QRgb thumbnailOf(const CabinetRig &rig)
{
    const QPixmap *pixmap = rig.child<CustomerQlabel>("labelimage")->pixmap();
    return pixmap ? pixmap->toImage().pixel(0, 0) : 0;
}

bool isPictureSelected(const CabinetRig &rig)
{
    return rig.radio("radioPicture")->isChecked();
}

} // namespace

class TestTarnToolPicture : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void keptPicture_isShownAtTheStart();
    void storedChoice_countsWithAKeptPicture();
    void whatIsKeptAndIsNoPicture_countsAsNone_data();
    void whatIsKeptAndIsNoPicture_countsAsNone();
    void keptPipe_countsAsNone();

    void pictureButton_takesTheKeptPicture();
    void pictureButton_withoutAKeptPictureAsksForOne();
    void chosenPicture_isUsedFromItsPlaceAndKept();
    void chosenPicture_comesBackAfterARestart();
    void chosenPicture_replacesTheKeptOneInOneStep();
    void unwritableFolder_losesOnlyTheKeptCopy();
    void missingFolder_losesOnlyTheKeptCopy();
    void cancelledFileDialog_changesNothing();
    void chosenFileThatIsNoPicture_isIgnored_data();
    void chosenFileThatIsNoPicture_isIgnored();
    void clickOnTheThumbnailWhileSolidIsSelected_doesNothing();
    void nextFileDialog_beginsAtTheChosenFile();
    void solidButton_takesThePictureAway();
    void changedSize_stretchesThePictureAgain();
    void sizeChangedByOtherThanTheMouse_stretchesThePictureToo();

private:
    QString file(const char *name, const QByteArray &contents);

    std::unique_ptr<QTemporaryDir> m_folder;
};

QString TestTarnToolPicture::file(const char *name, const QByteArray &contents)
{
    QFile file(m_folder->filePath(QLatin1String(name)));
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write the picture");
    return file.fileName();
}

void TestTarnToolPicture::keptPicture_isShownAtTheStart()
{
    CabinetRig rig({}, pictureFile(Qt::cyan, QSize(50, 10)));
    QVERIFY(isPictureSelected(rig)); // nothing stored means the picture
    QCOMPARE(thumbnailOf(rig), qRgb(0, 255, 255));
    const auto *thumbnail = rig.child<CustomerQlabel>("labelimage");
    QVERIFY(thumbnail->hasScaledContents());
    QCOMPARE(thumbnail->pixmap()->width(), thumbnail->width()); // as wide as it fits
    QCOMPARE(thumbnail->pixmap()->height(), thumbnail->width() / 5);
    QCOMPARE(rig.drawer->m_bgPicturePath, KeptPicture::path());
    rig.layOut();
    QCOMPARE(rig.drawer->m_bgPicturePath, KeptPicture::path());
    QCOMPARE(rig.drawer->m_bgPixmap.size(), rig.canvas.size());
    QCOMPARE(cornerOf(rig), qRgb(0, 255, 255));
}

void TestTarnToolPicture::storedChoice_countsWithAKeptPicture()
{
    const CabinetRig rig({{QStringLiteral("tarnBackgroundSelect"), true}}, pictureFile(Qt::cyan));
    QVERIFY(!isPictureSelected(rig));
    rig.layOut();
    QCOMPARE(rig.drawer->m_bgPicturePath, QString());
}

void TestTarnToolPicture::whatIsKeptAndIsNoPicture_countsAsNone_data()
{
    QTest::addColumn<QByteArray>("contents");
    const QByteArray whole = pictureFile(Qt::cyan, QSize(300, 200), "BMP");
    QTest::newRow("zero bytes") << QByteArray("");
    QTest::newRow("text") << QByteArray("no picture");
    QTest::newRow("cut off") << whole.left(whole.size() / 2);
    QByteArray huge = whole;
    huge.replace(18, 8, QByteArray::fromHex("ffff0000ffff0000"));
    QTest::newRow("huge") << huge;
}

void TestTarnToolPicture::whatIsKeptAndIsNoPicture_countsAsNone()
{
    QFETCH(const QByteArray, contents);
    CabinetRig rig({}, contents);
    QVERIFY(!isPictureSelected(rig));
    QCOMPARE(thumbnailOf(rig), QRgb(0));
    rig.layOut();
    QCOMPARE(rig.drawer->m_bgPicturePath, QString());
    QVERIFY(rig.drawer->m_bgPixmap.isNull());
}

void TestTarnToolPicture::keptPipe_countsAsNone()
{
#ifdef Q_OS_UNIX
    CabinetRig rig;
    QCOMPARE(mkfifo(QFile::encodeName(KeptPicture::path()).constData(), 0600), 0);
    rig.restart();
    QVERIFY(!isPictureSelected(rig));
    QVERIFY(QFile::remove(KeptPicture::path()));
    QVERIFY(QDir().mkdir(KeptPicture::path()));
    rig.restart();
    QVERIFY(!isPictureSelected(rig));
#else
    QSKIP("There are no pipes in the file system");
#endif
}

void TestTarnToolPicture::pictureButton_takesTheKeptPicture()
{
    const DialogAnswers answers;
    CabinetRig rig({{QStringLiteral("tarnBackgroundSelect"), true}}, pictureFile(Qt::cyan));
    FileDialog::setAnswer([](const QString &) -> QString { qFatal("nothing is to be asked"); });
    rig.layOut();
    rig.panel->getDrawer();
    rig.click("radioPicture");
    QCOMPARE(rig.drawer->m_bgPicturePath, KeptPicture::path());
    QCOMPARE(cornerOf(rig), qRgb(0, 255, 255));
    QVERIFY(rig.drawer->active);
}

void TestTarnToolPicture::pictureButton_withoutAKeptPictureAsksForOne()
{
    const DialogAnswers answers;
    const QString path = file("blue.png", pictureFile(Qt::blue));
    DialogAnswers::file(path);
    CabinetRig rig;
    rig.layOut();
    rig.click("radioPicture");
    QCOMPARE(rig.drawer->m_bgPicturePath, path);
    QCOMPARE(cornerOf(rig), qRgb(0, 0, 255));
}

void TestTarnToolPicture::chosenPicture_isUsedFromItsPlaceAndKept()
{
    const DialogAnswers answers;
    CabinetRig rig({}, pictureFile(Qt::cyan));
    rig.layOut();
    const QByteArray blue = pictureFile(Qt::blue, QSize(9, 9), "BMP");
    const QString path = file("blue.bmp", blue);
    DialogAnswers::file(path);
    rig.panel->getDrawer();
    rig.click("labelimage");

    QCOMPARE(rig.drawer->m_bgPicturePath, path);
    QCOMPARE(cornerOf(rig), qRgb(0, 0, 255));
    QCOMPARE(thumbnailOf(rig), qRgb(0, 0, 255));
    QVERIFY(rig.drawer->active);
    QCOMPARE(KeptPicture::contents(), blue);
    rig.layOut();
    QCOMPARE(rig.drawer->m_bgPicturePath, path);
}

void TestTarnToolPicture::chosenPicture_comesBackAfterARestart()
{
    const DialogAnswers answers;
    CabinetRig rig;
    rig.layOut();
    DialogAnswers::file(file("blue.png", pictureFile(Qt::blue)));
    rig.click("radioPicture");
    m_folder->remove();
    rig.restart();
    QVERIFY(isPictureSelected(rig));
    QCOMPARE(rig.drawer->m_bgPicturePath, KeptPicture::path());
    QCOMPARE(cornerOf(rig), qRgb(0, 0, 255));
}

// A second name of the earlier picture's file goes on naming the earlier picture.
void TestTarnToolPicture::chosenPicture_replacesTheKeptOneInOneStep()
{
#ifdef Q_OS_UNIX
    const DialogAnswers answers;
    const QByteArray earlier = pictureFile(Qt::cyan);
    const CabinetRig rig({}, earlier);
    const QString second = KeptPicture::folder() + QStringLiteral("/second");
    QCOMPARE(link(QFile::encodeName(KeptPicture::path()).constData(),
                  QFile::encodeName(second).constData()),
             0);
    rig.layOut();
    const QByteArray blue = pictureFile(Qt::blue);
    DialogAnswers::file(file("blue.png", blue));
    rig.click("labelimage");

    QCOMPARE(KeptPicture::contents(), blue);
    QFile file(second);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), earlier);
    QCOMPARE(QDir(KeptPicture::folder()).entryList(QDir::Files).size(), 2); // nothing half done
#else
    QSKIP("Files have one name");
#endif
}

void TestTarnToolPicture::unwritableFolder_losesOnlyTheKeptCopy()
{
    const DialogAnswers answers;
    const QByteArray earlier = pictureFile(Qt::cyan);
    CabinetRig rig({}, earlier);
    rig.layOut();
    const QString path = file("blue.png", pictureFile(Qt::blue));
    DialogAnswers::file(path);
    {
        const ReadOnly folder(KeptPicture::folder(), QFileDevice::ExeOwner);
        const OrdinaryRights rights;
        rig.click("labelimage");
    }
    QCOMPARE(rig.drawer->m_bgPicturePath, path);
    QCOMPARE(cornerOf(rig), qRgb(0, 0, 255));
    QCOMPARE(KeptPicture::contents(), earlier);
}

void TestTarnToolPicture::missingFolder_losesOnlyTheKeptCopy()
{
    const DialogAnswers answers;
    CabinetRig rig;
    rig.layOut();
    QVERIFY(QDir(KeptPicture::folder()).removeRecursively());
    DialogAnswers::file(file("blue.png", pictureFile(Qt::blue)));
    rig.click("radioPicture");
    QCOMPARE(cornerOf(rig), qRgb(0, 0, 255));
    QVERIFY(!QFile::exists(KeptPicture::folder()));
}

void TestTarnToolPicture::cancelledFileDialog_changesNothing()
{
    const DialogAnswers answers;
    CabinetRig rig({}, pictureFile(Qt::cyan));
    rig.layOut();
    DialogAnswers::file(QString());
    rig.panel->getDrawer();
    rig.click("labelimage");
    QCOMPARE(rig.drawer->m_bgPicturePath, KeptPicture::path());
    QCOMPARE(thumbnailOf(rig), qRgb(0, 255, 255));
    QCOMPARE(KeptPicture::contents(), pictureFile(Qt::cyan));
    QVERIFY(!rig.drawer->active);
    QVERIFY(!rig.isSaveDue());
}

void TestTarnToolPicture::chosenFileThatIsNoPicture_isIgnored_data()
{
    whatIsKeptAndIsNoPicture_countsAsNone_data();
}

void TestTarnToolPicture::chosenFileThatIsNoPicture_isIgnored()
{
    QFETCH(const QByteArray, contents);
    const DialogAnswers answers;
    CabinetRig rig({}, pictureFile(Qt::cyan));
    rig.layOut();
    for (const QString &path :
         {file("other.png", contents), m_folder->path(), m_folder->filePath(QStringLiteral("?"))}) {
        DialogAnswers::file(path);
        rig.click("labelimage");
        QCOMPARE(rig.drawer->m_bgPicturePath, KeptPicture::path());
        QCOMPARE(cornerOf(rig), qRgb(0, 255, 255));
        QCOMPARE(KeptPicture::contents(), pictureFile(Qt::cyan));
    }
}

void TestTarnToolPicture::clickOnTheThumbnailWhileSolidIsSelected_doesNothing()
{
    const DialogAnswers answers;
    FileDialog::setAnswer([](const QString &) -> QString { qFatal("nothing is to be asked"); });
    const CabinetRig rig;
    rig.layOut();
    rig.panel->getDrawer();
    rig.click("labelimage");
    QVERIFY(!rig.drawer->active);
}

void TestTarnToolPicture::nextFileDialog_beginsAtTheChosenFile()
{
    const DialogAnswers answers;
    const QString path = file("blue.png", pictureFile(Qt::blue));
    QStringList starts;
    FileDialog::setAnswer([&](const QString &start) {
        starts << start;
        return path;
    });
    const CabinetRig rig({}, pictureFile(Qt::cyan));
    rig.layOut();
    rig.click("labelimage");
    rig.click("labelimage");
    QCOMPARE(starts, QStringList({QStringLiteral("."), path}));
}

void TestTarnToolPicture::solidButton_takesThePictureAway()
{
    const CabinetRig rig({}, pictureFile(Qt::cyan));
    rig.layOut();
    rig.panel->getDrawer();
    rig.drawer->m_bgColor = Qt::white;
    rig.click("radioBackground");
    QCOMPARE(rig.drawer->m_bgPicturePath, QString());
    QCOMPARE(rig.drawer->m_bgColor, QColor(Qt::black));
    QVERIFY(rig.drawer->active);
    rig.click("radioPicture"); // the kept one comes back
    QCOMPARE(rig.drawer->m_bgPicturePath, KeptPicture::path());
}

void TestTarnToolPicture::changedSize_stretchesThePictureAgain()
{
    CabinetRig rig({}, pictureFile(Qt::cyan));
    rig.layOut();
    rig.canvas.resize(200, 150);
    rig.panel->slot_drawerSizeChanged(200, 150);
    QCOMPARE(rig.drawer->m_bgPixmap.size(), QSize(200, 150));
    QVERIFY(!rig.isSaveDue());
}

void TestTarnToolPicture::sizeChangedByOtherThanTheMouse_stretchesThePictureToo()
{
    CabinetRig rig({}, pictureFile(Qt::cyan));
    rig.click("radioPicture");
    rig.layOut();
    rig.canvas.show();
    QVERIFY(QTest::qWaitForWindowExposed(&rig.canvas));
    rig.canvas.resize(200, 150);
    QTRY_COMPARE(rig.drawer->m_bgPixmap.size(), QSize(200, 150));
}

QTEST_MAIN(TestTarnToolPicture)
#include "tst_tarntool_picture.moc"
