#include "colordialog.h"
#include "framelessmessagebox.h"
#include "mixrig.h"
#include "rows.h"

#include <QLabel>

namespace {

using UX::Widgets::FramelessMessageBox;

QList<FramelessMessageBox *> warnings(const MixRig &rig)
{
    return rig.dialog.findChildren<FramelessMessageBox *>();
}

// Notes whether a window has been raised.
struct RaiseWatch : public QObject
{
    explicit RaiseWatch(QWidget *window) { window->installEventFilter(this); }
    bool eventFilter(QObject * /*window*/, QEvent *event) override
    {
        raised = raised || event->type() == QEvent::ZOrderChange;
        return false;
    }
    bool raised = false;
};

} // namespace

// What the dialog sets and stores.
class TestMixSetting : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { ColorDialog::setAnswer({}); }

    void boxes_showTheStoredSelectionInverted();
    void getters_areTheBoxes();
    void allAndClear_setEveryBox();
    void confirm_storesTheSelectionAndAccepts();
    void confirm_ofAnEmptySelectionWarnsAndStoresNothing();
    void warning_isOneBoxThatDoesNotBlockAndComesForwardAgain();
    void closeButton_storesNothing();
    void withoutSettings_theDialogWorks();
    void lines_changeAtOnceWithinTheirLimits();
    void spinBoxes_startWithTheDrawersValuesUpTo99();
    void pickedColour_isTheBackgroundAndTheOldColour_data();
    void pickedColour_isTheBackgroundAndTheOldColour();
};

void TestMixSetting::boxes_showTheStoredSelectionInverted()
{
    QCOMPARE(MixRig().checked(), boxNames());
    MixRig rig({{QStringLiteral("checkBoxRed"), true},
                {QStringLiteral("checkBoxSL"), true},
                {QStringLiteral("checkBoxV"), false}});
    QStringList expected = boxNames();
    expected.removeOne(QStringLiteral("checkBoxRed"));
    expected.removeOne(QStringLiteral("checkBoxSL"));
    QCOMPARE(rig.checked(), expected);

    rig.button(all)->click();
    rig.dialog.initSelected();
    QCOMPARE(rig.checked(), expected);
}

void TestMixSetting::getters_areTheBoxes()
{
    MixRig rig;
    const MixSetting &d = rig.dialog;
    const auto got = [&d] {
        const bool values[] = {d.getRedChecked(),    d.getGreenChecked(),  d.getBlueChecked(),
                               d.getWhiteChecked(),  d.getYellowChecked(), d.getCyanChecked(),
                               d.getPurpleChecked(), d.getVChecked(),      d.getHChecked(),
                               d.getSLChecked(),     d.getSRChecked()};
        QStringList names;
        for (int i = 0; i < 11; ++i) {
            if (values[i])
                names << boxNames().at(i);
        }
        return names;
    };
    QCOMPARE(got(), boxNames());
    QVERIFY(d.isSelectedCheckBox());
    for (const QString &name : boxNames()) {
        rig.button(clear)->click();
        QCOMPARE(got(), QStringList());
        QVERIFY(!d.isSelectedCheckBox());
        rig.box(name)->click();
        QCOMPARE(got(), QStringList(name));
        QVERIFY(d.isSelectedCheckBox());
    }
}

void TestMixSetting::allAndClear_setEveryBox()
{
    MixRig rig({{QStringLiteral("checkBoxGreen"), true}});
    rig.button(all)->click();
    QCOMPARE(rig.checked(), boxNames());
    rig.button(clear)->click();
    QCOMPARE(rig.checked(), QStringList());
    QVERIFY(rig.settings.stored().value(QStringLiteral("checkBoxGreen")).toBool());
}

void TestMixSetting::confirm_storesTheSelectionAndAccepts()
{
    MixRig rig;
    rig.dialog.show();
    rig.button(clear)->click();
    rig.box(QStringLiteral("checkBoxH"))->click();
    rig.button(confirm)->click();

    QCOMPARE(rig.dialog.result(), int(QDialog::Accepted));
    QVERIFY(!rig.dialog.isVisible());
    QCOMPARE(rig.settings.stored().size(), 11);
    QCOMPARE(MixRig(rig.settings.stored()).checked(), QStringList(QStringLiteral("checkBoxH")));
}

void TestMixSetting::confirm_ofAnEmptySelectionWarnsAndStoresNothing()
{
    MixRig rig;
    rig.dialog.show();
    rig.button(clear)->click();
    rig.button(confirm)->click();

    QVERIFY(rig.dialog.isVisible());
    QVERIFY(rig.settings.stored().isEmpty());
    QCOMPARE(warnings(rig).size(), 1);
    const FramelessMessageBox *box = warnings(rig).constFirst();
    QVERIFY(box->isVisible());
    QCOMPARE(box->width(), 206);
    QVERIFY(box->height() >= 131);
    QCOMPARE(box->windowTitle(), QStringLiteral("提示"));
    QCOMPARE(box->findChild<QLabel *>(QStringLiteral("messageText"))->text(),
             QStringLiteral("混测设置：请至少选中一项！"));
    const QLabel *icon = box->findChild<QLabel *>(QStringLiteral("messageIcon"));
    QVERIFY(icon->pixmap() && !icon->pixmap()->isNull());
    const QPushButton *ok = box->button(QMessageBox::Ok);
    QCOMPARE(ok->text(), confirm);
    QCOMPARE(ok->objectName(), QStringLiteral("DialogPushBtn"));
    QVERIFY(ok->minimumWidth() >= 70);
    QCOMPARE(ok->styleSheet(), rig.dialog.styleSheet());
    QCOMPARE(ok->sizeHint().height(), rig.button(clear)->sizeHint().height());
}

