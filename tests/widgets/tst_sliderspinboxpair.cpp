#include "sliderspinboxpair.h"

#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QtTest>

#include <memory>

class TestSliderSpinBoxPair : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void slider_setsTheSpinBox();
    void spinBox_setsTheSlider();
    void oneChange_isOneChangeOfEach();
    void typedNumber_reachesTheSlider();
    void unlinkedPair_staysApart();

    void range_isSetOnBoth_data();
    void range_isSetOnBoth();
    void range_limitsTheValueOfBoth();

    void accessibleName_isSetOnBoth();
    void prepare_takesTheFocusRingAndTheMenuAway();

private:
    std::unique_ptr<QSlider> m_slider;
    std::unique_ptr<QSpinBox> m_spinBox;
};

void TestSliderSpinBoxPair::init()
{
    m_slider = std::make_unique<QSlider>(Qt::Horizontal);
    m_spinBox = std::make_unique<QSpinBox>();
    SliderSpinBoxPair::setRange(m_slider.get(), m_spinBox.get(), 0, 255);
}

void TestSliderSpinBoxPair::slider_setsTheSpinBox()
{
    SliderSpinBoxPair::link(m_slider.get(), m_spinBox.get());
    for (const int value : {1, 255, 0}) {
        m_slider->setValue(value);
        QCOMPARE(m_spinBox->value(), value);
    }
}

void TestSliderSpinBoxPair::spinBox_setsTheSlider()
{
    SliderSpinBoxPair::link(m_slider.get(), m_spinBox.get());
    for (const int value : {1, 255, 0}) {
        m_spinBox->setValue(value);
        QCOMPARE(m_slider->value(), value);
    }
}

void TestSliderSpinBoxPair::oneChange_isOneChangeOfEach()
{
    SliderSpinBoxPair::link(m_slider.get(), m_spinBox.get());
    QSignalSpy slider(m_slider.get(), &QSlider::valueChanged);
    QSignalSpy spinBox(m_spinBox.get(), qOverload<int>(&QSpinBox::valueChanged));
    m_slider->setValue(10);
    QCOMPARE(slider.count(), 1);
    QCOMPARE(spinBox.count(), 1);
    m_spinBox->setValue(20);
    QCOMPARE(slider.count(), 2);
    QCOMPARE(spinBox.count(), 2);
    m_spinBox->setValue(20);
    QCOMPARE(slider.count(), 2);
    QCOMPARE(spinBox.count(), 2);
}

void TestSliderSpinBoxPair::typedNumber_reachesTheSlider()
{
    SliderSpinBoxPair::link(m_slider.get(), m_spinBox.get());
    m_spinBox->selectAll();
    QTest::keyClicks(m_spinBox.get(), QStringLiteral("123"));
    QCOMPARE(m_spinBox->value(), 123);
    QCOMPARE(m_slider->value(), 123);
}

void TestSliderSpinBoxPair::unlinkedPair_staysApart()
{
    m_slider->setValue(9);
    QCOMPARE(m_spinBox->value(), 0);
}

void TestSliderSpinBoxPair::range_isSetOnBoth_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::newRow("grey levels") << 0 << 255;
    QTest::newRow("speeds") << 1 << 100;
    QTest::newRow("negative") << -20 << -3;
    QTest::newRow("one value") << 5 << 5;
}

void TestSliderSpinBoxPair::range_isSetOnBoth()
{
    QFETCH(const int, minimum);
    QFETCH(const int, maximum);
    SliderSpinBoxPair::setRange(m_slider.get(), m_spinBox.get(), minimum, maximum);

    QCOMPARE(m_slider->minimum(), minimum);
    QCOMPARE(m_slider->maximum(), maximum);
    QCOMPARE(m_spinBox->minimum(), minimum);
    QCOMPARE(m_spinBox->maximum(), maximum);
}

void TestSliderSpinBoxPair::range_limitsTheValueOfBoth()
{
    SliderSpinBoxPair::link(m_slider.get(), m_spinBox.get());
    m_slider->setValue(200);
    SliderSpinBoxPair::setRange(m_slider.get(), m_spinBox.get(), 1, 100);
    QCOMPARE(m_slider->value(), 100);
    QCOMPARE(m_spinBox->value(), 100);
}

void TestSliderSpinBoxPair::accessibleName_isSetOnBoth()
{
    const QString name = QStringLiteral("速度");
    SliderSpinBoxPair::setAccessibleName(m_slider.get(), m_spinBox.get(), name);
    QCOMPARE(m_slider->accessibleName(), name);
    QCOMPARE(m_spinBox->accessibleName(), name);
}

void TestSliderSpinBoxPair::prepare_takesTheFocusRingAndTheMenuAway()
{
    m_spinBox->setAttribute(Qt::WA_MacShowFocusRect, true);
    QCOMPARE(m_spinBox->contextMenuPolicy(), Qt::DefaultContextMenu);
    SliderSpinBoxPair::prepare(m_spinBox.get());

    QCOMPARE(m_spinBox->contextMenuPolicy(), Qt::NoContextMenu);
    QVERIFY(!m_spinBox->testAttribute(Qt::WA_MacShowFocusRect));
}

QTEST_MAIN(TestSliderSpinBoxPair)
#include "tst_sliderspinboxpair.moc"
