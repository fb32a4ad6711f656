#include "advancedsetup.h"
#include "cabinetrig.h"
#include "dictionary.h"
#include "paneltest.h"
#include "picturefolder.h"
#include "rows.h"

#include <QtTest>

#include <utility>

namespace {

// After a press of the layout button.
class UnlockedRig : public CabinetRig
{
public:
    explicit UnlockedRig(const QByteArray &contents)
        : CabinetRig(contents)
    {
        layOut();
    }
};

} // namespace

class TestTarnTool : public PanelTest<UnlockedRig>
{
    Q_OBJECT

protected:
    PanelFacts facts() const override;
    void addEdits() const override;

private slots:
    void form_hasItsSizeAndItsControlsAsDirectChildren();
    void construction_leavesOnlyTheLayoutButtonEnabled();
    void layoutButton_unlocksThePanelAndSwitchesTheLayoutOn();
    void forbidControls_locksThePanelAndNothingElse();
    void getDrawer_makesTheDrawerInactive();
    void getData_copiesTheWholePanel();
    void box_setsItsFieldAtOnce();
    void order_reachesTheDrawerAtOnce();
    void operatorsChange_showsAndRaisesTheFlag_data();
    void operatorsChange_showsAndRaisesTheFlag();
    void setupButton_opensOneWindowModalDialogThatDeletesItself();
    void openDialog_followsTheLanguage();
    void withoutSettings_thePanelWorks();
    void escape_doesNotCloseThePage();
};

PanelFacts TestTarnTool::facts() const
{
    return {
        {{QStringLiteral("tarnBoxWidth"), 32},
         {QStringLiteral("tarnBoxHeight"), 16},
         {QStringLiteral("tarnModelColumnCount"), 2},
         {QStringLiteral("tarnModelRowCount"), 2},
         {QStringLiteral("tarnLeftToRight"), false},
         {QStringLiteral("tarnBackgroundSelect"), true}},
        "tarnBoxWidth = 5\ntarnBoxHeight = 20\ntarnModelColumnCount = 3\n"
        "tarnModelRowCount = 4\ntarnLeftToRight = true\ntarnBackgroundSelect = false\n",
        {},
        QStringLiteral("模块宽度|模块宽度|模块高度|模块高度|从左到右|模块行数|模块行数|模块列数|"
                       "模块列数|从右到左|字体颜色|字体颜色|模块线颜色|模块线颜色|扫描板颜色|"
                       "扫描板颜色|纯色背景|纯色背景|背景图|背景图|高级设置|定位")};
}

void TestTarnTool::addEdits() const
{
    edit("width", "", "boxWidth", 60, "", "tarnBoxWidth", "60");
    edit("height", "", "boxHight", 60, "", "tarnBoxHeight", "60");
    edit("columns", "", "boxColumn", 60, "", "tarnModelColumnCount", "60");
    edit("rows", "", "boxRow", 60, "", "tarnModelRowCount", "60");
    edit("from the left", "", "radioBeginLeft", {}, "", "tarnLeftToRight", "false");
    edit("from the right", "tarnLeftToRight = false\n", "radioBeginRight", {}, "",
         "tarnLeftToRight", "true");
    edit("solid", "", "radioBackground", {}, "", "tarnBackgroundSelect", "true");
}

void TestTarnTool::form_hasItsSizeAndItsControlsAsDirectChildren()
{
    const CabinetRig rig;
    QCOMPARE(rig.panel->minimumSize(), QSize(585, 192));
    QCOMPARE(rig.panel->maximumSize(), QSize(585, 192));
    const QStringList names =
        QStringLiteral("radioBeginRight radioBeginLeft labelModelRow labelBoxHeight boxWidth "
                       "boxHight boxColumn labelMoldelCol labelBoxWidth boxRow radioBackground "
                       "radioPicture labelimage labelColor buttonScan labelScanColor "
                       "labelFontColor buttonFont labelModelColor buttonModeLine label label_2")
            .split(QLatin1Char(' '));
    for (const QString &name : names)
        QVERIFY2(rig.panel->findChild<QWidget *>(name, Qt::FindDirectChildrenOnly),
                 qPrintable(name));
    for (const char *name : {"label", "label_2"})
        QCOMPARE(rig.control(name)->height(), 2);
}

void TestTarnTool::construction_leavesOnlyTheLayoutButtonEnabled()
{
    const CabinetRig rig;
    QCOMPARE(rig.enabledControls(), QStringList(QStringLiteral("layout")));
    QVERIFY(!rig.drawer->m_layoutOn);
    QVERIFY(!rig.panel->m_started);
    QVERIFY(!rig.panel->m_userChanged);
    QCOMPARE(rig.control("boxWidth")->accessibleName(), QStringLiteral("模块宽度"));
}

