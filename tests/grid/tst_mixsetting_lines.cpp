#include "colordialog.h"
#include "mixrig.h"

#include <QtTest>

// The part of the dialog that takes effect at once.
class TestMixSettingLines : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { ColorDialog::setAnswer({}); }

    void lineWidth_isAppliedAtOnceAndLimited();
    void lineDistance_isAppliedAtOnceAndLimited();
    void spinBoxes_startWithTheDrawersValues();
    void distanceAbove99_isShownAs99AndKept();

    void pickedColour_isTheBackgroundAndTheOldColour();
    void cancelledColour_isAppliedAsInvalid();
    void colourLabel_answersTheSpaceKey();
};

void TestMixSettingLines::lineWidth_isAppliedAtOnceAndLimited()
{
    MixRig rig;
    QSpinBox *width = rig.spinBox("spinBoxPix");
    QVERIFY(width->minimumWidth() >= 45);
    width->setValue(5);
    QCOMPARE(rig.drawer.getPix(), 5);
    QVERIFY(rig.drawer.active);
    width->setValue(6);
    QCOMPARE(rig.drawer.getPix(), 5);
    width->setValue(0);
    QCOMPARE(rig.drawer.getPix(), 1);
    QVERIFY(rig.settings.stored().isEmpty());
}

void TestMixSettingLines::lineDistance_isAppliedAtOnceAndLimited()
{
    MixRig rig;
    QSpinBox *distance = rig.spinBox("spinBoxDistance");
    QVERIFY(distance->minimumWidth() >= 45);
    distance->setValue(33);
    QCOMPARE(rig.drawer.getLineDistance(), 33);
    QVERIFY(rig.drawer.active);
    distance->setValue(2);
    QCOMPARE(rig.drawer.getLineDistance(), 3);
    distance->setValue(701);
    QCOMPARE(rig.drawer.getLineDistance(), 700);
    QVERIFY(rig.settings.stored().isEmpty());
}

void TestMixSettingLines::spinBoxes_startWithTheDrawersValues()
{
    MixRig rig;
    rig.drawer.slot_changePix(4);
    rig.drawer.slot_changeDistance(99);
    rig.drawer.active = false;
    MixSetting again(&rig.drawer, rig.settings.get(), nullptr);

    QCOMPARE(again.findChild<QSpinBox *>(QStringLiteral("spinBoxPix"))->value(), 4);
    QCOMPARE(again.findChild<QSpinBox *>(QStringLiteral("spinBoxDistance"))->value(), 99);
    QVERIFY(!rig.drawer.active);
}

void TestMixSettingLines::distanceAbove99_isShownAs99AndKept()
{
    MixRig rig;
    rig.spinBox("spinBoxDistance")->setValue(300);
    MixSetting again(&rig.drawer, rig.settings.get(), nullptr);
    auto *distance = again.findChild<QSpinBox *>(QStringLiteral("spinBoxDistance"));
    QCOMPARE(distance->value(), 99);
    QCOMPARE(rig.drawer.getLineDistance(), 300);

    distance->stepUp();
    QCOMPARE(rig.drawer.getLineDistance(), 100);
}

void TestMixSettingLines::pickedColour_isTheBackgroundAndTheOldColour()
{
    MixRig rig;
    QCOMPARE(rig.colorLabel()->styleSheet(), QStringLiteral("background-color:rgb(0,0,0)"));
    QColor asked;
    ColorDialog::setAnswer([&asked](const QColor &initial) {
        asked = initial;
        return QColor(1, 2, 0xab);
    });
    QTest::mouseClick(rig.colorLabel(), Qt::LeftButton);

    QCOMPARE(asked, QColor(Qt::green));
    QCOMPARE(rig.drawer.getOldColor(), QColor(1, 2, 0xab));
    QCOMPARE(rig.background(), qRgb(1, 2, 0xab));
    QVERIFY(rig.drawer.active);
    QCOMPARE(rig.colorLabel()->styleSheet(), QStringLiteral("background:#0102ab"));
    QVERIFY(rig.settings.stored().isEmpty());
}

void TestMixSettingLines::cancelledColour_isAppliedAsInvalid()
{
    MixRig rig;
    rig.drawer.slot_changeBgColor(Qt::red);
    rig.drawer.active = false;
    ColorDialog::setAnswer([](const QColor &) { return QColor(); });
    QTest::mouseClick(rig.colorLabel(), Qt::LeftButton);

    QVERIFY(!rig.drawer.getOldColor().isValid());
    QCOMPARE(rig.background(), qRgb(0, 0, 0)); // which is what the painter makes of it
    QVERIFY(rig.drawer.active);
    QCOMPARE(rig.colorLabel()->styleSheet(), QStringLiteral("background:#000000"));
}

void TestMixSettingLines::colourLabel_answersTheSpaceKey()
{
    MixRig rig;
    ColorDialog::setAnswer([](const QColor &) { return QColor(Qt::cyan); });
    rig.dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&rig.dialog));
    rig.colorLabel()->setFocus();
    QTest::keyClick(rig.colorLabel(), Qt::Key_Space);
    QCOMPARE(rig.drawer.getOldColor(), QColor(Qt::cyan));
}

QTEST_MAIN(TestMixSettingLines)
#include "tst_mixsetting_lines.moc"
