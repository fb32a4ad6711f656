#include "gridrig.h"
#include "mixsetting.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

using Panel = ScrGridCtrlDialog;

const char *const boxes[] = {"Red",    "Green", "Blue", "White", "Yellow", "Cyan",
                             "Purple", "H",     "V",    "SL",    "SR"};

// A settings file in which these boxes are checked and no others.
QVariantMap selecting(const QStringList &selected)
{
    QVariantMap values;
    for (const char *box : boxes)
        values[QStringLiteral("checkBox") + QLatin1String(box)] =
            !selected.contains(QLatin1String(box));
    return values;
}

// One tick's picture: the background's name, or the families in their letters.
QString nextPicture(GridRig &rig)
{
    rig.tick();
    const Shown shown = rig.shown();
    return shown.families.isEmpty() ? QColor(shown.background).name() : shown.families;
}

QString pictures(GridRig &rig, int count)
{
    QStringList all;
    for (int i = 0; i < count; ++i)
        all << nextPicture(rig);
    return all.join(QLatin1Char(' '));
}

// What the operator does in the mix settings as soon as they are open.
template<typename Action>
void inMixSettings(const GridRig &rig, Action action)
{
    int opened = 0;
    QTimer::singleShot(0, rig.panel.get(), [&rig, &opened, action] {
        auto *dialog = rig.panel->findChild<MixSetting *>();
        if (!dialog)
            return;
        ++opened;
        action(*dialog);
        if (dialog->isVisible())
            dialog->close();
    });
    rig.click(rig.mixSettings());
    QCOMPARE(opened, 1);
}

} // namespace

// The merged test, and the dialog that says what it shows.
class TestScrGridCtrlDialogMerged : public QObject
{
    Q_OBJECT

private slots:
    void cycle_showsTheSelectedColoursThenTheSelectedFamilies_data();
    void cycle_showsTheSelectedColoursThenTheSelectedFamilies();
    void cycle_tellsItsColourStepsOnly();
    void emptySelection_clearsTheFamiliesAndShowsNothingNew();
    void families_standOnTheOldColour();
    void colours_areDimmedByTheGreySlider();
    void start_releasesTheFamiliesAndEnablesTheControls();
    void start_goesOnWhereTheTestStopped();
    void startOfTheAgingTest_endsTheLinesThatAreShown();
    void bothModes_runInOneTickAgingFirst();
    void lineCount_isThatOfTheSelectedFamilies_data();
    void lineCount_isThatOfTheSelectedFamilies();

    void mixSettings_openOnceAndModal();
    void mixSettings_confirmedChangeTheTestAndTheFile();
    void mixSettings_closedChangeTheTestButNotTheFile();
    void mixSettings_withOneFamilyShowItEveryTick();
    void mixSettings_inTheMiddleOfACycleGoOn();
};

void TestScrGridCtrlDialogMerged::cycle_showsTheSelectedColoursThenTheSelectedFamilies_data()
{
    QTest::addColumn<QStringList>("selected");
    QTest::addColumn<QString>("expected"); // one cycle and a step of the next
    const auto row = [](const char *name, const char *selected, const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(selected).split(QLatin1Char(' '))
                            << QString::fromLatin1(expected);
    };
    row("red, blue, horizontal and slant right", "Red Blue H SR", "#ff0000 #0000ff H R #ff0000");
    row("a colour", "Cyan", "#00ffff #00ffff");
    row("a family", "SL", "L L");
    row("colours in the order of the table", "Purple Yellow White Green",
        "#00ff00 #ffffff #ffff00 #ff00ff #00ff00");
    row("families in their order", "SR SL V H", "H V L R H");
    row("everything", "Red Green Blue White Yellow Cyan Purple H V SL SR",
        "#ff0000 #00ff00 #0000ff #ffffff #ffff00 #00ffff #ff00ff H V L R #ff0000");
}

void TestScrGridCtrlDialogMerged::cycle_showsTheSelectedColoursThenTheSelectedFamilies()
{
    QFETCH(const QStringList, selected);
    QFETCH(const QString, expected);
    GridRig rig(selecting(selected));
    rig.click(rig.merged());
    const QString cycle = pictures(rig, selected.size() + 1);
    QCOMPARE(cycle, expected);

    // The second cycle shows as much as the first.
    pictures(rig, selected.size() - 1);
    QCOMPARE(pictures(rig, selected.size() + 1), expected);
}

