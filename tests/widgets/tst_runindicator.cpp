#include "dictionary.h"
#include "rows.h"
#include "runindicator.h"

#include <QWidget>
#include <QtTest>

namespace {

// An indicator on a panel that is shown or not, as the panels of hidden tabs are not.
struct Lamps
{
    explicit Lamps(bool panelShown) { panel.setVisible(panelShown); }

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
    void exactlyOneLamp_isShown_data();
    void exactlyOneLamp_isShown();
    void lampOnAShownPanel_isVisible();
    void lamps_areNamedInTheInterfaceLanguage();
};

void TestRunIndicator::exactlyOneLamp_isShown_data()
{
    addRows<bool>("panelShown", {{"hidden panel", false}, {"shown panel", true}});
}

void TestRunIndicator::exactlyOneLamp_isShown()
{
    QFETCH(const bool, panelShown);
    Lamps lamps(panelShown);
    QVERIFY(lamps.showsGrey());
    for (int time = 0; time < 2; ++time) {
        lamps.indicator.showGreen();
        QVERIFY(lamps.showsGreen());
    }
    for (int time = 0; time < 2; ++time) {
        lamps.indicator.showGrey();
        QVERIFY(lamps.showsGrey());
    }
    lamps.indicator.blink();
    QVERIFY(lamps.showsGreen());
    lamps.indicator.blink();
    QVERIFY(lamps.showsGrey());
}

void TestRunIndicator::lampOnAShownPanel_isVisible()
{
    Lamps lamps(true);
    QVERIFY(lamps.grey.isVisible());
    lamps.indicator.blink();
    QVERIFY(lamps.green.isVisible());
    QVERIFY(!lamps.grey.isVisible());
}

void TestRunIndicator::lamps_areNamedInTheInterfaceLanguage()
{
    Lamps lamps(false);
    const Dictionary dictionary(QStringLiteral("!"));
    lamps.indicator.retranslate();
    for (const QWidget *lamp : {&lamps.green, &lamps.grey})
        QCOMPARE(lamp->accessibleName(), QStringLiteral("运行指示灯!"));
}

QTEST_MAIN(TestRunIndicator)
#include "tst_runindicator.moc"
