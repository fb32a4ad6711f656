#include "dictionary.h"
#include "gradientrig.h"

#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

namespace {

using LevelSlot = void (GradualChangeCtrlWidget::*)();

struct Level
{
    int count;
    const char *text;
    LevelSlot slot;
};

constexpr Level levels[] = {
    {32, "32级", &GradualChangeCtrlWidget::slot_changeGradualColorFirst},
    {64, "64级", &GradualChangeCtrlWidget::slot_changeGradualColorSecond},
    {128, "128级", &GradualChangeCtrlWidget::slot_changeGradualColorThird},
    {256, "256级", &GradualChangeCtrlWidget::slot_changeGradualColorFirth},
};

// Every text of the panel, the colours first.
QStringList texts(const GradientRig &rig)
{
    QStringList all;
    for (int index = 0; index < colorCount; ++index)
        all << rig.colorButton(index)->text();
    for (const QPushButton *button : rig.levelButtons())
        all << button->text();
    return all;
}

const QWidget *nextTabStop(const QWidget *widget)
{
    do {
        widget = widget->nextInFocusChain();
    } while (!(widget->focusPolicy() & Qt::TabFocus));
    return widget;
}

} // namespace

class TestGradualChangeCtrlWidget : public QObject
{
    Q_OBJECT

private slots:
    void firstStart_selectsRedAndHolds256Levels();
    void button64_emitsItsTextAndRedrawsWithA64PixelRamp();
    void levelButton_repaintsTheTestWindow();

    void levelButtons_setLevelTextAndRamp_data();
    void levelButtons_setLevelTextAndRamp();
    void levelSlots_setLevelTextAndRamp_data();
    void levelSlots_setLevelTextAndRamp();
    void levelText_comesBeforeTheUserChangedFlag();
    void levelButton_announcesNoColour();
    void levelText_isNotTranslated();

    void form_isAlignedAndWithinThePanel();
    void levelButtons_areNamedForTheStyleSheet();
    void rule_hasItsColour();
    void tabKey_walksFromLeftToRightAndDown();
    void drawer_isTheSameEachTimeAndStaysAsItIs();

    void language_isAppliedToEveryText();
    void language_thatDoesNotFitIsElided();
    void withoutSettings_thePanelWorks();
};

void TestGradualChangeCtrlWidget::firstStart_selectsRedAndHolds256Levels()
{
    GradientRig rig;
    QCOMPARE(rig.checkedColor(), 0);
    QCOMPARE(rig.panel->m_colorIndex, 0);
    QCOMPARE(rig.panel->m_level, qint16(256));
    QVERIFY(!rig.panel->m_userChanged);
    QVERIFY(rig.shows(256, Qt::red));
}

void TestGradualChangeCtrlWidget::button64_emitsItsTextAndRedrawsWithA64PixelRamp()
{
    GradientRig rig;
    QSignalSpy grey(rig.panel.get(), &GradualChangeCtrlWidget::signal_greyChanged);
    rig.click(rig.levelButton(1));

    QCOMPARE(grey.count(), 1);
    QCOMPARE(grey.first().first().toString(), QStringLiteral("64级"));
    QVERIFY(rig.shows(64, Qt::red));
}

void TestGradualChangeCtrlWidget::levelButton_repaintsTheTestWindow()
{
    GradientRig rig;
    rig.canvas.show();
    QVERIFY(QTest::qWaitForWindowExposed(&rig.canvas));
    QTRY_VERIFY(rig.canvas.paintCount() > 0);
    const int before = rig.canvas.paintCount();
    rig.click(rig.levelButton(1));
    QTRY_VERIFY(rig.canvas.paintCount() > before);
}

void TestGradualChangeCtrlWidget::levelButtons_setLevelTextAndRamp_data()
{
    QTest::addColumn<uint>("row");
    QTest::newRow("32") << 0u;
    QTest::newRow("64") << 1u;
    QTest::newRow("128") << 2u;
    QTest::newRow("256") << 3u;
}