void TestTarnTool::layoutButton_unlocksThePanelAndSwitchesTheLayoutOn()
{
    CabinetRig rig;
    rig.layOut();
    QCOMPARE(rig.enabledControls().size(), 24);
    QVERIFY(rig.drawer->m_layoutOn);
    QVERIFY(rig.drawer->active);
    QVERIFY(rig.panel->m_started);
    const QImage shown = rig.canvas.painted();
    QCOMPARE(shown.pixel(64, 8), qRgb(0, 0, 255));
    QCOMPARE(shown.pixel(4, 16), qRgb(255, 0, 0));
}

void TestTarnTool::forbidControls_locksThePanelAndNothingElse()
{
    CabinetRig rig;
    rig.layOut();
    rig.click(rig.setupButton());
    const QImage shown = rig.canvas.painted();
    rig.panel->slot_forbidControls();
    QCOMPARE(rig.enabledControls(),
             QStringList({QStringLiteral("layout"), QStringLiteral("AdvancedSetup")}));
    QVERIFY(rig.drawer->m_layoutOn);
    QCOMPARE(rig.canvas.painted(), shown);
}

void TestTarnTool::getDrawer_makesTheDrawerInactive()
{
    const CabinetRig rig;
    rig.layOut();
    QVERIFY(rig.drawer->active);
    QCOMPARE(rig.panel->getDrawer(), static_cast<DrawerBase *>(rig.drawer));
    QVERIFY(!rig.drawer->active);
    rig.box("boxWidth")->setValue(40);
    QVERIFY(rig.drawer->active);
}

void TestTarnTool::getData_copiesTheWholePanel()
{
    const CabinetRig rig({{QStringLiteral("advanceFontSize"), 20},
                          {QStringLiteral("advanceFontShape"), 2},
                          {QStringLiteral("advanceBeginRow"), 0},
                          {QStringLiteral("advanceScanWidth"), 9}});
    static_cast<LayoutParameters &>(*rig.drawer) = {};
    ScrGrid *drawer = rig.drawer;
    drawer->m_moduleWidth = drawer->m_moduleHeight = 77;
    drawer->m_moduleRowCount = drawer->m_moduleColumnCount = 77;
    drawer->m_leftToRight = false;
    drawer->m_bgPicturePath = QStringLiteral("somewhere");
    drawer->m_beginColumn = drawer->m_moduleLineWidth = 77;
    rig.panel->getData();

    QCOMPARE(QSize(drawer->m_moduleWidth, drawer->m_moduleHeight), QSize(32, 16));
    QCOMPARE(QSize(drawer->m_moduleColumnCount, drawer->m_moduleRowCount), QSize(2, 2));
    QCOMPARE(drawer->m_bgColor, QColor(Qt::black));
    QCOMPARE(drawer->m_fontColor, QColor(Qt::yellow));
    QCOMPARE(drawer->m_moduleLineColor, QColor(Qt::red));
    QCOMPARE(drawer->m_scanColor, QColor(Qt::blue));
    QVERIFY(drawer->m_leftToRight);
    QCOMPARE(drawer->m_bgPicturePath, QString());
    QCOMPARE(advancedFields(*drawer), QVector<int>({20, 0, 1, 1, 9, 2}));
    QVERIFY(drawer->active);
}

void TestTarnTool::box_setsItsFieldAtOnce()
{
    const CabinetRig rig;
    rig.layOut();
    const std::pair<const char *, int ScrGrid::*> fields[] = {
        {"boxWidth", &ScrGrid::m_moduleWidth},
        {"boxHight", &ScrGrid::m_moduleHeight},
        {"boxColumn", &ScrGrid::m_moduleColumnCount},
        {"boxRow", &ScrGrid::m_moduleRowCount},
    };
    int value = 50;
    for (const auto &[name, field] : fields) {
        rig.box(name)->setValue(++value);
        QCOMPARE(rig.drawer->*field, value);
        QCOMPARE(rig.box(name)->contextMenuPolicy(), Qt::NoContextMenu);
    }
    QCOMPARE(rig.drawer->m_moduleWidth, 51); // not by the others
}

void TestTarnTool::order_reachesTheDrawerAtOnce()
{
    const CabinetRig rig;
    rig.layOut();
    rig.click("radioBeginRight");
    QVERIFY(!rig.drawer->m_leftToRight);
    QVERIFY(rig.radio("radioBackground")->isChecked()); // the other group is left alone
    rig.click("radioBeginLeft");
    QVERIFY(rig.drawer->m_leftToRight);
}

