#include "displaysign.h"

#include <QtTest>

// The sign on a bar for a window that is where it is asked to be, to the pixel.
struct SignRig
{
    explicit SignRig(const QPoint &place)
    {
        window.setGeometry({place, QSize(100, 100)});
        bar.show();
    }

    QWidget window{nullptr, Qt::FramelessWindowHint};
    QWidget bar;
    DisplaySign sign{&window, &bar};
};

class tst_DisplaySign : public QObject
{
    Q_OBJECT

private slots:
    void windowOnTheScreen_showsNoSign();
    void windowPartlyOff_showsTheSignThatSaysSo();
    void hiddenWindow_showsNoSign();
    void faultThatComesAndGoes_isNoticedByItself();
};

void tst_DisplaySign::windowOnTheScreen_showsNoSign()
{
    SignRig rig({0, 0});
    rig.window.show();
    rig.sign.check();
    QVERIFY(!rig.sign.isVisible());
}

void tst_DisplaySign::windowPartlyOff_showsTheSignThatSaysSo()
{
    SignRig rig({-1, 0});
    rig.window.show();
    rig.sign.check();
    QVERIFY(rig.sign.isVisible());
    QCOMPARE(rig.sign.toolTip(), QStringLiteral("测试窗口有一部分不在任何屏幕上"));
    QCOMPARE(rig.sign.accessibleName(), rig.sign.toolTip());
}

void tst_DisplaySign::hiddenWindow_showsNoSign()
{
    SignRig rig({-1, 0});
    rig.sign.check();
    QVERIFY(!rig.sign.isVisible());
}

void tst_DisplaySign::faultThatComesAndGoes_isNoticedByItself()
{
    SignRig rig({-1, 0});
    rig.window.show();
    QTRY_VERIFY(rig.sign.isVisible());
    rig.window.move(0, 0);
    QTRY_VERIFY(!rig.sign.isVisible());
    QVERIFY(rig.sign.toolTip().isEmpty());
}

QTEST_MAIN(tst_DisplaySign)
#include "tst_displaysign.moc"
