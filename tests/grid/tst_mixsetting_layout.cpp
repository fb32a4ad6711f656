#include "dictionary.h"
#include "mixrig.h"

#include <QLabel>

#include <algorithm>

using UX::Widgets::TitleBar;

// The dialog's look and its texts.
class TestMixSettingLayout : public QObject
{
    Q_OBJECT

private slots:
    void dialog_hasItsSizeTitleAndButtons();
    void controls_areOfTheirSizes();
    void controls_standInTheirPlaces();
    void controls_followOneAnotherAsTheyStand();
    void language_isAppliedToEveryText();
};

void TestMixSettingLayout::dialog_hasItsSizeTitleAndButtons()
{
    MixRig rig;
    QCOMPARE(rig.dialog.objectName(), QStringLiteral("MixSetting"));
    QCOMPARE(rig.dialog.minimumSize(), QSize(360, 424));
    QCOMPARE(rig.dialog.maximumSize(), QSize(360, 424));
    QCOMPARE(rig.dialog.windowTitle(), QStringLiteral("高级设置"));
    QVERIFY(rig.dialog.styleSheet().contains(QStringLiteral("DialogPushBtn")));
    QCOMPARE(MixSetting::m_defaultBackgroundColor, QColor(48, 50, 56));

    QVERIFY(rig.dialog.findChild<TitleBar *>()->titleButton(0)->isHidden());
    QVERIFY(!rig.closeButton()->isHidden());
    QCOMPARE(rig.closeButton()->toolTip(), QStringLiteral("关闭"));
    QVERIFY(!rig.closeButton()->icon().isNull());

    const auto buttons = rig.dialog.findChildren<QPushButton *>();
    QCOMPARE(std::count_if(buttons.cbegin(), buttons.cend(),
                           [](const QPushButton *button) { return !button->isHidden(); }),
             3);
    QCOMPARE(rig.dialog.findChildren<QLabel *>(QStringLiteral("ContentSplitLabel")).size(), 1);
}

void TestMixSettingLayout::controls_areOfTheirSizes()
{
    MixRig rig;
    QCOMPARE(rig.color()->size(), QSize(62, 20));
    for (const QSpinBox *spinBox : {rig.pix(), rig.distance()}) {
        QCOMPARE(spinBox->minimumSize(), QSize(62, 20));
        QCOMPARE(spinBox->maximumSize(), QSize(62, 20));
        QCOMPARE(spinBox->contextMenuPolicy(), Qt::NoContextMenu);
    }
    for (const QString &name : boxNames())
        QCOMPARE(rig.box(name)->maximumWidth(), 78);
    for (const QString &text : {all, clear, confirm}) {
        QCOMPARE(rig.button(text)->objectName(), QStringLiteral("DialogPushBtn"));
        QCOMPARE(rig.button(text)->maximumWidth(), 90);
        QVERIFY(!rig.button(text)->autoDefault());
    }
    QVERIFY(rig.button(confirm)->isDefault());
    QVERIFY(rig.dialog.focusWidget() == rig.button(confirm));
    for (const char *text : {"背景色", "线条宽度", "线条间距"})
        QCOMPARE(rig.withText<QLabel>(QString::fromUtf8(text))->maximumWidth(), 140);
}

void TestMixSettingLayout::controls_standInTheirPlaces()
{
    MixRig rig;
    rig.show();
    const auto label = [&rig](const char *text) {
        return rig.place(rig.withText<QLabel>(QString::fromUtf8(text)));
    };
    const auto above = [](const QRect &upper, const QRect &lower) {
        return lower.top() - upper.bottom() - 1; // the pixels in between
    };
    QList<QRect> rules;
    const auto labels = rig.dialog.findChildren<QLabel *>();
    for (const QLabel *each : labels) {
        if (each->property("class") == QStringLiteral("SplitLine"))
            rules << rig.place(each);
    }
    QCOMPARE(rules.size(), 3);
    const QRect content = rig.place(rig.color()->parentWidget());
    QCOMPARE(label("网格设置").topLeft(), content.topLeft() + QPoint(24, 10));
    QCOMPARE(above(label("网格设置"), rules.at(0)), 12);
    QCOMPARE(above(label("混测设置"), rules.at(1)), 12);
    QCOMPARE(content.bottom() - rig.place(rig.button(confirm)).bottom(), 16);

    QCOMPARE(above(label("背景色"), label("线条宽度")), 10);
    QVERIFY(rig.place(rig.color()).left() - label("背景色").right() < 20);
    QVERIFY(above(label("线条间距"), label("混测设置")) > 12); // the room that is left

    const auto box = [&rig](int index) { return rig.place(rig.box(boxNames().at(index))); };
    QCOMPARE(box(1).left(), box(0).right() + 1);
    QCOMPARE(above(box(0), box(4)), 10);
    QCOMPARE(box(7).left(), box(0).left()); // the families begin a row
    QCOMPARE(above(box(4), box(7)), 10);

    const QRect left = rig.place(rig.button(all));
    const QRect right = rig.place(rig.button(clear));
    QCOMPARE(right.left() - left.right() - 1, 20);
    QVERIFY(qAbs(left.left() - content.left() - (content.right() - right.right())) <= 1);
    QVERIFY(above(left, rules.at(2)) > 12);
}

void TestMixSettingLayout::controls_followOneAnotherAsTheyStand()
{
    MixRig rig;
    QStringList order;
    QWidget *widget = rig.color();
    do {
        if (widget->focusPolicy() & Qt::TabFocus && !widget->focusProxy() && !widget->isHidden()
            && !widget->parentWidget()->isHidden())
            order << (widget->objectName() == QStringLiteral("DialogPushBtn")
                          ? static_cast<QPushButton *>(widget)->text()
                          : widget->objectName());
        widget = widget->nextInFocusChain();
    } while (widget != rig.color());

    QCOMPARE(order, QStringList({QStringLiteral("toolButtonColorPick"),
                                 QStringLiteral("spinBoxPix"), QStringLiteral("spinBoxDistance")})
                        + boxNames() + QStringList({all, clear, confirm}));
}

void TestMixSettingLayout::language_isAppliedToEveryText()
{
    MixRig rig;
    const auto texts = [&rig] {
        QStringList found{rig.dialog.windowTitle()};
        const auto labels = rig.dialog.findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (!label->text().isEmpty())
                found << label->text();
        }
        const auto buttons = rig.dialog.findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons) {
            if (!button->isHidden() && !button->text().isEmpty())
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
    QHash<QString, QString> words{{QStringLiteral("关闭"), QStringLiteral("Close")}};
    QStringList translated;
    for (const QString &text : qAsConst(chinese)) {
        translated << QStringLiteral("w%1").arg(translated.size());
        words[text] = translated.constLast();
    }
    const Dictionary dictionary(words);
    translated.sort();
    rig.dialog.updateLanguage();
    QCoreApplication::sendPostedEvents(); // the frame hears of the language by itself
    QCOMPARE(texts(), translated);
    QCOMPARE(rig.closeButton()->toolTip(), QStringLiteral("Close"));
    QCOMPARE(rig.color()->accessibleName(), words.value(QStringLiteral("背景色")));
    QCOMPARE(rig.pix()->accessibleName(), words.value(QStringLiteral("线条宽度")));
    QCOMPARE(rig.distance()->accessibleName(), words.value(QStringLiteral("线条间距")));
}

QTEST_MAIN(TestMixSettingLayout)
#include "tst_mixsetting_layout.moc"
