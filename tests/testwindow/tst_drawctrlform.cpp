#include "paneltest.h"
#include "placementrig.h"
#include "rows.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QSignalSpy>
#include <QtTest>

#include <functional>

namespace {

// The panel again, over the test window as it is and without settings.
void dropSettings(PlacementRig &rig)
{
    rig.panel = std::make_unique<DrawCtrlForm>(&rig.canvas, nullptr, nullptr);
}

} // namespace

class TestDrawCtrlForm : public PanelTest<PlacementRig>
{
    Q_OBJECT

protected:
    PanelFacts facts() const override;
    void addEdits() const override;

private slots:
    void form_isLaidOut_data();
    void form_isLaidOut();
    void form_namesBothButtonsForTheStyleSheet();
    void form_hasSpinBoxesWithoutFocusRingAndMenu();
    void withoutSettings_startsAtTheOriginWith200x200AndSavesNothing();
    void withoutSettings_leavesTheVisibilityAlone();
    void ranges_areTheSumsOfAllScreens();
    void ranges_areSentAgainByGetScreenSizeAndWriteNothing();
    void ranges_followTheDesktop_data();
    void ranges_followTheDesktop();
    void ranges_thatGrowAgainBringThePlacementBack();
    void screenMaxSizeChanged_isEmittedOnceInsideTheConstructor();
    void pairs_agree();
    void sliders_placeTheTestWindow();
    void slots_placeTheTestWindow();
    void buttons_showAndHideTheTestWindow();
    void buttons_followTheTestWindow();
    void changeOfTheWindow_isSavedSoon();
    void fullScreenWhileHidden_showsTheWindowInTheFileToo();
};

PanelFacts TestDrawCtrlForm::facts() const
{
    return {{{QStringLiteral("testWindowPointX"), 0},
             {QStringLiteral("testWindowPointY"), 0},
             {QStringLiteral("testWindowWidth"), 256},
             {QStringLiteral("testWindowHeight"), 256},
             {QStringLiteral("testWindowVisible"), false}},
            "testWindowPointX = 30\ntestWindowPointY = 40\ntestWindowWidth = 120\n"
            "testWindowHeight = 120\ntestWindowVisible = false\n",
            {"testWindowHeight = 90\n", "testWindowPointX = 99999\ntestWindowWidth = -3\n",
             "testWindowPointX = a\ntestWindowVisible = b\n"},
            QStringLiteral("X|Y|宽|高|X|Y|宽|高|X|Y|宽|高|"
                           "Wayland 下窗口位置由桌面决定|显示|隐藏")};
}

void TestDrawCtrlForm::addEdits() const
{
    const char *const y = "testWindowPointY";
    const char *const visible = "testWindowVisible";
    edit("slider", "", "hScrollBarX", 17, "", "testWindowPointX", "17");
    edit("spin box", "", "spinBoxY", -18, "", y, "-18");
    edit("key, size", "", "slot_keyShiftRightPressed", {}, "", "testWindowWidth", "121");
    edit("key, place", "", "slot_keyCtrlUpPressed", {}, "", y, "39");
    edit("hide button", "", "隐藏", {}, "", visible, "true");
    edit("show button", "testWindowVisible = true\n", "显示", {}, "", visible, "false");
    edit("hidden by itself", "", "slot_enableShowButton", {}, "", visible, "true");
}

void TestDrawCtrlForm::form_isLaidOut_data()
{
    const char *const button = "normalContentPushBtn";
    const Table<QByteArray, const char *, const char *, QRect> row("kind", "name", "text",
                                                                   "geometry");
    row("label", "QLabel", "label", "X", {40, 20, 16, 16});
    row("label_2", "QLabel", "label_2", "Y", {40, 50, 16, 16});
    row("labelWidth", "QLabel", "labelWidth", "宽", {36, 85, 51, 16});
    row("labelHeight", "QLabel", "labelHeight", "高", {37, 113, 51, 16});
    row("rule", "QLabel", "label_3", "", {30, 145, 531, 2});
    row("slider x", "QSlider", "hScrollBarX", "", {90, 20, 390, 16});
    row("slider y", "QSlider", "hScrollBarY", "", {90, 50, 390, 16});
    row("slider w", "QSlider", "hScrollBarWidth", "", {90, 86, 390, 16});
    row("slider h", "QSlider", "hScrollBarHeight", "", {90, 115, 390, 19});
    row("spin box x", "QSpinBox", "spinBoxX", "", {500, 20, 51, 22});
    row("spin box y", "QSpinBox", "spinBoxY", "", {500, 50, 51, 22});
    row("spin box w", "QSpinBox", "spinBoxWidth", "", {500, 80, 51, 22});
    row("spin box h", "QSpinBox", "spinBoxHeight", "", {500, 110, 51, 22});
    row("show", "QPushButton", button, "显示", {378, 155, 75, 23});
    row("hide", "QPushButton", button, "隐藏", {474, 155, 75, 23});
}

