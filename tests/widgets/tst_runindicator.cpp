#include "runindicator.h"

#include <QWidget>
#include <QtTest>

namespace {

// An indicator on a panel that is shown or not, as the panels of hidden tabs are not.
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
    RunIndicator indicator{&green, &grey};
};

} // namespace

class TestRunIndicator : public QObject
{
    Q_OBJECT

private slots:
    void newIndicator_showsGrey_data();
    void newIndicator_showsGrey();
    void setting_showsThatLampAlone_data();
    void setting_showsThatLampAlone();
    void blinking_showsTheOtherLamp_data();
    void blinking_showsTheOtherLamp();
    void indicatorOnAShownPanel_isVisible();
};

void TestRunIndicator::newIndicator_showsGrey_data()
{
    QTest::addColumn<bool>("panelShown");
    QTest::newRow("hidden panel") << false;
    QTest::newRow("shown panel") << true;
}

void TestRunIndicator::newIndicator_showsGrey()
{
    QFETCH(const bool, panelShown);
    const Lamps lamps(panelShown);
    QVERIFY(lamps.showsGrey());
}

void TestRunIndicator::setting_showsThatLampAlone_data()
{
    newIndicator_showsGrey_data();
}

void TestRunIndicator::setting_showsThatLampAlone()
{
    QFETCH(const bool, panelShown);
    Lamps lamps(panelShown);
    lamps.indicator.showGreen();
    QVERIFY(lamps.showsGreen());
    lamps.indicator.showGreen();
    QVERIFY(lamps.showsGreen());
    lamps.indicator.showGrey();
    QVERIFY(lamps.showsGrey());
    lamps.indicator.showGrey();
    QVERIFY(lamps.showsGrey());
}

void TestRunIndicator::blinking_showsTheOtherLamp_data()
{
    newIndicator_showsGrey_data();
}

void TestRunIndicator::blinking_showsTheOtherLamp()
{
    QFETCH(const bool, panelShown);
    Lamps lamps(panelShown);
    lamps.indicator.blink();
    QVERIFY(lamps.showsGreen());
    lamps.indicator.blink();
    QVERIFY(lamps.showsGrey());
    lamps.indicator.showGreen();
    lamps.indicator.blink();
    QVERIFY(lamps.showsGrey());
}

void TestRunIndicator::indicatorOnAShownPanel_isVisible()
{
    Lamps lamps(true);
    QVERIFY(lamps.grey.isVisible());
    QVERIFY(!lamps.green.isVisible());
    lamps.indicator.blink();
    QVERIFY(lamps.green.isVisible());
    QVERIFY(!lamps.grey.isVisible());
}

QTEST_MAIN(TestRunIndicator)
#include "tst_runindicator.moc"
