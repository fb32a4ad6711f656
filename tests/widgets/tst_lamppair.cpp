#include "lamppair.h"

#include <QWidget>
#include <QtTest>

namespace {

// A pair on a panel that is shown or not, as the panels of hidden tabs are not.
struct Lamps
{
    explicit Lamps(bool panelShown)
    {
        if (panelShown)
            panel.show();
    }

    bool showsGreen() const { return !green.isHidden() && grey.isHidden(); }
    bool showsGrey() const { return green.isHidden() && !grey.isHidden(); }

    QWidget panel;
    QWidget green{&panel};
    QWidget grey{&panel};
    LampPair pair{&green, &grey};
};

} // namespace

class TestLampPair : public QObject
{
    Q_OBJECT

private slots:
    void newPair_showsGrey_data();
    void newPair_showsGrey();
    void setting_showsThatLampAlone_data();
    void setting_showsThatLampAlone();
    void blinking_showsTheOtherLamp_data();
    void blinking_showsTheOtherLamp();
    void pairOnAShownPanel_isVisible();
};

void TestLampPair::newPair_showsGrey_data()
{
    QTest::addColumn<bool>("panelShown");
    QTest::newRow("hidden panel") << false;
    QTest::newRow("shown panel") << true;
}

void TestLampPair::newPair_showsGrey()
{
    QFETCH(const bool, panelShown);
    const Lamps lamps(panelShown);
    QVERIFY(lamps.showsGrey());
}

void TestLampPair::setting_showsThatLampAlone_data()
{
    newPair_showsGrey_data();
}

void TestLampPair::setting_showsThatLampAlone()
{
    QFETCH(const bool, panelShown);
    Lamps lamps(panelShown);
    lamps.pair.showGreen();
    QVERIFY(lamps.showsGreen());
    lamps.pair.showGreen();
    QVERIFY(lamps.showsGreen());
    lamps.pair.showGrey();
    QVERIFY(lamps.showsGrey());
    lamps.pair.showGrey();
    QVERIFY(lamps.showsGrey());
}

void TestLampPair::blinking_showsTheOtherLamp_data()
{
    newPair_showsGrey_data();
}

void TestLampPair::blinking_showsTheOtherLamp()
{
    QFETCH(const bool, panelShown);
    Lamps lamps(panelShown);
    lamps.pair.blink();
    QVERIFY(lamps.showsGreen());
    lamps.pair.blink();
    QVERIFY(lamps.showsGrey());
    lamps.pair.showGreen();
    lamps.pair.blink();
    QVERIFY(lamps.showsGrey());
}

void TestLampPair::pairOnAShownPanel_isVisible()
{
    Lamps lamps(true);
    QVERIFY(lamps.grey.isVisible());
    QVERIFY(!lamps.green.isVisible());
    lamps.pair.blink();
    QVERIFY(lamps.green.isVisible());
    QVERIFY(!lamps.grey.isVisible());
}

QTEST_MAIN(TestLampPair)
#include "tst_lamppair.moc"
