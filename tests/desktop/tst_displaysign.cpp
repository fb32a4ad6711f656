#include "displaysign.h"

#include <QtTest>

// Where it is asked to be, to the pixel.
class Window : public QWidget
{
public:
    explicit Window(const QRect &place)
    {
        setWindowFlags(Qt::FramelessWindowHint);
        setGeometry(place);
    }
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
    Window window({0, 0, 100, 100});
    QWidget bar;
    DisplaySign sign(&window, &bar);
    window.show();
    bar.show();
    sign.check();
    QVERIFY(!sign.isVisible());
}

void tst_DisplaySign::windowPartlyOff_showsTheSignThatSaysSo()
{
    Window window({-1, 0, 100, 100});
    QWidget bar;
    DisplaySign sign(&window, &bar);
    window.show();
    bar.show();
    sign.check();
    QVERIFY(sign.isVisible());
    QVERIFY(sign.sizeHint().width() >= 16);
    QCOMPARE(sign.toolTip(), QStringLiteral("测试窗口有一部分不在任何屏幕上"));
    QCOMPARE(sign.accessibleName(), sign.toolTip());
}

void tst_DisplaySign::hiddenWindow_showsNoSign()
{
    Window window({-1, 0, 100, 100});
    QWidget bar;
    DisplaySign sign(&window, &bar);
    bar.show();
    sign.check();
    QVERIFY(!sign.isVisible());
}

void tst_DisplaySign::faultThatComesAndGoes_isNoticedByItself()
{
    Window window({-1, 0, 100, 100});
    QWidget bar;
    DisplaySign sign(&window, &bar);
    window.show();
    bar.show();
    QTRY_VERIFY(sign.isVisible());
    window.move(0, 0);
    QTRY_VERIFY(!sign.isVisible());
    QVERIFY(sign.toolTip().isEmpty());
}

QTEST_MAIN(tst_DisplaySign)
#include "tst_displaysign.moc"
