#include "dictionary.h"
#include "mixrig.h"
#include "titlebar.h"

#include <QLabel>
#include <QToolButton>
#include <QtTest>

namespace {

using UX::Widgets::FramelessMessageBox;

QString all()
{
    return QStringLiteral("全选");
}

QString clear()
{
    return QStringLiteral("清空");
}

QString confirm()
{
    return QStringLiteral("确定");
}

} // namespace

class TestMixSetting : public QObject
{
    Q_OBJECT

private slots:
    void dialog_hasItsSizeTitleAndButtons();
    void controls_areOfTheirSizes();
    void dialog_fitsItsContents();
    void controls_followOneAnotherAsTheyStand();
    void emptySettings_checkAllElevenBoxes();
    void storedSelection_isShownInverted();
    void getters_areTheBoxes_data();
    void getters_areTheBoxes();
    void allAndClear_setEveryBox();

    void confirm_storesTheElevenKeysAndAccepts();
    void confirm_ofAnEmptySelectionWarnsAndStoresNothing();
    void warning_isOneBoxThatDoesNotBlock();
    void closeButton_storesNothing();
    void withoutSettings_theDialogWorks();

    void language_isAppliedToEveryText();
    void controls_haveAccessibleNames();
};

void TestMixSetting::dialog_hasItsSizeTitleAndButtons()
{
    MixRig rig;
    QCOMPARE(rig.dialog.minimumSize(), QSize(360, 424));
    QCOMPARE(rig.dialog.maximumSize(), QSize(360, 424));
    QCOMPARE(rig.dialog.windowTitle(), QStringLiteral("高级设置"));
    QVERIFY(rig.dialog.styleSheet().contains(QStringLiteral("DialogPushBtn")));
    QCOMPARE(MixSetting::m_defaultBackgroundColor, QColor(48, 50, 56));

    const auto *bar = rig.dialog.findChild<UX::Widgets::TitleBar *>();
    QVERIFY(bar);
    QVERIFY(bar->titleButton(0)->isHidden());
    QVERIFY(!bar->titleButton(4)->isHidden());
    QCOMPARE(bar->titleButton(4)->toolTip(), QStringLiteral("关闭"));
    QVERIFY(!qobject_cast<QToolButton *>(bar->titleButton(4))->icon().isNull());

    int shown = 0;
    const auto buttons = rig.dialog.findChildren<QPushButton *>();
    for (const QPushButton *button : buttons)
        shown += button->isHidden() ? 0 : 1;
    QCOMPARE(shown, 3);
    QCOMPARE(rig.dialog.findChildren<QLabel *>(QStringLiteral("ContentSplitLabel")).size(), 1);
}

void TestMixSetting::controls_areOfTheirSizes()
{
    MixRig rig;
    QCOMPARE(rig.dialog.objectName(), QStringLiteral("MixSetting"));
    const QSize controlSize(62, 20);
    QCOMPARE(rig.colorLabel()->size(), controlSize);
    for (const char *name : {"spinBoxPix", "spinBoxDistance"}) {
        const QSpinBox *spinBox = rig.spinBox(name);
        QCOMPARE(spinBox->minimumSize(), controlSize);
        QCOMPARE(spinBox->maximumSize(), controlSize);
        QCOMPARE(spinBox->contextMenuPolicy(), Qt::NoContextMenu);
    }
    for (const QString &name : boxNames())
        QCOMPARE(rig.box(name)->maximumWidth(), 78);
    for (const char *text : {"全选", "清空", "确定"}) {
        QCOMPARE(rig.button(QString::fromUtf8(text))->maximumWidth(), 90);
        QVERIFY(!rig.button(QString::fromUtf8(text))->autoDefault());
    }
    QVERIFY(rig.button(QStringLiteral("确定"))->isDefault());
    int captions = 0;
    const auto labels = rig.dialog.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->buddy()) {
            QCOMPARE(label->maximumWidth(), 140);
            ++captions;
        }
    }
    QCOMPARE(captions, 3);
}