void TestGradualChangeCtrlWidget::levelButtons_setLevelTextAndRamp()
{
    QFETCH(const uint, row);
    GradientRig rig({{colorKey, QColor(Qt::cyan)}, {levelKey, 200}});
    QSignalSpy grey(rig.panel.get(), &GradualChangeCtrlWidget::signal_greyChanged);
    rig.panel->getDrawer()->active = false;
    rig.click(rig.levelButton(row));

    QCOMPARE(rig.panel->m_level, qint16(levels[row].count));
    QCOMPARE(grey.count(), 1);
    QCOMPARE(grey.first().first().toString(), QString::fromUtf8(levels[row].text));
    QVERIFY(rig.panel->m_userChanged);
    QVERIFY(rig.panel->getDrawer()->active);
    QVERIFY(rig.shows(levels[row].count, Qt::cyan));
}

void TestGradualChangeCtrlWidget::levelSlots_setLevelTextAndRamp_data()
{
    levelButtons_setLevelTextAndRamp_data();
}

void TestGradualChangeCtrlWidget::levelSlots_setLevelTextAndRamp()
{
    QFETCH(const uint, row);
    GradientRig rig({{levelKey, 200}});
    QSignalSpy grey(rig.panel.get(), &GradualChangeCtrlWidget::signal_greyChanged);
    (rig.panel.get()->*levels[row].slot)();

    QCOMPARE(rig.panel->m_level, qint16(levels[row].count));
    QCOMPARE(grey.count(), 1);
    QCOMPARE(grey.first().first().toString(), QString::fromUtf8(levels[row].text));
    QVERIFY(rig.panel->m_userChanged);
    QVERIFY(rig.shows(levels[row].count, Qt::red));
}

void TestGradualChangeCtrlWidget::levelText_comesBeforeTheUserChangedFlag()
{
    const GradientRig rig;
    int level = 0;
    bool changed = true;
    connect(rig.panel.get(), &GradualChangeCtrlWidget::signal_greyChanged, this, [&] {
        level = rig.panel->m_level;
        changed = rig.panel->m_userChanged;
    });
    rig.click(rig.levelButton(2));

    QCOMPARE(level, 128);
    QVERIFY(!changed);
}

void TestGradualChangeCtrlWidget::levelButton_announcesNoColour()
{
    const GradientRig rig;
    QSignalSpy selected(rig.panel.get(), &GradualChangeCtrlWidget::signal_selectColorChanged);
    for (QPushButton *button : rig.levelButtons())
        rig.click(button);
    QCOMPARE(rig.panel->m_level, qint16(256));
    QCOMPARE(selected.count(), 0);
}

void TestGradualChangeCtrlWidget::levelText_isNotTranslated()
{
    const GradientRig rig;
    const Dictionary english({{QStringLiteral("64级"), QStringLiteral("64 levels")}});
    rig.panel->updateLanguage();
    QSignalSpy grey(rig.panel.get(), &GradualChangeCtrlWidget::signal_greyChanged);
    rig.click(rig.levelButton(1));

    QCOMPARE(rig.levelButton(1)->text(), QStringLiteral("64 levels"));
    QCOMPARE(grey.first().first().toString(), QStringLiteral("64级"));
}

void TestGradualChangeCtrlWidget::form_isAlignedAndWithinThePanel()
{
    const GradientRig rig;
    QCOMPARE(rig.panel->size(), QSize(585, 192));
    for (int index = 0; index < colorCount; ++index)
        QCOMPARE(rig.colorButton(index)->geometry(), QRect(30 + 54 * index, 10, 42, 42));
    const auto *rule = rig.panel->findChild<QLabel *>(QStringLiteral("label"));
    QVERIFY(rule);
    QCOMPARE(rule->y(), 62);
    int end = 0;
    for (const QPushButton *button : rig.levelButtons()) {
        QVERIFY(button->width() <= 80);
        QVERIFY(button->x() > end && button->y() > rule->geometry().bottom());
        QVERIFY(rig.panel->rect().contains(button->geometry()));
        end = button->geometry().right();
    }
}

void TestGradualChangeCtrlWidget::levelButtons_areNamedForTheStyleSheet()
{
    const GradientRig rig;
    QCOMPARE(rig.levelButtons().size(), std::size_t(4));
    QCOMPARE(rig.panel->findChildren<QPushButton *>().size(), 4);
    QCOMPARE(texts(rig).mid(colorCount),
             QStringList({QStringLiteral("32级"), QStringLiteral("64级"), QStringLiteral("128级"),
                          QStringLiteral("256级")}));
}