void TestScrGridCtrlDialogMerged::cycle_tellsItsColourStepsOnly()
{
    GridRig rig(selecting({QStringLiteral("Red"), QStringLiteral("Blue"), QStringLiteral("H"),
                           QStringLiteral("SR")}));
    rig.click(rig.merged());
    QSignalSpy told(rig.panel.get(), &Panel::signal_oldMixColorChanged);
    QList<int> counts;
    for (int step = 0; step < 5; ++step) {
        rig.tick();
        counts << told.count();
    }
    QCOMPARE(counts, (QList<int>{1, 2, 2, 2, 3}));
    QCOMPARE(told.at(1).first().value<QColor>(), QColor(Qt::blue));
}

void TestScrGridCtrlDialogMerged::emptySelection_clearsTheFamiliesAndShowsNothingNew()
{
    GridRig rig(selecting({}));
    rig.click(rig.merged());
    rig.drawer->slot_changeBgColor(QColor(9, 8, 7));
    rig.drawer->setVertLinesEnabled(true);
    QSignalSpy told(rig.panel.get(), &Panel::signal_oldMixColorChanged);

    QCOMPARE(pictures(rig, 3), QStringLiteral("#090807 #090807 #090807"));
    QCOMPARE(told.count(), 0);
}

void TestScrGridCtrlDialogMerged::families_standOnTheOldColour()
{
    GridRig rig(selecting({QStringLiteral("Blue"), QStringLiteral("V")}));
    rig.drawer->slot_setBgColor(QColor(0, 40, 0));
    rig.click(rig.merged());
    rig.tick(2);

    QCOMPARE(rig.shown().families, QStringLiteral("V"));
    QCOMPARE(rig.shown().background, qRgb(0, 40, 0));
    QCOMPARE(rig.shown().line, qRgb(255, 0, 0));
}

void TestScrGridCtrlDialogMerged::colours_areDimmedByTheGreySlider()
{
    GridRig rig(selecting({QStringLiteral("White")}));
    rig.greySlider()->setValue(30);
    rig.click(rig.merged());
    QSignalSpy told(rig.panel.get(), &Panel::signal_oldMixColorChanged);

    QCOMPARE(nextPicture(rig), QStringLiteral("#1e1e1e"));
    QCOMPARE(told.first().first().value<QColor>(), QColor(Qt::white));
}

void TestScrGridCtrlDialogMerged::start_releasesTheFamiliesAndEnablesTheControls()
{
    GridRig rig({{QStringLiteral("gridSpeed"), 100}});
    rig.clickFamilies("HR");
    rig.panel->slot_stopPauseStatus();
    rig.panel->getDrawer();
    rig.click(rig.merged());

    QCOMPARE(rig.checked(), QString());
    QCOMPARE(rig.pressed(), QString());
    QCOMPARE(rig.shown().families, QString());
    QCOMPARE(rig.mode(), QStringLiteral("merged"));
    QCOMPARE(rig.pause()->text(), QStringLiteral("暂停"));
    QCOMPARE(rig.interval(), 160);
    QCOMPARE(rig.runControls(), 1);
    QVERIFY(rig.panel->getScroll());
}

void TestScrGridCtrlDialogMerged::start_goesOnWhereTheTestStopped()
{
    GridRig rig(selecting({QStringLiteral("Red"), QStringLiteral("H"), QStringLiteral("V")}));
    rig.click(rig.merged());
    QCOMPARE(pictures(rig, 2), QStringLiteral("#ff0000 H"));
    rig.clickFamilies("L");
    rig.tick(3);
    rig.click(rig.merged());
    QCOMPARE(pictures(rig, 2), QStringLiteral("V #ff0000"));
}

void TestScrGridCtrlDialogMerged::startOfTheAgingTest_endsTheLinesThatAreShown()
{
    GridRig rig(selecting({QStringLiteral("SL")}));
    rig.click(rig.colorButton(1)); // the lines would not be seen in the colour of the background
    rig.click(rig.merged());
    QCOMPARE(nextPicture(rig), QStringLiteral("L"));
    rig.click(rig.aging());
    QCOMPARE(nextPicture(rig), QStringLiteral("#ff0000"));
}

void TestScrGridCtrlDialogMerged::bothModes_runInOneTickAgingFirst()
{
    QVariantMap values = selecting({QStringLiteral("Yellow"), QStringLiteral("V")});
    values[QStringLiteral("gridIsOldTest")] = true;
    values[QStringLiteral("gridIsMix")] = true;
    values[QStringLiteral("gridIsScroll")] = true;
    values[QStringLiteral("gridSpeed")] = 100;
    GridRig rig(values);
    QCOMPARE(rig.mode(), QStringLiteral("aging merged"));
    QSignalSpy told(rig.panel.get(), &Panel::signal_oldMixColorChanged);

    QCOMPARE(pictures(rig, 3), QStringLiteral("#ffff00 V #ffff00"));
    QStringList names;
    for (const QList<QVariant> &emission : told)
        names << emission.first().value<QColor>().name();
    QCOMPARE(names.join(QLatin1Char(' ')),
             QStringLiteral("#ff0000 #ffff00 #00ff00 #0000ff #ffff00"));
}

