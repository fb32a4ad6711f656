#pragma once

#include "cabinetrig.h"
#include "customerqlabel.h"
#include "picturefolder.h"
#include "pictureloader.h"

#include <QtTest>

// Of the picture that is shown.
inline QRgb cornerOf(CabinetRig &rig)
{
    rig.canvas.grab();
    return rig.drawer->m_bgPixmap.toImage().pixel(0, 0);
}

inline QRgb thumbnailOf(const CabinetRig &rig)
{
    const QPixmap *pixmap = rig.child<CustomerQlabel>("labelimage")->pixmap();
    return pixmap ? pixmap->toImage().pixel(0, 0) : 0;
}

inline bool isPictureSelected(const CabinetRig &rig)
{
    return rig.radio("radioPicture")->isChecked();
}

// As with its tab in front.
inline void showPanel(const CabinetRig &rig)
{
    rig.panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(rig.panel.get()));
}

// How many pictures are decoded while it runs.
template<typename Action>
int decodedDuring(const Action &action)
{
    const int before = PictureLoader::decodedCount();
    action();
    return PictureLoader::decodedCount() - before;
}

// What its header says is right.
inline QByteArray damagedPicture()
{
    const QByteArray whole = PictureFolder::file(Qt::cyan, QSize(300, 200));
    return whole.left(whole.size() / 2);
}

// Rows of contents that are told to be no picture by their first bytes.
inline void addWhatIsNoPicture()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("zero bytes") << QByteArray("");
    QTest::newRow("text") << QByteArray("no picture");
    QByteArray huge = PictureFolder::file(Qt::cyan, QSize(300, 200), "BMP");
    huge.replace(18, 8, QByteArray::fromHex("ffff0000ffff0000"));
    QTest::newRow("huge") << huge;
}