void TestMixSetting::dialog_fitsItsContents()
{
    MixRig rig;
    rig.dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&rig.dialog));
    QCOMPARE(rig.dialog.size(), QSize(360, 424));
    const auto widgets = rig.dialog.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!widget->isVisible() || widget->parentWidget()->inherits("QAbstractSpinBox"))
            continue;
        const QByteArray name =
            widget->metaObject()->className() + QByteArray(" ") + widget->objectName().toUtf8();
        const QRect place(widget->mapTo(&rig.dialog, QPoint()), widget->size());
        QVERIFY2(rig.dialog.rect().contains(place), name.constData());
        if (widget->inherits("QAbstractButton") || widget->inherits("QAbstractSpinBox"))
            QVERIFY2(widget->width() >= widget->minimumSizeHint().width() - 20, name.constData());
    }
    for (const QString &name : boxNames())
        QCOMPARE(rig.box(name)->toolTip(), QString()); // the text is shown whole
}

void TestMixSetting::controls_followOneAnotherAsTheyStand()
{
    MixRig rig;
    QStringList order;
    QWidget *widget = rig.colorLabel();
    do {
        if (widget->focusPolicy() & Qt::TabFocus && !widget->focusProxy() && !widget->isHidden()
            && !widget->parentWidget()->isHidden())
            order << (widget->objectName() == QStringLiteral("DialogPushBtn")
                          ? static_cast<QPushButton *>(widget)->text()
                          : widget->objectName());
        widget = widget->nextInFocusChain();
    } while (widget != rig.colorLabel());

    QCOMPARE(order, QStringList({QStringLiteral("toolButtonColorPick"),
                                 QStringLiteral("spinBoxPix"), QStringLiteral("spinBoxDistance")})
                        + boxNames() + QStringList({all(), clear(), confirm()}));
}

void TestMixSetting::emptySettings_checkAllElevenBoxes()
{
    MixRig rig;
    QCOMPARE(rig.checked(), boxNames());
    QVERIFY(rig.dialog.isSelectedCheckBox());
    QVERIFY(rig.settings.stored().isEmpty());
}

void TestMixSetting::storedSelection_isShownInverted()
{
    MixRig rig({{QStringLiteral("checkBoxRed"), true},
                {QStringLiteral("checkBoxSL"), true},
                {QStringLiteral("checkBoxV"), false}});
    QStringList expected = boxNames();
    expected.removeOne(QStringLiteral("checkBoxRed"));
    expected.removeOne(QStringLiteral("checkBoxSL"));
    QCOMPARE(rig.checked(), expected);

    rig.click(all());
    rig.dialog.initSelected();
    QCOMPARE(rig.checked(), expected);
}

void TestMixSetting::getters_areTheBoxes_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : boxNames())
        QTest::newRow(qPrintable(name)) << name;
}

void TestMixSetting::getters_areTheBoxes()
{
    QFETCH(const QString, name);
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
    rig.click(clear());
    QCOMPARE(got(), QStringList());
    QVERIFY(!d.isSelectedCheckBox());
    rig.box(name)->click();
    QCOMPARE(got(), QStringList(name));
    QVERIFY(d.isSelectedCheckBox());
}

void TestMixSetting::allAndClear_setEveryBox()
{
    MixRig rig({{QStringLiteral("checkBoxGreen"), true}});
    rig.click(all());
    QCOMPARE(rig.checked(), boxNames());
    rig.click(clear());
    QCOMPARE(rig.checked(), QStringList());
    rig.click(all());
    QCOMPARE(rig.checked(), boxNames());
    QVERIFY(rig.settings.stored().value(QStringLiteral("checkBoxGreen")).toBool());
}

void TestMixSetting::confirm_storesTheElevenKeysAndAccepts()
{
    MixRig rig;
    rig.dialog.show();
    rig.click(clear());
    rig.box(QStringLiteral("checkBoxH"))->click();
    rig.click(confirm());

    QCOMPARE(rig.dialog.result(), int(QDialog::Accepted));
    QVERIFY(!rig.dialog.isVisible());
    const QVariantMap stored = rig.settings.stored();
    QCOMPARE(stored.size(), 11);
    for (const QString &name : boxNames())
        QCOMPARE(stored.value(name).toString(), name == QStringLiteral("checkBoxH")
                                                    ? QStringLiteral("false")
                                                    : QStringLiteral("true"));
}