void TestDrawCtrlForm::form_isLaidOut()
{
    QFETCH(QByteArray, kind);
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(QRect, geometry);
    const PlacementRig rig;

    int found = 0;
    const auto widgets = rig.panel->findChildren<QWidget *>(name);
    for (const QWidget *widget : widgets) {
        const QString label = widget->property("text").toString();
        const bool isLabelled = text.isEmpty() || label == text;
        if (widget->inherits(kind) && widget->geometry() == geometry && isLabelled)
            ++found;
    }
    QCOMPARE(found, 1);
    QCOMPARE(rig.panel->maximumSize(), QSize(585, 192));
}

void TestDrawCtrlForm::form_namesBothButtonsForTheStyleSheet()
{
    const PlacementRig rig;
    const auto buttons = rig.panel->findChildren<QPushButton *>();

    QCOMPARE(buttons.count(), 2);
    for (const QPushButton *button : buttons)
        QCOMPARE(button->objectName(), QStringLiteral("normalContentPushBtn"));
}

void TestDrawCtrlForm::form_hasSpinBoxesWithoutFocusRingAndMenu()
{
    const PlacementRig rig;

    for (const QString &axis : placementAxes()) {
        QVERIFY(!rig.spinBox(axis)->testAttribute(Qt::WA_MacShowFocusRect));
        QCOMPARE(rig.spinBox(axis)->contextMenuPolicy(), Qt::NoContextMenu);
    }
}

void TestDrawCtrlForm::withoutSettings_startsAtTheOriginWith200x200AndSavesNothing()
{
    PlacementRig rig;
    rig.canvas.setGeometry(77, 66, 55, 44);
    dropSettings(rig);
    QCOMPARE(rig.canvas.geometry(), QRect(0, 0, 200, 200));
    QCOMPARE(rig.controls(), QRect(0, 0, 200, 200));

    rig.x()->setValue(12);
    rig.panel->saveWindowBaseInfo();
    QCOMPARE(rig.controls(), QRect(12, 0, 200, 200));
}

void TestDrawCtrlForm::withoutSettings_leavesTheVisibilityAlone()
{
    for (const bool visible : {true, false}) {
        PlacementRig rig;
        rig.canvas.setVisible(visible);
        dropSettings(rig);
        QCOMPARE(rig.canvas.isVisible(), visible);
        QVERIFY(rig.isHideable());
    }
}

void TestDrawCtrlForm::ranges_areTheSumsOfAllScreens()
{
    const PlacementRig rig;
    const int w = desktopSums().width();
    const int h = desktopSums().height();
    const QList<QPair<int, int>> ranges{{1 - w, w - 1}, {1 - h, h - 1}, {1, w}, {1, h}};

    for (int i = 0; i < 4; ++i) {
        QCOMPARE(rig.slider(placementAxes().at(i))->minimum(), ranges.at(i).first);
        QCOMPARE(rig.slider(placementAxes().at(i))->maximum(), ranges.at(i).second);
        QCOMPARE(rig.spinBox(placementAxes().at(i))->minimum(), ranges.at(i).first);
        QCOMPARE(rig.spinBox(placementAxes().at(i))->maximum(), ranges.at(i).second);
    }
}

void TestDrawCtrlForm::ranges_areSentAgainByGetScreenSizeAndWriteNothing()
{
    const PlacementRig rig;
    QSignalSpy sizes(rig.panel.get(), &DrawCtrlForm::signal_screenMaxSizeChanged);

    rig.panel->getScreenSize();
    rig.panel->slot_dealScreenChange(0);

    QCOMPARE(sizes.count(), 2);
    const QVariantList sums{desktopSums().width(), desktopSums().height()};
    QCOMPARE(sizes.at(0), sums);
    QCOMPARE(sizes.at(1), sums);
    QVERIFY(!rig.isSaveDue());
}

void TestDrawCtrlForm::ranges_followTheDesktop_data()
{
    addRows<QByteArray>("change", {{"number of screens", "screenCountChanged"},
                                   {"size of a screen", "resized"},
                                   {"primary screen", "primaryScreenChanged"}});
}

void TestDrawCtrlForm::ranges_followTheDesktop()
{
    QFETCH(QByteArray, change);
    const PlacementRig rig;
    QSignalSpy sizes(rig.panel.get(), &DrawCtrlForm::signal_screenMaxSizeChanged);

    if (change == "primaryScreenChanged")
        QVERIFY(QMetaObject::invokeMethod(QApplication::desktop(), change.constData()));
    else
        QVERIFY(
            QMetaObject::invokeMethod(QApplication::desktop(), change.constData(), Q_ARG(int, 0)));

    QCOMPARE(sizes.count(), 1);
}

void TestDrawCtrlForm::ranges_thatGrowAgainBringThePlacementBack()
{
    PlacementRig rig;
    const QRect placement(310, -120, 333, 222);
    rig.x()->setValue(placement.x());
    rig.y()->setValue(placement.y());
    rig.width()->setValue(placement.width());
    rig.canvas.show(); // a hidden window hears of its changes later
    rig.height()->setValue(placement.height());
    PlacementCounter counter(&rig.canvas);
    // As a small desktop would leave the controls.
    for (const QString &axis : placementAxes()) {
        const QSignalBlocker blockSlider(rig.slider(axis));
        const QSignalBlocker blockSpinBox(rig.spinBox(axis));
        rig.slider(axis)->setRange(1, 9);
        rig.spinBox(axis)->setRange(1, 9);
    }

    rig.panel->getScreenSize();

    QCOMPARE(rig.controls(), placement);
    QCOMPARE(rig.spinBox(QStringLiteral("Height"))->value(), 222);
    QCOMPARE(rig.canvas.geometry(), placement);
    QCOMPARE(counter.changes, 0);
}

