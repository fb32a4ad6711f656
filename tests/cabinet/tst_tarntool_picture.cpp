#include "cabinetrig.h"
#include "filedialog.h"
#include "permissions.h"
#include "pictureonpanel.h"

#include <QDir>
#include <QtTest>

class TestTarnToolPicture : public QObject
{
    Q_OBJECT

private slots:
    void chosenPicture_isUsedFromItsPlaceAndKept();
    void pictureButton_asksForAPictureThatComesBackAfterARestart();
    void chosenPicture_replacesTheKeptOneInOneStep();
    void unwritableOrMissingFolder_losesOnlyTheKeptCopy();
    void chosenFileThatIsNoPicture_isIgnored_data();
    void chosenFileThatIsNoPicture_isIgnored();
    void nextFileDialog_beginsAtTheChosenFile();
    void chosenPicture_isDecodedOnce();
    void solidButton_takesThePictureAway();
    void solidButton_keepsNoPictureInMemory();
    void changedSize_stretchesThePictureAgain();

private:
    PictureFolder m_pictures;
    const QString m_blue = m_pictures.add(QColor(Qt::blue));
    const QByteArray m_cyan = PictureFolder::file(Qt::cyan);
};

void TestTarnToolPicture::chosenPicture_isUsedFromItsPlaceAndKept()
{
    const DialogAnswers answers;
    CabinetRig rig({}, m_cyan);
    rig.layOut();
    const QByteArray blue = PictureFolder::file(Qt::blue, QSize(9, 9), "BMP");
    const QString path = m_pictures.add(blue);
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

void TestTarnToolPicture::pictureButton_asksForAPictureThatComesBackAfterARestart()
{
    const DialogAnswers answers;
    CabinetRig rig;
    rig.layOut();
    DialogAnswers::file(m_blue);
    rig.click("radioPicture");
    QCOMPARE(rig.drawer->m_bgPicturePath, m_blue);
    QCOMPARE(cornerOf(rig), qRgb(0, 0, 255));
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
    const CabinetRig rig({}, m_cyan);
    const QString second = KeptPicture::folder() + QStringLiteral("/second");
    QCOMPARE(link(QFile::encodeName(KeptPicture::path()).constData(),
                  QFile::encodeName(second).constData()),
             0);
    rig.layOut();
    DialogAnswers::file(m_blue);
    rig.click("labelimage");

    QVERIFY(KeptPicture::contents() != m_cyan);
    QFile file(second);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), m_cyan);
    QCOMPARE(QDir(KeptPicture::folder()).entryList(QDir::Files).size(), 2); // nothing half done
#else
    QSKIP("Files have one name");
#endif
}

void TestTarnToolPicture::unwritableOrMissingFolder_losesOnlyTheKeptCopy()
{
    const DialogAnswers answers;
    CabinetRig rig({}, m_cyan);
    rig.layOut();
    DialogAnswers::file(m_blue);
    {
        const ReadOnly folder(KeptPicture::folder(), QFileDevice::ExeOwner);
        const OrdinaryRights rights;
        rig.click("labelimage");
        QCOMPARE(KeptPicture::contents(), m_cyan);
    }
    QCOMPARE(rig.drawer->m_bgPicturePath, m_blue);
    QCOMPARE(cornerOf(rig), qRgb(0, 0, 255));

    QVERIFY(QDir(KeptPicture::folder()).removeRecursively());
    DialogAnswers::file(m_pictures.add(QColor(Qt::green)));
    rig.click("labelimage");
    QCOMPARE(cornerOf(rig), qRgb(0, 255, 0));
    QVERIFY(!QFile::exists(KeptPicture::folder()));
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
    CabinetRig rig({}, m_cyan);
    rig.layOut();
    showPanel(rig);
    QTRY_VERIFY(thumbnailOf(rig) != 0);
    rig.panel->getDrawer();
    for (const QString &path : {m_pictures.add(contents), m_pictures.path(),
                                m_pictures.path() + QStringLiteral("/?"), QString()}) {
        DialogAnswers::file(path); // empty when it is cancelled
        rig.click("labelimage");
        QCOMPARE(rig.drawer->m_bgPicturePath, KeptPicture::path());
        QCOMPARE(cornerOf(rig), qRgb(0, 255, 255));
        QCOMPARE(thumbnailOf(rig), qRgb(0, 255, 255));
        QCOMPARE(KeptPicture::contents(), m_cyan);
        QVERIFY(!rig.drawer->active);
        QVERIFY(!rig.isSaveDue());
    }
}

void TestTarnToolPicture::nextFileDialog_beginsAtTheChosenFile()
{
    const DialogAnswers answers;
    QStringList starts;
    FileDialog::setAnswer([&](const QString &start) {
        starts << start;
        return m_blue;
    });
    const CabinetRig rig({}, m_cyan);
    rig.layOut();
    rig.click("labelimage");
    rig.click("labelimage");
    QCOMPARE(starts, QStringList({QStringLiteral("."), m_blue}));
}

void TestTarnToolPicture::chosenPicture_isDecodedOnce()
{
    const DialogAnswers answers;
    CabinetRig rig({}, m_cyan);
    rig.layOut();
    DialogAnswers::file(m_blue);
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
    const DialogAnswers answers;
    DialogAnswers::none();
    const CabinetRig rig({}, m_cyan);
    rig.layOut();
    rig.panel->getDrawer();
    rig.drawer->m_bgColor = Qt::white;
    rig.click("radioBackground");
    QCOMPARE(rig.drawer->m_bgPicturePath, QString());
    QCOMPARE(rig.drawer->m_bgColor, QColor(Qt::black));
    QVERIFY(rig.drawer->active);
    rig.panel->getDrawer();
    rig.click("labelimage"); // asks for nothing now
    QVERIFY(!rig.drawer->active);
    rig.click("radioPicture"); // the kept one comes back
    QCOMPARE(rig.drawer->m_bgPicturePath, KeptPicture::path());

    rig.click("radioBackground");
    KeptPicture::set({});
    DialogAnswers::file(QString());
    rig.panel->m_userChanged = false;
    rig.click("radioPicture"); // there is none any more
    QVERIFY(rig.panel->m_userChanged);
    rig.layOut();
    QCOMPARE(rig.drawer->m_bgPicturePath, QString());
}

void TestTarnToolPicture::solidButton_keepsNoPictureInMemory()
{
    CabinetRig rig({}, m_cyan);
    rig.layOut();
    QCOMPARE(cornerOf(rig), qRgb(0, 255, 255));
    rig.click("radioBackground");
    QVERIFY(rig.drawer->m_bgPixmap.isNull());
    rig.click("radioPicture");
    QCOMPARE(cornerOf(rig), qRgb(0, 255, 255));
}

void TestTarnToolPicture::changedSize_stretchesThePictureAgain()
{
    CabinetRig rig({}, m_cyan);
    rig.layOut();
    cornerOf(rig);
    rig.canvas.resize(200, 150); // by other than the mouse
    cornerOf(rig);
    QCOMPARE(rig.drawer->m_bgPixmap.size(), QSize(200, 150));
    rig.canvas.removeEventFilter(rig.panel.get()); // the slot alone
    rig.canvas.resize(100, 50);
    rig.panel->slot_drawerSizeChanged(100, 50);
    cornerOf(rig);
    QCOMPARE(rig.drawer->m_bgPixmap.size(), QSize(100, 50));
    QVERIFY(!rig.isSaveDue());
}

QTEST_MAIN(TestTarnToolPicture)
#include "tst_tarntool_picture.moc"
