#include "advancedsetup.h"
#include "cabinetrig.h"
#include "dictionary.h"
#include "rows.h"
#include "scrgridrig.h"
#include "titlebar.h"

#include <QComboBox>
#include <QLabel>
#include <QToolButton>
#include <QtTest>

#include <limits>

namespace {

const char *const boxNames[] = {"boxFontSize", "boxBeginRow", "boxBeginColumn", "boxModeWidth",
                                "boxScanWidth"};
constexpr int shape = 5; // the place of the font shape among the fields

// The dialog over a drawer, a test window and a settings file of its own.
struct SetupRig
{
    explicit SetupRig(const QVariantMap &values = {})
        : settings(values)
    {
        showFirstStart(drawer);
        drawer.active = false;
        canvas.setDrawer(&drawer);
    }

    AdvancedSetup &dialog()
    {
        if (!m_dialog)
            m_dialog = std::make_unique<AdvancedSetup>(settings.get(), &drawer, nullptr);
        return *m_dialog;
    }
    QSpinBox *box(int index)
    {
        return dialog().findChild<QSpinBox *>(QLatin1String(boxNames[index]));
    }
    QComboBox *combo() { return dialog().findChild<QComboBox *>(); }
    UX::Widgets::TitleBar *titleBar() { return dialog().findChild<UX::Widgets::TitleBar *>(); }
    QList<QPushButton *> buttons()
    {
        return dialog().findChildren<QPushButton *>(QStringLiteral("DialogPushBtn"));
    }
    // Whether the test window is painted by itself after the change.
    template<typename Change>
    bool isRepaintedAfter(Change change)
    {
        canvas.show();
        if (!QTest::qWaitFor([this] { return canvas.paintCount() > 0; }))
            return false;
        QCoreApplication::processEvents();
        const int before = canvas.paintCount();
        change();
        return QTest::qWaitFor([this, before] { return canvas.paintCount() > before; });
    }
    QVector<int> shown()
    {
        QVector<int> values;
        for (int index = 0; index < shape; ++index)
            values << box(index)->value();
        return values << combo()->currentIndex();
    }

    TestSettings settings;
    Canvas canvas{QSize(128, 64)};
    ScrGrid drawer{&canvas};

private:
    std::unique_ptr<AdvancedSetup> m_dialog;
};

} // namespace

class TestAdvancedSetup : public QObject
{
    Q_OBJECT

private slots:
    void dialog_hasItsSizeTitleAndButtons();
    void okAndCloseButton_closeTheDialog();
    void emptySettings_showTheDefaultsWithinTheirLimits();
    void storedFontShapeOf5OrMinus1_selectsNormal();
    void storedValue_isShownClampedAndDrawnAsItIs_data();
    void storedValue_isShownClampedAndDrawnAsItIs();
    void opening_appliesTheStoredValuesAndStoresNothing();
    void change_isStoredAndDrawnAtOnce();
    void beginRowOf0_makesTheTopRowBeginWith00();
    void moduleLineWidthOf10_showsBeforeTheDialogCloses();
    void withoutSettings_valuesReachTheDrawer();
    void withoutADrawer_nothingChanges();
    void language_isAppliedToEveryText();
    void controls_haveAccessibleNamesAndFollowTheEye();
};

void TestAdvancedSetup::dialog_hasItsSizeTitleAndButtons()
{
    SetupRig rig;
    QCOMPARE(rig.dialog().maximumSize(), QSize(360, 220));
    QCOMPARE(rig.dialog().windowTitle(), QStringLiteral("高级设置"));
    QCOMPARE(rig.dialog().windowModality(), Qt::WindowModal);
    QVERIFY(rig.dialog().styleSheet().contains(QStringLiteral("DialogPushBtn")));
    QCOMPARE(AdvancedSetup::m_defaultBackgroundColor, QColor(48, 50, 56));
    const auto *bar = rig.titleBar();
    QVERIFY(bar->titleButton(0)->isHidden());
    QCOMPARE(bar->titleButton(4)->toolTip(), QStringLiteral("关闭"));
    QVERIFY(!qobject_cast<QToolButton *>(bar->titleButton(4))->icon().isNull());
    QVERIFY(bar->styleSheet().contains(QStringLiteral("background-color:rgb(48,50,56)")));

    QStringList shown;
    const auto buttons = rig.buttons();
    for (const QPushButton *button : buttons) {
        QVERIFY(!button->autoDefault() || button->isHidden());
        if (!button->isHidden())
            shown << button->text();
    }
    QCOMPARE(shown, QStringList(QStringLiteral("确定")));
    QCOMPARE(rig.dialog().findChildren<QLabel *>(QStringLiteral("ContentSplitLabel")).size(), 1);
}