void TestDrawCtrlForm::screenMaxSizeChanged_isEmittedOnceInsideTheConstructor()
{
    // Nobody can be connected that early, so another run of this program, which
    // makes one panel, has to write down every signal.
    QProcess run;
    run.start(QCoreApplication::applicationFilePath(),
              {QStringLiteral("-vs"), QStringLiteral("form_namesBothButtonsForTheStyleSheet")});
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

void TestDrawCtrlForm::pairs_agree()
{
    const PlacementRig rig;
    for (const QString &axis : placementAxes()) {
        QSlider *slider = rig.slider(axis);
        QSpinBox *spinBox = rig.spinBox(axis);
        for (const int value : {1, 57, slider->maximum(), slider->minimum()}) {
            slider->setValue(value);
            QCOMPARE(spinBox->value(), value);
        }
        for (const int value : {1, 58, slider->maximum(), slider->minimum()}) {
            spinBox->setValue(value);
            QCOMPARE(slider->value(), value);
        }
    }
}

void TestDrawCtrlForm::sliders_placeTheTestWindow()
{
    const PlacementRig rig;

    rig.x()->setValue(31);
    QCOMPARE(rig.canvas.geometry(), QRect(31, 0, 256, 256));
    rig.y()->setValue(-42);
    QCOMPARE(rig.canvas.geometry(), QRect(31, -42, 256, 256));
    rig.width()->setValue(53);
    QCOMPARE(rig.canvas.geometry(), QRect(31, -42, 53, 256));
    rig.height()->setValue(1);
    QCOMPARE(rig.canvas.geometry(), QRect(31, -42, 53, 1));
    QVERIFY(rig.isSaveDue());
}

void TestDrawCtrlForm::slots_placeTheTestWindow()
{
    const PlacementRig rig;

    rig.panel->slot_MoveX(13);
    QCOMPARE(rig.canvas.pos(), QPoint(13, 0));
    rig.panel->slot_MoveY(14);
    QCOMPARE(rig.canvas.pos(), QPoint(13, 14));
    rig.panel->slot_resetWidth(150);
    QCOMPARE(rig.canvas.size(), QSize(150, 256)); // the other side from its slider
    rig.height()->setValue(90);
    rig.panel->slot_resetHeight(160);
    QCOMPARE(rig.canvas.height(), 160);
}

void TestDrawCtrlForm::buttons_showAndHideTheTestWindow()
{
    const PlacementRig rig({{QStringLiteral("testWindowVisible"), true}});
    QVERIFY(!rig.isHideable());

    rig.panel->slot_showPushed();
    QVERIFY(rig.canvas.isVisible());
    QVERIFY(rig.isHideable());

    rig.click(rig.hideButton());
    QVERIFY(rig.canvas.isHidden());
    QVERIFY(!rig.isHideable());

    rig.click(rig.showButton());
    QVERIFY(rig.canvas.isVisible());
    QVERIFY(rig.isHideable());
}

void TestDrawCtrlForm::buttons_followTheTestWindow()
{
    const PlacementRig rig;
    rig.panel->slot_enableShowButton();
    QVERIFY(!rig.isHideable());
    QVERIFY(rig.canvas.isVisible()); // it is told, it does not act
    rig.panel->slot_disableShowButton();
    QVERIFY(rig.isHideable());
}

void TestDrawCtrlForm::changeOfTheWindow_isSavedSoon()
{
    PlacementRig rig;
    const std::function<void()> changes[] = {
        [&] { rig.panel->slot_drawWidgetPositionChange(0, 99); },
        [&] { rig.panel->slot_drawWidgetSizeChange(256, 98); }, [&] { rig.canvas.hide(); }};
    for (const auto &change : changes) {
        QVERIFY(!rig.isSaveDue());
        change();
        QVERIFY(rig.isSaveDue());
        QTRY_VERIFY(!rig.isSaveDue());
    }
    const QByteArray file = rig.settings.bytes();
    QVERIFY(file.contains("PointY=99\n") && file.contains("Height=98\n"));
    QVERIFY(file.contains("Visible=true\n"));
}

void TestDrawCtrlForm::fullScreenWhileHidden_showsTheWindowInTheFileToo()
{
    PlacementRig rig({{QStringLiteral("testWindowVisible"), true}});
    QVERIFY(!rig.isHideable());

    rig.canvas.showFullScreen();

    QVERIFY(rig.isHideable());
    QTRY_VERIFY(rig.settings.bytes().contains("Visible=false\n"));
}

QTEST_MAIN(TestDrawCtrlForm)
#include "tst_drawctrlform.moc"
