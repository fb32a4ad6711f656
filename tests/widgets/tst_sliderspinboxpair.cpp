#include "rows.h"
#include "sliderspinboxpair.h"

#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QtTest>

namespace {

// A pair from 0 to 255, with what the two tell.
struct Controls
{
    QSlider slider{Qt::Horizontal};
    QSpinBox spinBox;
    SliderSpinBoxPair pair{&slider, &spinBox};
    QSignalSpy sliderTold{&slider, &QSlider::valueChanged};
    QSignalSpy spinBoxTold{&spinBox, qOverload<int>(&QSpinBox::valueChanged)};

    Controls() { pair.setRange(0, 255); }

    // Whether both show it and the pair says so.
    bool show(int value) const
    {
        return slider.value() == value && spinBox.value() == value && pair.value() == value;
    }
};

} // namespace

class TestSliderSpinBoxPair : public QObject
{
    Q_OBJECT

private slots:
    void eachSetsTheOther();
    void oneChange_isOneChangeOfEach();
    void quietValue_isToldByNeither();
    void typedNumber_reachesTheSlider();
    void range_isSetOnBoth_data();
    void range_isSetOnBoth();
    void range_limitsTheValueOfBothQuietly();
    void accessibleName_isSetOnBoth();
    void spinBox_hasNeitherFocusRingNorMenu();
};

void TestSliderSpinBoxPair::eachSetsTheOther()
{
    Controls controls;
    for (const int value : {1, 255, 0}) {
        controls.slider.setValue(value);
        QVERIFY(controls.show(value));
    }
    for (const int value : {1, 255, 0}) {
        controls.spinBox.setValue(value);
        QVERIFY(controls.show(value));
    }
}

void TestSliderSpinBoxPair::oneChange_isOneChangeOfEach()
{
    Controls controls;
    controls.slider.setValue(10);
    QCOMPARE(controls.sliderTold.count(), 1);
    QCOMPARE(controls.spinBoxTold.count(), 1);
    controls.spinBox.setValue(20);
    controls.spinBox.setValue(20);
    QCOMPARE(controls.sliderTold.count(), 2);
    QCOMPARE(controls.spinBoxTold.count(), 2);
    controls.pair.setValue(30);
    QVERIFY(controls.show(30));
    QCOMPARE(controls.sliderTold.count(), 3);
    QCOMPARE(controls.spinBoxTold.count(), 3);
}

void TestSliderSpinBoxPair::quietValue_isToldByNeither()
{
    Controls controls;
    controls.pair.setQuietly(77);
    QVERIFY(controls.show(77));
    QVERIFY(controls.sliderTold.isEmpty());
    QVERIFY(controls.spinBoxTold.isEmpty());
    controls.slider.setValue(78); // aloud again
    QVERIFY(controls.show(78));
}

void TestSliderSpinBoxPair::typedNumber_reachesTheSlider()
{
    Controls controls;
    controls.spinBox.selectAll();
    QTest::keyClicks(&controls.spinBox, QStringLiteral("123"));
    QVERIFY(controls.show(123));
}

void TestSliderSpinBoxPair::range_isSetOnBoth_data()
{
    const Table<int, int> row("minimum", "maximum");
    row("speeds", 1, 100);
    row("negative", -20, -3);
    row("one value", 5, 5);
}

void TestSliderSpinBoxPair::range_isSetOnBoth()
{
    QFETCH(const int, minimum);
    QFETCH(const int, maximum);
    Controls controls;
    controls.pair.setRange(minimum, maximum);
    QCOMPARE(controls.slider.minimum(), minimum);
    QCOMPARE(controls.slider.maximum(), maximum);
    QCOMPARE(controls.spinBox.minimum(), minimum);
    QCOMPARE(controls.spinBox.maximum(), maximum);
}

void TestSliderSpinBoxPair::range_limitsTheValueOfBothQuietly()
{
    Controls controls;
    controls.pair.setQuietly(200);
    controls.pair.setRange(1, 100);
    QVERIFY(controls.show(100));
    QVERIFY(controls.sliderTold.isEmpty());
    QVERIFY(controls.spinBoxTold.isEmpty());
}

void TestSliderSpinBoxPair::accessibleName_isSetOnBoth()
{
    Controls controls;
    const QString name = QStringLiteral("速度");
    controls.pair.setAccessibleName(name);
    QCOMPARE(controls.slider.accessibleName(), name);
    QCOMPARE(controls.spinBox.accessibleName(), name);
}

void TestSliderSpinBoxPair::spinBox_hasNeitherFocusRingNorMenu()
{
    QSpinBox spinBox;
    spinBox.setAttribute(Qt::WA_MacShowFocusRect);
    QCOMPARE(spinBox.contextMenuPolicy(), Qt::DefaultContextMenu);
    SliderSpinBoxPair::prepare(&spinBox);
    QCOMPARE(spinBox.contextMenuPolicy(), Qt::NoContextMenu);
    QVERIFY(!spinBox.testAttribute(Qt::WA_MacShowFocusRect));
    const Controls controls;
    QCOMPARE(controls.spinBox.contextMenuPolicy(), Qt::NoContextMenu);
}

QTEST_MAIN(TestSliderSpinBoxPair)
#include "tst_sliderspinboxpair.moc"