void TestAdvancedSetup::okAndCloseButton_closeTheDialog()
{
    SetupRig rig;
    auto *close = qobject_cast<QAbstractButton *>(rig.titleBar()->titleButton(4));
    for (QAbstractButton *button : {close, static_cast<QAbstractButton *>(rig.buttons().first())}) {
        rig.dialog().show();
        button->click();
        QVERIFY(!rig.dialog().isVisible());
    }
}

void TestAdvancedSetup::emptySettings_showTheDefaultsWithinTheirLimits()
{
    SetupRig rig;
    QCOMPARE(rig.shown(), QVector<int>({10, 1, 1, 1, 4, 0}));
    QCOMPARE(advancedFields(rig.drawer), rig.shown());
    QCOMPARE(rig.combo()->currentText(), QStringLiteral("常规"));
    QCOMPARE(rig.combo()->count(), 3);
    const QPair<int, int> limits[] = {{1, 100}, {0, 100}, {0, 100}, {1, 10}, {1, 100}};
    for (int index = 0; index < shape; ++index) {
        QCOMPARE(rig.box(index)->minimum(), limits[index].first);
        QCOMPARE(rig.box(index)->maximum(), limits[index].second);
        QCOMPARE(rig.box(index)->contextMenuPolicy(), Qt::NoContextMenu);
    }
}

void TestAdvancedSetup::storedFontShapeOf5OrMinus1_selectsNormal()
{
    const std::pair<QVariant, int> rows[] = {{5, 0},
                                             {-1, 0},
                                             {3, 0},
                                             {std::numeric_limits<int>::max(), 0},
                                             {QStringLiteral("bold"), 0},
                                             {1, 1},
                                             {QStringLiteral("2"), 2}};
    for (const auto &[stored, value] : rows) {
        SetupRig rig({{QStringLiteral("advanceFontShape"), stored}});
        rig.drawer.m_fontShape = 9;
        QCOMPARE(rig.combo()->currentIndex(), value);
        QCOMPARE(rig.drawer.m_fontShape, value);
    }
}

void TestAdvancedSetup::storedValue_isShownClampedAndDrawnAsItIs_data()
{
    const Table<QVariant, int> row("stored", "drawn");
    row("within", 7, 7);
    row("beyond", 5000, 5000);
    row("negative", -70, -70);
    row("greatest", std::numeric_limits<int>::max(), std::numeric_limits<int>::max());
    row("text", QStringLiteral("x"), 0);
    row("beyond an int", QStringLiteral("99999999999"), 0);
    row("empty", QString(), -1);
    row("list", QStringList({QStringLiteral("3"), QStringLiteral("4")}), -1);
}

void TestAdvancedSetup::storedValue_isShownClampedAndDrawnAsItIs()
{
    QFETCH(const QVariant, stored);
    QFETCH(const int, drawn);
    const int defaults[] = {10, 1, 1, 1, 4};
    for (int index = 0; index < shape; ++index) {
        SetupRig rig({{QLatin1String(advancedKeys[index]), stored}});
        const int expected = drawn == -1 ? defaults[index] : drawn;
        QCOMPARE(rig.box(index)->value(),
                 qBound(rig.box(index)->minimum(), expected, rig.box(index)->maximum()));
        QCOMPARE(advancedFields(rig.drawer).at(index), expected);
        QVERIFY(!rig.canvas.painted().isNull()); // in spite of it
    }
}

void TestAdvancedSetup::opening_appliesTheStoredValuesAndStoresNothing()
{
    SetupRig rig({{QStringLiteral("advanceFontSize"), 500}});
    QVERIFY(!rig.drawer.active);
    rig.dialog().show();
    QVERIFY(rig.drawer.active);
    QCOMPARE(rig.drawer.m_fontSize, 500);
    QCOMPARE(rig.settings.stored().size(), 1);
    QCOMPARE(rig.settings.stored().first().toInt(), 500);
}

void TestAdvancedSetup::change_isStoredAndDrawnAtOnce()
{
    SetupRig rig;
    rig.dialog().show();
    QVector<int> expected = advancedFields(rig.drawer);
    for (int index = 0; index <= shape; ++index) {
        rig.drawer.active = false;
        expected[index] = index == shape ? 2 : 6;
        if (index == shape)
            QVERIFY(rig.isRepaintedAfter([&rig] { rig.combo()->setCurrentIndex(2); }));
        else
            QVERIFY(rig.isRepaintedAfter([&rig, index] { rig.box(index)->setValue(6); }));

        QCOMPARE(advancedFields(rig.drawer), expected);
        QVERIFY(rig.drawer.active);
        QCOMPARE(rig.settings.stored().size(), index + 1);
        QCOMPARE(rig.settings.stored().value(QLatin1String(advancedKeys[index])).toInt(),
                 expected.at(index));
    }
}