void TestMixSetting::warning_isOneBoxThatDoesNotBlockAndComesForwardAgain()
{
    MixRig rig;
    rig.dialog.setModal(true);
    rig.show();
    rig.button(clear)->click();
    rig.button(confirm)->click();
    FramelessMessageBox *box = warnings(rig).constFirst();
    QVERIFY(!box->isModal());
    QTRY_VERIFY(box->isActiveWindow());
    const RaiseWatch watch(box);
    rig.dialog.activateWindow();
    QTRY_VERIFY(rig.dialog.isActiveWindow());
    QVERIFY(!watch.raised);
    rig.button(confirm)->click();
    QVERIFY(watch.raised);
    QTRY_VERIFY(box->isActiveWindow());
    QCOMPARE(warnings(rig).size(), 1);

    box->button(QMessageBox::Ok)->click();
    QTRY_VERIFY(warnings(rig).isEmpty());
    QVERIFY(rig.dialog.isVisible());
    rig.dialog.slot_pushButtonOK();
    QCOMPARE(warnings(rig).size(), 1);
    rig.button(all)->click();
    rig.dialog.slot_pushButtonOK();
    QVERIFY(!rig.dialog.isVisible());
}

void TestMixSetting::closeButton_storesNothing()
{
    MixRig rig;
    rig.dialog.show();
    rig.box(QStringLiteral("checkBoxRed"))->click();
    rig.closeButton()->click();

    QVERIFY(!rig.dialog.isVisible());
    QCOMPARE(rig.dialog.result(), int(QDialog::Rejected));
    QVERIFY(rig.settings.stored().isEmpty());
    QVERIFY(!rig.dialog.selection().contains(MixSelection::Red));
}

void TestMixSetting::withoutSettings_theDialogWorks()
{
    QWidget testWindow;
    GridDrawer drawer(&testWindow);
    MixSetting dialog(&drawer, nullptr, nullptr);
    QVERIFY(dialog.getSRChecked());
    dialog.slot_pushButtonOK();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void TestMixSetting::lines_changeAtOnceWithinTheirLimits()
{
    MixRig rig;
    const QList<std::pair<int, int>> widths = {{5, 5}, {6, 5}, {0, 1}};
    for (const auto &[entered, expected] : widths) {
        rig.drawer.active = false;
        rig.pix()->setValue(entered);
        QCOMPARE(rig.drawer.getPix(), expected);
        QCOMPARE(rig.drawer.active, entered != 6); // which is no change
    }
    const QList<std::pair<int, int>> distances = {{33, 33}, {2, 3}, {701, 700}};
    for (const auto &[entered, expected] : distances) {
        rig.drawer.active = false;
        rig.distance()->setValue(entered);
        QCOMPARE(rig.drawer.getLineDistance(), expected);
        QVERIFY(rig.drawer.active);
    }
    QVERIFY(rig.settings.stored().isEmpty());
}

void TestMixSetting::spinBoxes_startWithTheDrawersValuesUpTo99()
{
    MixRig rig;
    rig.drawer.slot_changePix(4);
    for (const auto &[kept, shown] : {std::pair(98, 98), std::pair(300, 99)}) {
        rig.drawer.slot_changeDistance(kept);
        rig.drawer.active = false;
        const MixSetting again(&rig.drawer, rig.settings.get(), nullptr);
        QCOMPARE(again.findChild<QSpinBox *>(QStringLiteral("spinBoxPix"))->value(), 4);
        auto *distance = again.findChild<QSpinBox *>(QStringLiteral("spinBoxDistance"));
        QCOMPARE(distance->value(), shown);
        QCOMPARE(rig.drawer.getLineDistance(), kept);
        QVERIFY(!rig.drawer.active);
        distance->stepUp();
        QCOMPARE(rig.drawer.getLineDistance(), shown + 1);
    }
}

void TestMixSetting::pickedColour_isTheBackgroundAndTheOldColour_data()
{
    const Table<QColor, QRgb, const char *> row("color", "shown", "style");
    row("a colour", {1, 2, 0xab}, qRgb(1, 2, 0xab), "background:#0102ab");
    // A cancelled dialog's, and what the painter makes of it.
    row("none", QColor(), qRgb(0, 0, 0), "background:#000000");
}

void TestMixSetting::pickedColour_isTheBackgroundAndTheOldColour()
{
    QFETCH(const QColor, color);
    MixRig rig;
    QCOMPARE(rig.color()->styleSheet(), QStringLiteral("background-color:rgb(0,0,0)"));
    rig.drawer.slot_changeBgColor(Qt::red);
    rig.drawer.active = false;
    QList<QColor> asked;
    ColorDialog::setAnswer([&](const QColor &initial) {
        asked << initial;
        return color;
    });
    rig.show();
    QTest::mouseClick(rig.color(), Qt::LeftButton);
    QTest::keyClick(rig.color(), Qt::Key_Space);

    QCOMPARE(asked, (QList<QColor>{Qt::green, Qt::green}));
    QCOMPARE(rig.drawer.getOldColor(), color);
    QVERIFY(rig.drawer.active);
    rig.testWindow.setDrawer(&rig.drawer);
    QTEST(rig.testWindow.painted().pixel(0, 0), "shown");
    QTEST(rig.color()->styleSheet(), "style");
    QVERIFY(rig.settings.stored().isEmpty());
}

QTEST_MAIN(TestMixSetting)
#include "tst_mixsetting.moc"
