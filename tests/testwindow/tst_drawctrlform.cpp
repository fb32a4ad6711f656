#include "dictionary.h"
#include "placementpanel.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QLabel>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QSignalSpy>
#include <QtTest>

class TestDrawCtrlForm : public QObject
{
    Q_OBJECT

private slots:
    void form_isLaidOut_data();
    void form_isLaidOut();
    void form_namesBothButtonsForTheStyleSheet();
    void form_hasSpinBoxesWithoutFocusRingAndMenu();
    void withoutSettings_startsAtTheOriginWith200x200();
    void withoutSettings_leavesTheVisibilityAlone();
    void withoutSettings_savesNothing();
    void ranges_areTheSumsOfAllScreens();
    void ranges_areSentAgainByGetScreenSize();
    void ranges_followTheDesktop_data();
    void ranges_followTheDesktop();
    void ranges_thatGrowAgainBringThePlacementBack();
    void screenMaxSizeChanged_isEmittedOnceInsideTheConstructor();
    void pairs_agree_data();
    void pairs_agree();
    void sliders_placeTheTestWindow();
    void slots_placeTheTestWindow();
    void buttons_showAndHideTheTestWindow();
    void buttons_followTheTestWindow();
    void language_reachesEveryText();
};

void TestDrawCtrlForm::form_isLaidOut_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QRect>("geometry");
    const QString none;
    const QString button = QStringLiteral("normalContentPushBtn");

    QTest::newRow("label") << "QLabel"
                           << "label"
                           << "X" << QRect(40, 20, 16, 16);
    QTest::newRow("label_2") << "QLabel"
                             << "label_2"
                             << "Y" << QRect(40, 50, 16, 16);
    QTest::newRow("labelWidth") << "QLabel"
                                << "labelWidth"
                                << "宽" << QRect(36, 85, 51, 16);
    QTest::newRow("labelHeight") << "QLabel"
                                 << "labelHeight"
                                 << "高" << QRect(37, 113, 51, 16);
    QTest::newRow("rule") << "QLabel"
                          << "label_3" << none << QRect(30, 145, 531, 2);
    QTest::newRow("slider x") << "QSlider"
                              << "hScrollBarX" << none << QRect(90, 20, 390, 16);
    QTest::newRow("slider y") << "QSlider"
                              << "hScrollBarY" << none << QRect(90, 50, 390, 16);
    QTest::newRow("slider w") << "QSlider"
                              << "hScrollBarWidth" << none << QRect(90, 86, 390, 16);
    QTest::newRow("slider h") << "QSlider"
                              << "hScrollBarHeight" << none << QRect(90, 115, 390, 19);
    QTest::newRow("spin box x") << "QSpinBox"
                                << "spinBoxX" << none << QRect(500, 20, 51, 22);
    QTest::newRow("spin box y") << "QSpinBox"
                                << "spinBoxY" << none << QRect(500, 50, 51, 22);
    QTest::newRow("spin box w") << "QSpinBox"
                                << "spinBoxWidth" << none << QRect(500, 80, 51, 22);
    QTest::newRow("spin box h") << "QSpinBox"
                                << "spinBoxHeight" << none << QRect(500, 110, 51, 22);
    QTest::newRow("show") << "QPushButton" << button << "显示" << QRect(378, 155, 75, 23);
    QTest::newRow("hide") << "QPushButton" << button << "隐藏" << QRect(474, 155, 75, 23);
}

void TestDrawCtrlForm::form_isLaidOut()
{
    QFETCH(QString, kind);
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(QRect, geometry);
    const PlacementPanel panel;

    int found = 0;
    const auto widgets = panel.form->findChildren<QWidget *>(name);
    for (const QWidget *widget : widgets) {
        const QString label = widget->property("text").toString();
        const bool isLabelled = text.isEmpty() || label == text;
        if (widget->inherits(kind.toLatin1().constData()) && widget->geometry() == geometry
            && isLabelled)
            ++found;
    }
    QCOMPARE(found, 1);
    QCOMPARE(panel.form->maximumSize(), QSize(585, 192));
}

void TestDrawCtrlForm::form_namesBothButtonsForTheStyleSheet()
{
    const PlacementPanel panel;
    const auto buttons = panel.form->findChildren<QPushButton *>();

    QCOMPARE(buttons.count(), 2);
    for (const QPushButton *button : buttons)
        QCOMPARE(button->objectName(), QStringLiteral("normalContentPushBtn"));
}

void TestDrawCtrlForm::form_hasSpinBoxesWithoutFocusRingAndMenu()
{
    const PlacementPanel panel;

    for (const QString &axis : placementAxes()) {
        QVERIFY(!panel.spinBox(axis)->testAttribute(Qt::WA_MacShowFocusRect));
        QCOMPARE(panel.spinBox(axis)->contextMenuPolicy(), Qt::NoContextMenu);
    }
}

void TestDrawCtrlForm::withoutSettings_startsAtTheOriginWith200x200()
{
    const PlacementPanel panel;

    QCOMPARE(panel.target.geometry(), QRect(0, 0, 200, 200));
    QCOMPARE(panel.controls(), QRect(0, 0, 200, 200));
}