void TestGradualChangeCtrlWidget::rule_hasItsColour()
{
    const GradientRig rig;
    const auto *rule = rig.panel->findChild<QLabel *>(QStringLiteral("label"));
    QVERIFY(rule);
    QCOMPARE(rule->styleSheet(), QStringLiteral("background:rgb(75,80,87);"));
}

void TestGradualChangeCtrlWidget::tabKey_walksFromLeftToRightAndDown()
{
    const GradientRig rig;
    const QWidget *widget = rig.colorButton(0);
    for (int index = 1; index < colorCount; ++index) {
        widget = nextTabStop(widget);
        QCOMPARE(widget, rig.colorButton(index));
    }
    for (const QPushButton *button : rig.levelButtons()) {
        widget = nextTabStop(widget);
        QCOMPARE(widget, button);
    }
}

void TestGradualChangeCtrlWidget::drawer_isTheSameEachTimeAndStaysAsItIs()
{
    const GradientRig rig;
    DrawerBase *drawer = rig.panel->getDrawer();
    QVERIFY(drawer->targetWidget == &rig.canvas);

    for (const bool active : {true, false}) {
        drawer->active = active;
        QCOMPARE(rig.panel->getDrawer(), drawer);
        QCOMPARE(drawer->active, active);
    }
}

void TestGradualChangeCtrlWidget::language_isAppliedToEveryText()
{
    const GradientRig rig;
    const QStringList chinese = texts(rig);
    {
        const Dictionary words({{QStringLiteral("红"), QStringLiteral("R")},
                                {QStringLiteral("绿"), QStringLiteral("G")},
                                {QStringLiteral("蓝"), QStringLiteral("B")},
                                {QStringLiteral("白"), QStringLiteral("W")},
                                {QStringLiteral("黄"), QStringLiteral("Y")},
                                {QStringLiteral("青"), QStringLiteral("C")},
                                {QStringLiteral("紫"), QStringLiteral("P")},
                                {QStringLiteral("32级"), QStringLiteral("a")},
                                {QStringLiteral("64级"), QStringLiteral("b")},
                                {QStringLiteral("128级"), QStringLiteral("c")},
                                {QStringLiteral("256级"), QStringLiteral("d")}});
        rig.panel->updateLanguage();
        QCOMPARE(texts(rig).join(QLatin1Char(' ')), QStringLiteral("R G B W Y C P a b c d"));
    }
    rig.panel->updateLanguage();
    QCOMPARE(texts(rig), chinese);
    QCOMPARE(chinese.first(), QStringLiteral("红"));
}

void TestGradualChangeCtrlWidget::language_thatDoesNotFitIsElided()
{
    const GradientRig rig;
    const QString whole = QStringLiteral("thirty-two levels of grey in all");
    const Dictionary words({{QStringLiteral("32级"), whole}});
    rig.panel->updateLanguage();

    const QPushButton *button = rig.levelButton(0);
    QCOMPARE(button->toolTip(), whole);
    QVERIFY(button->text().endsWith(QChar(0x2026)));
    QVERIFY(button->fontMetrics().boundingRect(button->text()).width() <= button->width());
}

void TestGradualChangeCtrlWidget::withoutSettings_thePanelWorks()
{
    Canvas canvas(QSize(300, 9));
    GradualChangeCtrlWidget panel(&canvas, nullptr, nullptr);
    canvas.setDrawer(panel.getDrawer());
    QCOMPARE(panel.m_level, qint16(256));
    QVERIFY(!panel.getDrawer()->active);

    panel.slot_changeSelectedGradualColor(Qt::blue);
    panel.slot_changeGradualColorFirst();
    panel.saveGradualChangeInfo();
    QCOMPARE(panel.m_colorIndex, 2);
    QCOMPARE(qBlue(canvas.painted().pixel(16, 0)), qBlue(canvas.painted().pixel(48, 0)));
    QVERIFY(qBlue(canvas.painted().pixel(16, 0)) > 100);
}

QTEST_MAIN(TestGradualChangeCtrlWidget)
#include "tst_gradualchangectrlwidget.moc"
