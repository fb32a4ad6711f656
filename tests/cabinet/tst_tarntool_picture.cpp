#include "cabinetrig.h"
#include "filedialog.h"
#include "permissions.h"
#include "pictureonpanel.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

class TestTarnToolPicture : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

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
    void chosenPicture_isDecodedOnce();
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
    rig.layOut();
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
    showPanel(rig);
    QTRY_VERIFY(thumbnailOf(rig) != 0);
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
    addWhatIsNoPicture();
    QTest::newRow("cut off") << damagedPicture();
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

void TestTarnToolPicture::chosenPicture_isDecodedOnce()
{
    const DialogAnswers answers;
    CabinetRig rig({}, pictureFile(Qt::cyan));
    rig.layOut();
    DialogAnswers::file(file("blue.png", pictureFile(Qt::blue)));
    const int decoded = decodedDuring([&] {
        rig.click("labelimage");
        showPanel(rig);
        rig.panel->grab();
        QCoreApplication::processEvents();
        QCOMPARE(cornerOf(rig), qRgb(0, 0, 255));
        QCOMPARE(thumbnailOf(rig), qRgb(0, 0, 255));
        rig.canvas.resize(200, 150);
        QCOMPARE(cornerOf(rig), qRgb(0, 0, 255));
    });
    QCOMPARE(decoded, 1);
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
    cornerOf(rig);
    rig.canvas.removeEventFilter(rig.panel.get()); // the slot alone
    rig.canvas.resize(200, 150);
    rig.panel->slot_drawerSizeChanged(200, 150);
    rig.canvas.grab();
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