void TestDrawCtrlForm::withoutSettings_leavesTheVisibilityAlone()
{
    PlacementPanel panel;
    QVERIFY(panel.target.isHidden());
    QVERIFY(!panel.showButton()->isEnabled());
    QVERIFY(panel.hideButton()->isEnabled());

    panel.target.show();
    const DrawCtrlForm another(&panel.target, nullptr, nullptr);
    QVERIFY(panel.target.isVisible());
}

void TestDrawCtrlForm::withoutSettings_savesNothing()
{
    PlacementPanel panel;
    panel.x()->setValue(12);
    panel.form->saveWindowBaseInfo();

    QCOMPARE(panel.controls(), QRect(12, 0, 200, 200));
}

void TestDrawCtrlForm::ranges_areTheSumsOfAllScreens()
{
    const PlacementPanel panel;
    const int w = desktopSums().width();
    const int h = desktopSums().height();
    const QList<QPair<int, int>> ranges{{1 - w, w - 1}, {1 - h, h - 1}, {1, w}, {1, h}};

    for (int i = 0; i < 4; ++i) {
        QCOMPARE(panel.slider(placementAxes().at(i))->minimum(), ranges.at(i).first);
        QCOMPARE(panel.slider(placementAxes().at(i))->maximum(), ranges.at(i).second);
        QCOMPARE(panel.spinBox(placementAxes().at(i))->minimum(), ranges.at(i).first);
        QCOMPARE(panel.spinBox(placementAxes().at(i))->maximum(), ranges.at(i).second);
    }
}

void TestDrawCtrlForm::ranges_areSentAgainByGetScreenSize()
{
    const PlacementPanel panel;
    QSignalSpy sizes(panel.form.get(), &DrawCtrlForm::signal_screenMaxSizeChanged);

    panel.form->getScreenSize();
    panel.form->slot_dealScreenChange(0);

    QCOMPARE(sizes.count(), 2);
    const QVariantList sums{desktopSums().width(), desktopSums().height()};
    QCOMPARE(sizes.at(0), sums);
    QCOMPARE(sizes.at(1), sums);
}

void TestDrawCtrlForm::ranges_followTheDesktop_data()
{
    QTest::addColumn<QByteArray>("change");
    QTest::newRow("number of screens") << QByteArray("screenCountChanged");
    QTest::newRow("size of a screen") << QByteArray("resized");
    QTest::newRow("primary screen") << QByteArray("primaryScreenChanged");
}

void TestDrawCtrlForm::ranges_followTheDesktop()
{
    QFETCH(QByteArray, change);
    const PlacementPanel panel;
    QSignalSpy sizes(panel.form.get(), &DrawCtrlForm::signal_screenMaxSizeChanged);

    if (change == "primaryScreenChanged")
        QVERIFY(QMetaObject::invokeMethod(QApplication::desktop(), change.constData()));
    else
        QVERIFY(
            QMetaObject::invokeMethod(QApplication::desktop(), change.constData(), Q_ARG(int, 0)));

    QCOMPARE(sizes.count(), 1);
}

void TestDrawCtrlForm::ranges_thatGrowAgainBringThePlacementBack()
{
    PlacementPanel panel;
    const QRect placement(310, -120, 333, 222);
    panel.x()->setValue(placement.x());
    panel.y()->setValue(placement.y());
    panel.width()->setValue(placement.width());
    panel.target.show(); // a hidden window hears of its changes later
    panel.height()->setValue(placement.height());
    PlacementCounter counter(&panel.target);
    // As a small desktop would leave the controls.
    for (const QString &axis : placementAxes()) {
        const QSignalBlocker blockSlider(panel.slider(axis));
        const QSignalBlocker blockSpinBox(panel.spinBox(axis));
        panel.slider(axis)->setRange(1, 9);
        panel.spinBox(axis)->setRange(1, 9);
    }

    panel.form->getScreenSize();

    QCOMPARE(panel.controls(), placement);
    QCOMPARE(panel.spinBox(QStringLiteral("Height"))->value(), 222);
    QCOMPARE(panel.target.geometry(), placement);
    QCOMPARE(counter.changes, 0);
}

void TestDrawCtrlForm::screenMaxSizeChanged_isEmittedOnceInsideTheConstructor()
{
    // Nobody can be connected that early, so another run of this program, which
    // makes one panel, has to write down every signal.
    QProcess run;
    run.start(
        QCoreApplication::applicationFilePath(),
        {QStringLiteral("-vs"), QStringLiteral("withoutSettings_startsAtTheOriginWith200x200")});
    QVERIFY(run.waitForFinished());
    QCOMPARE(run.exitCode(), 0);

    static const QRegularExpression emission(
        QStringLiteral(R"(signal_screenMaxSizeChanged \(\D*(\d+)\D+(\d+)\D*\))"));
    const QString output = QString::fromUtf8(run.readAllStandardOutput());
    QRegularExpressionMatchIterator emissions = emission.globalMatch(output);
    QVERIFY2(emissions.hasNext(), qPrintable(output));
    const QRegularExpressionMatch first = emissions.next();
    QCOMPARE(first.captured(1).toInt(), desktopSums().width());
    QCOMPARE(first.captured(2).toInt(), desktopSums().height());
    QVERIFY(!emissions.hasNext());
}