void TestTarnTool::operatorsChange_showsAndRaisesTheFlag_data()
{
    addNames<QByteArray>("control", {"layout", "boxWidth", "boxHight", "boxRow", "boxColumn",
                                     "radioBeginLeft", "radioBeginRight", "radioBackground",
                                     "radioPicture", "buttonFont", "buttonModeLine", "buttonScan"});
}

void TestTarnTool::operatorsChange_showsAndRaisesTheFlag()
{
    QFETCH(const QByteArray, control);
    const DialogAnswers answers;
    DialogAnswers::color(Qt::white);
    CabinetRig rig({}, PictureFolder::file(Qt::cyan));
    rig.layOut();
    rig.canvas.show();
    QVERIFY(QTest::qWaitForWindowExposed(&rig.canvas));
    int paints = -1;
    const auto isQuiet = [&rig, &paints] {
        return std::exchange(paints, rig.canvas.paintCount()) == rig.canvas.paintCount();
    };
    QTRY_VERIFY(isQuiet());
    rig.panel->getDrawer();
    rig.panel->m_userChanged = false;
    if (auto *box = qobject_cast<QSpinBox *>(rig.control(control.constData())))
        box->setValue(60);
    else
        rig.click(control == "layout" ? rig.layoutButton() : rig.control(control.constData()));
    QVERIFY(rig.panel->m_userChanged);
    QVERIFY(rig.drawer->active);
    QTRY_VERIFY(rig.canvas.paintCount() > paints);
}

void TestTarnTool::setupButton_opensOneWindowModalDialogThatDeletesItself()
{
    const CabinetRig rig;
    rig.layOut();
    rig.click(rig.setupButton());
    rig.setupButton()->click();
    const auto dialogs = rig.panel->findChildren<AdvancedSetup *>();
    QCOMPARE(dialogs.size(), 1);
    const QPointer<AdvancedSetup> dialog = dialogs.first();
    QVERIFY(dialog->isVisible());
    QCOMPARE(dialog->windowModality(), Qt::WindowModal);
    dialog->close();
    QTRY_VERIFY(!dialog);
    rig.setupButton()->click();
    QCOMPARE(rig.panel->findChildren<AdvancedSetup *>().size(), 1);
}

void TestTarnTool::openDialog_followsTheLanguage()
{
    CabinetRig rig;
    rig.layOut();
    rig.click(rig.setupButton());
    const Dictionary dictionary(QStringLiteral("!"));
    rig.updateLanguage();
    QCOMPARE(rig.child<AdvancedSetup>("AdvancedSetup")->windowTitle(), QStringLiteral("高级设置!"));
}

void TestTarnTool::withoutSettings_thePanelWorks()
{
    const DialogAnswers answers;
    DialogAnswers::color(Qt::white);
    KeptPicture::set({});
    Canvas canvas;
    TarnTool panel(&canvas, nullptr, nullptr);
    auto *drawer = qobject_cast<ScrGrid *>(panel.getDrawer());
    for (const char *name : {"radioBackground", "radioBeginLeft"})
        QVERIFY(panel.findChild<QRadioButton *>(QLatin1String(name))->isChecked());
    const auto buttons = panel.findChildren<QPushButton *>();
    for (QPushButton *button : buttons) // the last is the layout button
        button->click();
    QVERIFY(drawer->m_layoutOn);
    QCOMPARE(QSize(drawer->m_moduleWidth, drawer->m_moduleHeight), QSize(32, 16));
    QCOMPARE(QSize(drawer->m_moduleColumnCount, drawer->m_moduleRowCount), QSize(2, 2));
    QCOMPARE(drawer->m_scanColor, QColor(Qt::blue));
    panel.findChild<QPushButton *>(QStringLiteral("buttonFont"))->click();
    panel.findChild<QSpinBox *>(QStringLiteral("boxRow"))->setValue(3);
    panel.saveTarnBaseInfo();
    QCOMPARE(drawer->m_moduleRowCount, 3);
    QCOMPARE(drawer->m_fontColor, QColor(Qt::white));
}

void TestTarnTool::escape_doesNotCloseThePage()
{
    const CabinetRig rig;
    rig.panel->show();
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(rig.panel.get(), &escape);
    QVERIFY(rig.panel->isVisible());
    QVERIFY(!escape.isAccepted()); // so that it goes on to the main window
}

QTEST_MAIN(TestTarnTool)
#include "tst_tarntool.moc"
