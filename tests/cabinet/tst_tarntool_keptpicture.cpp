#include "cabinetrig.h"
#include "picturefolder.h"
#include "pictureonpanel.h"

#include <QtTest>

class TestTarnToolKeptPicture : public QObject
{
    Q_OBJECT

private slots:
    void keptPicture_isShownAtTheStart();
    void keptPicture_isDecodedOnceWhenItIsFirstSeen();
    void keptPictureThatIsNotSeen_isNotDecoded();
    void damagedKeptPicture_countsAsNoneOnceItIsSeen();
    void damagedKeptPicture_isAskedForAgain();
    void whatIsKeptAndIsNoPicture_countsAsNone_data() { addWhatIsNoPicture(); }
    void whatIsKeptAndIsNoPicture_countsAsNone();
    void pictureButton_takesTheKeptPicture();
};

void TestTarnToolKeptPicture::keptPicture_isShownAtTheStart()
{
    CabinetRig rig({}, PictureFolder::file(Qt::cyan, QSize(50, 10)));
    QVERIFY(isPictureSelected(rig)); // nothing stored means the picture
    showPanel(rig);
    QTRY_VERIFY(thumbnailOf(rig) != 0);
    QCOMPARE(thumbnailOf(rig), qRgb(0, 255, 255));
    const auto *thumbnail = rig.child<CustomerQlabel>("labelimage");
    QVERIFY(thumbnail->hasScaledContents());
    QCOMPARE(thumbnail->pixmap()->width(), thumbnail->width()); // as wide as it fits
    QCOMPARE(thumbnail->pixmap()->height(), thumbnail->width() / 5);
    QCOMPARE(rig.drawer->m_bgPicturePath, KeptPicture::path());
    rig.layOut();
    QCOMPARE(rig.drawer->m_bgPicturePath, KeptPicture::path());
    QCOMPARE(cornerOf(rig), qRgb(0, 255, 255));
    QCOMPARE(rig.drawer->m_bgPixmap.size(), rig.canvas.size());
}

void TestTarnToolKeptPicture::keptPicture_isDecodedOnceWhenItIsFirstSeen()
{
    const int decoded = decodedDuring([] {
        CabinetRig rig({}, PictureFolder::file(Qt::cyan));
        showPanel(rig);
        QTRY_COMPARE(thumbnailOf(rig), qRgb(0, 255, 255));
        rig.layOut();
        QCOMPARE(cornerOf(rig), qRgb(0, 255, 255));
        rig.canvas.resize(200, 150);
        QCOMPARE(cornerOf(rig), qRgb(0, 255, 255));
        rig.click("radioBackground");
        rig.click("radioPicture");
        QCOMPARE(cornerOf(rig), qRgb(0, 255, 255));
        rig.panel->hide();
        showPanel(rig);
    });
    QCOMPARE(decoded, 1);
}

void TestTarnToolKeptPicture::keptPictureThatIsNotSeen_isNotDecoded()
{
    const int decoded = decodedDuring([] {
        CabinetRig rig({{QStringLiteral("tarnBackgroundSelect"), true}},
                       PictureFolder::file(Qt::cyan));
        rig.layOut();
        rig.canvas.resize(200, 150);
        rig.panel->slot_drawerSizeChanged(200, 150);
        rig.canvas.grab();
        rig.restart();
        rig.radio("radioPicture")->setChecked(true);
        rig.canvas.resize(100, 50);
        rig.canvas.grab(); // the layout is not on
    });
    QCOMPARE(decoded, 0);
}

void TestTarnToolKeptPicture::damagedKeptPicture_countsAsNoneOnceItIsSeen()
{
    CabinetRig rig({}, damagedPicture());
    showPanel(rig);
    QTRY_VERIFY(!isPictureSelected(rig));
    QCOMPARE(thumbnailOf(rig), QRgb(0));
    QCOMPARE(rig.drawer->m_bgPicturePath, QString());
    QVERIFY(!rig.drawer->active);
    QVERIFY(!rig.isSaveDue());
    rig.layOut();
    QCOMPARE(rig.drawer->m_bgPicturePath, QString());
    const int decoded = decodedDuring([&rig] {
        rig.panel->grab();
        QCoreApplication::processEvents();
    });
    QCOMPARE(decoded, 0); // no second attempt
}

void TestTarnToolKeptPicture::damagedKeptPicture_isAskedForAgain()
{
    const DialogAnswers answers;
    CabinetRig rig({{QStringLiteral("tarnBackgroundSelect"), true}}, damagedPicture());
    rig.layOut();
    DialogAnswers::file(QString());
    rig.click("radioPicture");
    QCOMPARE(rig.drawer->m_bgPicturePath, QString()); // still the solid colour
    PictureFolder pictures;
    DialogAnswers::file(pictures.add(QColor(Qt::blue)));
    rig.click("radioPicture");
    QCOMPARE(cornerOf(rig), qRgb(0, 0, 255));
}

void TestTarnToolKeptPicture::whatIsKeptAndIsNoPicture_countsAsNone()
{
    QFETCH(const QByteArray, contents);
    CabinetRig rig({}, contents);
    QVERIFY(!isPictureSelected(rig));
    QCOMPARE(thumbnailOf(rig), QRgb(0));
    rig.layOut();
    QCOMPARE(rig.drawer->m_bgPicturePath, QString());
    QVERIFY(rig.drawer->m_bgPixmap.isNull());
}

void TestTarnToolKeptPicture::pictureButton_takesTheKeptPicture()
{
    const DialogAnswers answers;
    CabinetRig rig({{QStringLiteral("tarnBackgroundSelect"), true}}, PictureFolder::file(Qt::cyan));
    DialogAnswers::none();
    QVERIFY(!isPictureSelected(rig)); // as stored
    rig.layOut();
    QCOMPARE(rig.drawer->m_bgPicturePath, QString());
    rig.panel->getDrawer();
    rig.click("radioPicture");
    QCOMPARE(rig.drawer->m_bgPicturePath, KeptPicture::path());
    QCOMPARE(cornerOf(rig), qRgb(0, 255, 255));
    QVERIFY(rig.drawer->active);
}

QTEST_MAIN(TestTarnToolKeptPicture)
#include "tst_tarntool_keptpicture.moc"