void TestDrawCtrlForm::pairs_agree_data()
{
    QTest::addColumn<QString>("axis");
    for (const QString &axis : placementAxes())
        QTest::newRow(qPrintable(axis)) << axis;
}

void TestDrawCtrlForm::pairs_agree()
{
    QFETCH(QString, axis);
    const PlacementPanel panel;

    for (const int value : {1, 57, panel.slider(axis)->maximum(), panel.slider(axis)->minimum()}) {
        panel.slider(axis)->setValue(value);
        QCOMPARE(panel.spinBox(axis)->value(), value);
    }
    for (const int value : {1, 58, panel.slider(axis)->maximum(), panel.slider(axis)->minimum()}) {
        panel.spinBox(axis)->setValue(value);
        QCOMPARE(panel.slider(axis)->value(), value);
    }
}

void TestDrawCtrlForm::sliders_placeTheTestWindow()
{
    const PlacementPanel panel;

    panel.x()->setValue(31);
    QCOMPARE(panel.target.geometry(), QRect(31, 0, 200, 200));
    panel.y()->setValue(-42);
    QCOMPARE(panel.target.geometry(), QRect(31, -42, 200, 200));
    panel.width()->setValue(53);
    QCOMPARE(panel.target.geometry(), QRect(31, -42, 53, 200));
    panel.height()->setValue(1);
    QCOMPARE(panel.target.geometry(), QRect(31, -42, 53, 1));
}

void TestDrawCtrlForm::slots_placeTheTestWindow()
{
    const PlacementPanel panel;

    panel.form->slot_MoveX(13);
    QCOMPARE(panel.target.pos(), QPoint(13, 0));
    panel.form->slot_MoveY(14);
    QCOMPARE(panel.target.pos(), QPoint(13, 14));
    panel.form->slot_resetWidth(150);
    QCOMPARE(panel.target.size(), QSize(150, 200)); // the other side from its slider
    panel.height()->setValue(90);
    panel.form->slot_resetHeight(160);
    QCOMPARE(panel.target.height(), 160);
}

void TestDrawCtrlForm::buttons_showAndHideTheTestWindow()
{
    const PlacementPanel panel;

    panel.form->slot_showPushed();
    QVERIFY(panel.target.isVisible());
    QVERIFY(panel.hideButton()->isEnabled());
    QVERIFY(!panel.showButton()->isEnabled());

    QTest::mouseClick(panel.hideButton(), Qt::LeftButton);
    QVERIFY(panel.target.isHidden());
    QVERIFY(!panel.hideButton()->isEnabled());
    QVERIFY(panel.showButton()->isEnabled());

    QTest::mouseClick(panel.showButton(), Qt::LeftButton);
    QVERIFY(panel.target.isVisible());
    QVERIFY(panel.hideButton()->isEnabled());
    QVERIFY(!panel.showButton()->isEnabled());
}

void TestDrawCtrlForm::buttons_followTheTestWindow()
{
    const PlacementPanel panel;

    panel.form->slot_enableShowButton();
    QVERIFY(panel.showButton()->isEnabled());
    QVERIFY(!panel.hideButton()->isEnabled());
    panel.form->slot_disableShowButton();
    QVERIFY(!panel.showButton()->isEnabled());
    QVERIFY(panel.hideButton()->isEnabled());
    QVERIFY(panel.target.isHidden()); // it is told, it does not act
}

void TestDrawCtrlForm::language_reachesEveryText()
{
    const PlacementPanel panel;
    const Dictionary dictionary({{QStringLiteral("X"), QStringLiteral("x")},
                                 {QStringLiteral("Y"), QStringLiteral("y")},
                                 {QStringLiteral("宽"), QStringLiteral("W")},
                                 {QStringLiteral("高"), QStringLiteral("H")},
                                 {QStringLiteral("显示"), QStringLiteral("Show")},
                                 {QStringLiteral("隐藏"), QStringLiteral("Hide")}});

    panel.form->updateLanguage();

    const auto label = [&](const char *name) {
        return panel.form->findChild<QLabel *>(QString::fromLatin1(name))->text();
    };
    QCOMPARE(label("label"), QStringLiteral("x"));
    QCOMPARE(label("label_2"), QStringLiteral("y"));
    QCOMPARE(label("labelWidth"), QStringLiteral("W"));
    QCOMPARE(label("labelHeight"), QStringLiteral("H"));
    QCOMPARE(panel.showButton()->text(), QStringLiteral("Show"));
    QCOMPARE(panel.hideButton()->text(), QStringLiteral("Hide"));
}

QTEST_MAIN(TestDrawCtrlForm)
#include "tst_drawctrlform.moc"