void TestMixSetting::confirm_ofAnEmptySelectionWarnsAndStoresNothing()
{
    MixRig rig;
    rig.dialog.show();
    rig.click(clear());
    rig.click(confirm());

    QVERIFY(rig.dialog.isVisible());
    QVERIFY(rig.settings.stored().isEmpty());
    QCOMPARE(rig.warnings().size(), 1);
    const FramelessMessageBox *box = rig.warnings().constFirst();
    QVERIFY(box->isVisible());
    QCOMPARE(box->width(), 206);
    QVERIFY(box->height() >= 131);
    QCOMPARE(box->windowTitle(), QStringLiteral("提示"));
    QCOMPARE(box->findChild<QLabel *>(QStringLiteral("messageText"))->text(),
             QStringLiteral("混测设置：请至少选中一项！"));
    const QLabel *icon = box->findChild<QLabel *>(QStringLiteral("messageIcon"));
    QVERIFY(icon->pixmap() && !icon->pixmap()->isNull());
    const QPushButton *ok = box->button(QMessageBox::Ok);
    QCOMPARE(ok->text(), confirm());
    QCOMPARE(ok->objectName(), QStringLiteral("DialogPushBtn"));
    QVERIFY(ok->minimumWidth() >= 70);
    QCOMPARE(ok->styleSheet(), rig.dialog.styleSheet());
}

void TestMixSetting::warning_isOneBoxThatDoesNotBlock()
{
    MixRig rig;
    rig.dialog.setModal(true);
    rig.dialog.show();
    rig.click(clear());
    rig.click(confirm());
    rig.click(confirm());
    QCOMPARE(rig.warnings().size(), 1);
    QVERIFY(!rig.warnings().constFirst()->isModal());

    rig.warnings().constFirst()->button(QMessageBox::Ok)->click();
    QTRY_VERIFY(rig.warnings().isEmpty());
    QVERIFY(rig.dialog.isVisible());
    rig.click(confirm());
    QCOMPARE(rig.warnings().size(), 1);
    rig.click(all());
    rig.click(confirm());
    QVERIFY(!rig.dialog.isVisible());
}

void TestMixSetting::closeButton_storesNothing()
{
    MixRig rig;
    rig.dialog.show();
    rig.box(QStringLiteral("checkBoxRed"))->click();
    auto *bar = rig.dialog.findChild<UX::Widgets::TitleBar *>();
    qobject_cast<QToolButton *>(bar->titleButton(4))->click();

    QVERIFY(!rig.dialog.isVisible());
    QCOMPARE(rig.dialog.result(), int(QDialog::Rejected));
    QVERIFY(rig.settings.stored().isEmpty());
    QVERIFY(!rig.dialog.getRedChecked());
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

void TestMixSetting::language_isAppliedToEveryText()
{
    MixRig rig;
    const auto texts = [&rig] {
        QStringList found{rig.dialog.windowTitle()};
        const auto labels = rig.dialog.findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (!label->text().isEmpty())
                found << label->text();
        }
        for (const QString &name : boxNames())
            found << rig.box(name)->text();
        const auto buttons =
            rig.dialog.findChildren<QPushButton *>(QStringLiteral("DialogPushBtn"));
        for (const QPushButton *button : buttons) {
            if (!button->isHidden())
                found << button->text();
        }
        found.removeDuplicates();
        found.sort();
        return found;
    };
    QStringList chinese =
        QStringLiteral(
            "高级设置 网格设置 背景色 线条宽度 线条间距 混测设置 红色 绿色 蓝色 白色 黄色 "
            "青色 紫色 竖线 横线 左斜 右斜 全选 清空 确定")
            .split(QLatin1Char(' '));
    chinese.sort();
    QCOMPARE(texts(), chinese);
    QHash<QString, QString> words;
    QStringList translated;
    for (int i = 0; i < chinese.size(); ++i) {
        words[chinese.at(i)] = QStringLiteral("w%1").arg(i);
        translated << words[chinese.at(i)];
    }
    words[QStringLiteral("关闭")] = QStringLiteral("Close");
    translated.sort();
    const Dictionary dictionary(words);
    rig.dialog.updateLanguage();
    QCoreApplication::sendPostedEvents(); // the frame hears of the language by itself
    QCOMPARE(texts(), translated);
    QCOMPARE(rig.dialog.findChild<UX::Widgets::TitleBar *>()->titleButton(4)->toolTip(),
             QStringLiteral("Close"));
}

void TestMixSetting::controls_haveAccessibleNames()
{
    MixRig rig;
    QCOMPARE(rig.colorLabel()->accessibleName(), QStringLiteral("背景色"));
    QCOMPARE(rig.spinBox("spinBoxPix")->accessibleName(), QStringLiteral("线条宽度"));
    QCOMPARE(rig.spinBox("spinBoxDistance")->accessibleName(), QStringLiteral("线条间距"));
}

QTEST_MAIN(TestMixSetting)
#include "tst_mixsetting.moc"