// 00 is the widest pair of digits at the left of a number of the top row; the numbers of the
// second row begin with 01 then, as those of the top row do by default.
void TestAdvancedSetup::beginRowOf0_makesTheTopRowBeginWith00()
{
    SetupRig rig;
    rig.dialog().show();
    const QImage one = rig.canvas.painted();
    rig.box(1)->setValue(0);
    const QImage zero = rig.canvas.painted();
    const QRect top(4, 4, 56, 24);
    const QRect second = top.translated(0, 32);
    QVERIFY(zero.copy(top) != one.copy(top));
    QCOMPARE(zero.copy(second), one.copy(top));
}

void TestAdvancedSetup::moduleLineWidthOf10_showsBeforeTheDialogCloses()
{
    SetupRig rig;
    rig.dialog().show();
    const QPoint besideTheLine(8, 19); // three pixels below the edge between two modules
    const QRgb before = rig.canvas.painted().pixel(besideTheLine);
    rig.box(3)->setValue(10);
    QVERIFY(rig.dialog().isVisible());
    QVERIFY(before != qRgb(255, 0, 0));
    QCOMPARE(rig.canvas.painted().pixel(besideTheLine), qRgb(255, 0, 0));
}

void TestAdvancedSetup::withoutSettings_valuesReachTheDrawer()
{
    SetupRig rig;
    AdvancedSetup dialog(nullptr, &rig.drawer, nullptr);
    QCOMPARE(advancedFields(rig.drawer), QVector<int>({10, 1, 1, 1, 4, 0}));
    dialog.findChild<QSpinBox *>(QStringLiteral("boxScanWidth"))->setValue(30);
    QCOMPARE(rig.drawer.m_scanLineWidth, 30);
}

void TestAdvancedSetup::withoutADrawer_nothingChanges()
{
    TestSettings settings;
    AdvancedSetup dialog(settings.get(), nullptr, nullptr);
    dialog.show();
    dialog.findChild<QSpinBox *>(QStringLiteral("boxScanWidth"))->setValue(30);
    dialog.slot_comboFontShapeCurrentIndexChanged(1);
    QVERIFY(settings.stored().isEmpty());
}

void TestAdvancedSetup::language_isAppliedToEveryText()
{
    SetupRig rig;
    const auto texts = [&rig] {
        QStringList all{rig.dialog().windowTitle()};
        const auto labels = rig.dialog().findChildren<QLabel *>();
        for (const QLabel *label : labels)
            all << label->text();
        for (const auto *button : rig.buttons())
            all << button->text();
        for (int index = 0; index < rig.combo()->count(); ++index)
            all << rig.combo()->itemText(index);
        all << rig.titleBar()->titleButton(4)->toolTip();
        all.removeAll(QString());
        return all;
    };
    const QStringList words = texts();
    QCOMPARE(
        words.join(QLatin1Char(' ')),
        QStringLiteral("高级设置 高级设置 字体 大小 字形 行起始数 列起始数 模块线宽 扫描版线宽 "
                       "确定 取消 常规 加粗 斜体 关闭"));
    const Dictionary dictionary(QStringLiteral("!"));
    rig.dialog().updateLanguage();
    QCoreApplication::sendPostedEvents(); // the frame hears of the language by itself
    QCOMPARE(texts().join(QLatin1Char(' ')), words.join(QStringLiteral("! ")) + QLatin1Char('!'));
}

void TestAdvancedSetup::controls_haveAccessibleNamesAndFollowTheEye()
{
    SetupRig rig;
    rig.dialog().show();
    QStringList names;
    const QWidget *widget = rig.box(0);
    do {
        if ((widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy() && widget->isVisible())
            names << (widget->accessibleName().isEmpty() ? widget->objectName()
                                                         : widget->accessibleName());
        widget = widget->nextInFocusChain();
    } while (widget != rig.box(0));
    QCOMPARE(names.join(QLatin1Char(' ')),
             QStringLiteral("大小 字形 行起始数 列起始数 模块线宽 扫描版线宽 DialogPushBtn"));
}

QTEST_MAIN(TestAdvancedSetup)
#include "tst_advancedsetup.moc"
