#include "dictionary.h"
#include "gradientrig.h"
#include "paneltest.h"

#include <QLabel>
#include <QtTest>

class TestGradualChangeCtrlWidget : public PanelTest<GradientRig>
{
    Q_OBJECT

protected:
    PanelFacts facts() const override;
    void addEdits() const override;

private slots:
    void firstStart_selectsRedAndHolds256Levels();
    void levelButton_repaintsTheTestWindow();

    void levelButtons_setLevelAndRamp();
    void levelText_comesBeforeTheUserChangedFlag();
    void levelText_isNotTranslated();

    void form_isAlignedAndWithinThePanel();
    void levelButtons_areNamedForTheStyleSheet();
    void drawer_isTheSameEachTimeAndStaysAsItIs() { QVERIFY(GradientRig().keepsItsDrawer()); }

    void withoutSettings_thePanelWorks();
};

PanelFacts TestGradualChangeCtrlWidget::facts() const
{
    return {{{QStringLiteral("gradualChangeColor"), QColor(Qt::red)},
             {QStringLiteral("gradualChangeColorLevel"), 256}},
            "gradualChangeColor = #0000ff\ngradualChangeColorLevel = 100\n",
            {"gradualChangeColor = #808080\n", "gradualChangeColorLevel = -3\n"},
            QStringLiteral("红|绿|蓝|白|黄|青|紫|32级|64级|128级|256级")};
}

void TestGradualChangeCtrlWidget::addEdits() const
{
    const char *const level = "gradualChangeColorLevel";
    const char *const told32 = "signal_greyChanged(32级)";
    const char *const told64 = "signal_greyChanged(64级)";
    const char *const told128 = "signal_greyChanged(128级)";
    const char *const told256 = "signal_greyChanged(256级)";
    edit("32", "", "32级", {}, told32, level, "32");
    edit("64", "", "64级", {}, told64, level, "64");
    edit("128", "", "128级", {}, told128, level, "128");
    edit("256", "", "256级", {}, told256, level, "256");
    edit("slot of 32", "", "slot_changeGradualColorFirst", {}, told32, level, "32");
    edit("slot of 64", "", "slot_changeGradualColorSecond", {}, told64, level, "64");
    edit("slot of 128", "", "slot_changeGradualColorThird", {}, told128, level, "128");
    edit("slot of 256", "", "slot_changeGradualColorFirth", {}, told256, level, "256");
    edit("colour", "", "radioButtonCyan", {}, "signal_selectColorChanged(#00ffff)",
         "gradualChangeColor", "#00ffff");
    edit("colour from elsewhere", "", "slot_changeGradualColorGreen", {}, "", "gradualChangeColor",
         "#00ff00");
}

void TestGradualChangeCtrlWidget::firstStart_selectsRedAndHolds256Levels()
{
    GradientRig rig;
    QCOMPARE(rig.checkedColor(), 0);
    QCOMPARE(rig.panel->m_colorIndex, 0);
    QCOMPARE(rig.panel->m_level, qint16(256));
    QVERIFY(!rig.panel->m_userChanged);
    QVERIFY(rig.shows(256, Qt::red));
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

void TestGradualChangeCtrlWidget::levelButtons_setLevelAndRamp()
{
    const int levels[] = {32, 64, 128, 256};
    for (std::size_t row = 0; row < 4; ++row) {
        GradientRig rig({{colorKey, QColor(Qt::cyan)}, {levelKey, 200}});
        rig.panel->getDrawer()->active = false;
        rig.click(rig.levelButton(row));

        QCOMPARE(rig.panel->m_level, qint16(levels[row]));
        QVERIFY(rig.panel->m_userChanged);
        QVERIFY(rig.panel->getDrawer()->active);
        QVERIFY(rig.shows(levels[row], Qt::cyan));
    }
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

void TestGradualChangeCtrlWidget::levelText_isNotTranslated()
{
    const GradientRig rig;
    const Dictionary english({{QStringLiteral("64级"), QStringLiteral("64 levels")}});
    rig.panel->updateLanguage();
    rig.click(rig.levelButton(1));

    QCOMPARE(rig.levelButton(1)->text(), QStringLiteral("64 levels"));
    QCOMPARE(rig.emitted(), QStringLiteral("signal_greyChanged(64级)"));
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
    QCOMPARE(rule->styleSheet(), QStringLiteral("background:rgb(75,80,87);"));
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