void TestScrGridCtrlDialogMerged::lineCount_isThatOfTheSelectedFamilies_data()
{
    QTest::addColumn<QStringList>("selected");
    QTest::addColumn<int>("expected");
    QTest::newRow("none") << QStringList{QStringLiteral("Red")} << 0;
    QTest::newRow("one") << QStringList{QStringLiteral("SL")} << 1;
    QTest::newRow("three") << QStringList{QStringLiteral("SL"), QStringLiteral("H"),
                                          QStringLiteral("SR")}
                           << 3;
}

void TestScrGridCtrlDialogMerged::lineCount_isThatOfTheSelectedFamilies()
{
    QFETCH(const QStringList, selected);
    QFETCH(const int, expected);
    const GridRig rig(selecting(selected));

    QCOMPARE(rig.panel->getSelectedHVLRCount(), expected);
    QCOMPARE(rig.panel->getSelectedHVLRCount(), expected);
}

void TestScrGridCtrlDialogMerged::mixSettings_openOnceAndModal()
{
    const GridRig rig;
    QVERIFY(rig.mixSettings()->isEnabled());
    inMixSettings(rig, [](MixSetting &dialog) { QVERIFY(dialog.isModal()); });
    QVERIFY(!rig.panel->findChild<MixSetting *>());
}

void TestScrGridCtrlDialogMerged::mixSettings_confirmedChangeTheTestAndTheFile()
{
    GridRig rig;
    inMixSettings(rig, [](MixSetting &dialog) {
        dialog.slot_pushButtonClear();
        dialog.findChild<QCheckBox *>(QStringLiteral("checkBoxGreen"))->setChecked(true);
        dialog.findChild<QCheckBox *>(QStringLiteral("checkBoxSR"))->setChecked(true);
        dialog.slot_pushButtonOK();
    });
    rig.click(rig.merged());
    QCOMPARE(pictures(rig, 3), QStringLiteral("#00ff00 R #00ff00"));

    rig.restart();
    rig.click(rig.merged());
    QCOMPARE(pictures(rig, 3), QStringLiteral("#00ff00 R #00ff00"));
}

void TestScrGridCtrlDialogMerged::mixSettings_closedChangeTheTestButNotTheFile()
{
    GridRig rig(selecting({QStringLiteral("Red"), QStringLiteral("Blue")}));
    rig.click(rig.merged());
    QCOMPARE(pictures(rig, 3), QStringLiteral("#ff0000 #0000ff #ff0000"));
    inMixSettings(rig, [](MixSetting &dialog) {
        dialog.findChild<QCheckBox *>(QStringLiteral("checkBoxRed"))->setChecked(false);
        dialog.close();
    });
    QCOMPARE(rig.settings->value(QStringLiteral("/setting/checkBoxRed")).toBool(), false);
    rig.tick(); // the step that the shorter cycle ends with
    QCOMPARE(pictures(rig, 3), QStringLiteral("#0000ff #0000ff #0000ff"));

    rig.restart();
    rig.click(rig.merged());
    QCOMPARE(pictures(rig, 3), QStringLiteral("#ff0000 #0000ff #ff0000"));
}

void TestScrGridCtrlDialogMerged::mixSettings_withOneFamilyShowItEveryTick()
{
    GridRig rig;
    inMixSettings(rig, [](MixSetting &dialog) {
        dialog.slot_pushButtonClear();
        dialog.findChild<QCheckBox *>(QStringLiteral("checkBoxH"))->setChecked(true);
        dialog.slot_pushButtonOK();
    });
    rig.click(rig.merged());
    QSignalSpy told(rig.panel.get(), &Panel::signal_oldMixColorChanged);

    QCOMPARE(pictures(rig, 4), QStringLiteral("H H H H"));
    QCOMPARE(told.count(), 0);
}

void TestScrGridCtrlDialogMerged::mixSettings_inTheMiddleOfACycleGoOn()
{
    GridRig rig(selecting({QStringLiteral("Red"), QStringLiteral("H"), QStringLiteral("V")}));
    rig.click(rig.merged());
    QCOMPARE(pictures(rig, 2), QStringLiteral("#ff0000 H"));
    inMixSettings(rig, [](MixSetting &dialog) {
        dialog.findChild<QCheckBox *>(QStringLiteral("checkBoxSL"))->setChecked(true);
    });

    // All families are to be shown again, while the cycle goes on from its third step.
    QCOMPARE(pictures(rig, 3), QStringLiteral("H V #ff0000"));
}

QTEST_MAIN(TestScrGridCtrlDialogMerged)
#include "tst_scrgridctrldialog_merged.moc"
