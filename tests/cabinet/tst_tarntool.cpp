#include "advancedsetup.h"
#include "cabinetrig.h"
#include "colordialog.h"

#include <QtTest>

class TestTarnTool : public QObject
{
    Q_OBJECT

private slots:
    void form_hasItsSizeAndItsControlsAsDirectChildren();
    void construction_leavesOnlyTheLayoutButtonEnabled();
    void layoutButton_unlocksThePanelAndSwitchesTheLayoutOn();
    void forbidControls_locksThePanelAndKeepsTheLayout();
    void lockedPanel_leavesItsDialogUsable();
    void getDrawer_makesTheDrawerInactive();
    void getData_copiesTheWholePanel();
    void box_setsItsFieldAtOnce_data();
    void box_setsItsFieldAtOnce();
    void order_reachesTheDrawerAtOnce();
    void colour_isChosenStoredAndShown_data();
    void colour_isChosenStoredAndShown();
    void cancelledColour_changesNothing_data();
    void cancelledColour_changesNothing();
    void clickOnTheColourLabelWhilePictureIsSelected_doesNothing();
    void spaceKey_opensTheColourOfTheLabel();
    void change_asksForARepaint();
    void operatorsChange_raisesTheFlag_data();
    void operatorsChange_raisesTheFlag();
    void setupButton_opensOneWindowModalDialogThatDeletesItself();
    void withoutSettings_thePanelWorks();
    void withoutSettings_thePanelShowsItsDefaults();
    void escape_doesNotCloseThePage();
};

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
        QCOMPARE(rig.widget(name)->height(), 2);
    const QRect page = rig.panel->rect();
    const auto children = rig.panel->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *child : children) {
        QVERIFY2(page.contains(child->geometry()), qPrintable(child->objectName()));
        for (const QWidget *other : children) {
            if (other != child)
                QVERIFY2(!other->geometry().intersects(child->geometry()),
                         qPrintable(child->objectName()));
        }
    }
}

void TestTarnTool::construction_leavesOnlyTheLayoutButtonEnabled()
{
    const CabinetRig rig;
    QCOMPARE(rig.enabledControls(), QStringList(QStringLiteral("layout")));
    QVERIFY(!rig.drawer->m_layoutOn);
    QVERIFY(!rig.panel->m_started);
    QVERIFY(!rig.panel->m_userChanged);
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

void TestTarnTool::forbidControls_locksThePanelAndKeepsTheLayout()
{
    CabinetRig rig;
    rig.layOut();
    const QImage shown = rig.canvas.painted();
    rig.panel->slot_forbidControls();
    QCOMPARE(rig.enabledControls(), QStringList(QStringLiteral("layout")));
    QVERIFY(rig.drawer->m_layoutOn);
    QCOMPARE(rig.canvas.painted(), shown);
}

void TestTarnTool::lockedPanel_leavesItsDialogUsable()
{
    const CabinetRig rig;
    rig.layOut();
    rig.click(rig.setupButton());
    rig.panel->slot_forbidControls();
    auto *dialog = rig.panel->findChild<AdvancedSetup *>();
    QVERIFY(dialog);
    QVERIFY(dialog->isEnabled());
    QVERIFY(!rig.setupButton()->isEnabled());
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
    ScrGrid *drawer = rig.drawer;
    drawer->m_moduleWidth = drawer->m_moduleHeight = 77;
    drawer->m_moduleRowCount = drawer->m_moduleColumnCount = 77;
    drawer->m_bgColor = drawer->m_fontColor = drawer->m_scanColor = Qt::white;
    drawer->m_leftToRight = false;
    drawer->m_bgPicturePath = QStringLiteral("somewhere");
    drawer->m_fontSize = drawer->m_beginColumn = drawer->m_moduleLineWidth = 77;
    rig.panel->getData();

    QCOMPARE(QSize(drawer->m_moduleWidth, drawer->m_moduleHeight), QSize(32, 16));
    QCOMPARE(QSize(drawer->m_moduleColumnCount, drawer->m_moduleRowCount), QSize(2, 2));
    QCOMPARE(drawer->m_bgColor, QColor(Qt::black));
    QCOMPARE(drawer->m_fontColor, QColor(Qt::yellow));
    QCOMPARE(drawer->m_moduleLineColor, QColor(Qt::red));
    QCOMPARE(drawer->m_scanColor, QColor(Qt::blue));
    QVERIFY(drawer->m_leftToRight);
    QCOMPARE(drawer->m_bgPicturePath, QString());
    QCOMPARE(drawer->m_fontSize, 20);
    QCOMPARE(drawer->m_fontShape, 2);
    QCOMPARE(drawer->m_beginRow, 0);
    QCOMPARE(drawer->m_scanLineWidth, 9);
    QCOMPARE(drawer->m_beginColumn, 1); // not stored
    QCOMPARE(drawer->m_moduleLineWidth, 1);
    QVERIFY(drawer->active);
}

void TestTarnTool::box_setsItsFieldAtOnce_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("counts"); // columns and rows
    QTest::newRow("width") << QByteArray("boxWidth") << QSize(50, 16) << QSize(2, 2);
    QTest::newRow("height") << QByteArray("boxHight") << QSize(32, 50) << QSize(2, 2);
    QTest::newRow("columns") << QByteArray("boxColumn") << QSize(32, 16) << QSize(50, 2);
    QTest::newRow("rows") << QByteArray("boxRow") << QSize(32, 16) << QSize(2, 50);
}

void TestTarnTool::box_setsItsFieldAtOnce()
{
    QFETCH(const QByteArray, name);
    const CabinetRig rig;
    rig.layOut();
    rig.panel->getDrawer();
    rig.box(name.constData())->setValue(50);
    QTEST(QSize(rig.drawer->m_moduleWidth, rig.drawer->m_moduleHeight), "size");
    QTEST(QSize(rig.drawer->m_moduleColumnCount, rig.drawer->m_moduleRowCount), "counts");
    QVERIFY(rig.drawer->active);
    QCOMPARE(rig.box(name.constData())->contextMenuPolicy(), Qt::NoContextMenu);
}

void TestTarnTool::order_reachesTheDrawerAtOnce()
{
    const CabinetRig rig;
    rig.layOut();
    rig.panel->getDrawer();
    rig.click("radioBeginRight");
    QVERIFY(!rig.drawer->m_leftToRight);
    QVERIFY(rig.drawer->active);
    QVERIFY(rig.radio("radioBackground")->isChecked()); // the other group is left alone
    rig.panel->getDrawer();
    rig.click("radioBeginLeft");
    QVERIFY(rig.drawer->m_leftToRight);
    QVERIFY(rig.drawer->active);
}

void TestTarnTool::colour_isChosenStoredAndShown_data()
{
    QTest::addColumn<QByteArray>("swatch");
    QTest::addColumn<QByteArray>("colorKey");
    QTest::addColumn<QByteArray>("styleKey");
    QTest::addColumn<int>("field");
    QTest::newRow("numbers") << QByteArray("buttonFont") << QByteArray("tarnFontFontColor")
                             << QByteArray("tarnFontColor") << 0;
    QTest::newRow("module lines") << QByteArray("buttonModeLine")
                                  << QByteArray("tarnModuleLineColor")
                                  << QByteArray("tarnBoxLineColor") << 1;
    QTest::newRow("scan-board lines") << QByteArray("buttonScan") << QByteArray("tarnScanLineColor")
                                      << QByteArray("tarnModelColor") << 2;
    QTest::newRow("background") << QByteArray("labelColor") << QByteArray("tarnBackColor")
                                << QByteArray("tarnBackgroundColor") << 3;
}

void TestTarnTool::colour_isChosenStoredAndShown()
{
    QFETCH(const QByteArray, swatch);
    QFETCH(const QByteArray, colorKey);
    QFETCH(const QByteArray, styleKey);
    QFETCH(const int, field);
    const DialogAnswers answers;
    const CabinetRig rig;
    rig.layOut();
    rig.panel->getDrawer();
    QColor initial;
    ColorDialog::setAnswer([&initial](const QColor &color) {
        initial = color;
        return QColor(1, 20, 255);
    });
    rig.click(swatch.constData());

    QCOMPARE(initial, QColor(Qt::green));
    QCOMPARE(rig.style(swatch.constData()), QStringLiteral("background-color: rgb(1,20,255)"));
    QCOMPARE(rig.stored(styleKey.constData()).toString(),
             QStringLiteral("background-color: rgb(1,20,255)"));
    QCOMPARE(rig.stored(colorKey.constData()).value<QColor>(), QColor(1, 20, 255));
    const QColor fields[] = {rig.drawer->m_fontColor, rig.drawer->m_moduleLineColor,
                             rig.drawer->m_scanColor, rig.drawer->m_bgColor};
    for (int each = 0; each < 4; ++each)
        QCOMPARE(fields[each] == QColor(1, 20, 255), each == field);
    QVERIFY(rig.drawer->active);
}

void TestTarnTool::cancelledColour_changesNothing_data()
{
    colour_isChosenStoredAndShown_data();
}

void TestTarnTool::cancelledColour_changesNothing()
{
    QFETCH(const QByteArray, swatch);
    const DialogAnswers answers;
    const CabinetRig rig;
    rig.layOut();
    rig.panel->getDrawer();
    const QString style = rig.style(swatch.constData());
    QVariantMap before = rig.settings.stored();
    DialogAnswers::color(QColor());
    rig.click(swatch.constData());

    QCOMPARE(rig.style(swatch.constData()), style);
    QCOMPARE(rig.settings.stored(), before);
    QVERIFY(!rig.drawer->active);
    QVERIFY(!rig.isSaveDue());
}

void TestTarnTool::clickOnTheColourLabelWhilePictureIsSelected_doesNothing()
{
    const DialogAnswers answers;
    const CabinetRig rig({}, pictureFile(Qt::cyan));
    rig.layOut();
    QVERIFY(rig.radio("radioPicture")->isChecked());
    ColorDialog::setAnswer([](const QColor &) -> QColor { qFatal("nothing is to be asked"); });
    rig.panel->getDrawer();
    rig.click("labelColor");
    QVERIFY(!rig.drawer->active);
    QCOMPARE(rig.drawer->m_bgPicturePath, KeptPicture::path());
}

void TestTarnTool::spaceKey_opensTheColourOfTheLabel()
{
    const DialogAnswers answers;
    DialogAnswers::color(Qt::magenta);
    const CabinetRig rig;
    rig.panel->show();
    QVERIFY(QTest::qWaitForWindowActive(rig.panel.get()));
    rig.layOut();
    rig.widget("labelColor")->setFocus();
    QTest::keyClick(rig.widget("labelColor"), Qt::Key_Space);
    QCOMPARE(rig.drawer->m_bgColor, QColor(Qt::magenta));
}

void TestTarnTool::change_asksForARepaint()
{
    CabinetRig rig;
    rig.canvas.show();
    QVERIFY(QTest::qWaitForWindowExposed(&rig.canvas));
    const auto isRepainted = [&rig](const std::function<void()> &change) {
        QCoreApplication::processEvents();
        const int before = rig.canvas.paintCount();
        change();
        return QTest::qWaitFor([&] { return rig.canvas.paintCount() > before; });
    };
    QVERIFY(isRepainted([&] { rig.layOut(); }));
    QVERIFY(isRepainted([&] { rig.box("boxWidth")->setValue(20); }));
    QVERIFY(isRepainted([&] { rig.click("radioBeginRight"); }));
}

void TestTarnTool::operatorsChange_raisesTheFlag_data()
{
    QTest::addColumn<QByteArray>("control");
    for (const char *name : {"layout", "boxWidth", "boxHight", "boxRow", "boxColumn",
                             "radioBeginLeft", "radioBeginRight", "radioBackground", "radioPicture",
                             "buttonFont", "buttonModeLine", "buttonScan", "labelColor"})
        QTest::newRow(name) << QByteArray(name);
}

void TestTarnTool::operatorsChange_raisesTheFlag()
{
    QFETCH(const QByteArray, control);
    const DialogAnswers answers;
    DialogAnswers::color(Qt::white);
    DialogAnswers::file(QString());
    const CabinetRig rig;
    rig.layOut();
    rig.panel->m_userChanged = false;
    if (auto *box = qobject_cast<QSpinBox *>(rig.widget(control.constData())))
        box->setValue(60);
    else
        rig.click(control == "layout" ? rig.layoutButton() : rig.widget(control.constData()));
    QVERIFY(rig.panel->m_userChanged);
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

void TestTarnTool::withoutSettings_thePanelWorks()
{
    const DialogAnswers answers;
    DialogAnswers::color(Qt::white);
    KeptPicture::set({});
    Canvas canvas;
    TarnTool panel(&canvas, nullptr, nullptr);
    auto *drawer = qobject_cast<ScrGrid *>(panel.getDrawer());
    const auto buttons = panel.findChildren<QPushButton *>();
    for (QPushButton *button : buttons) // the last is the layout button
        button->click();
    panel.findChild<QPushButton *>(QStringLiteral("buttonFont"))->click();
    panel.findChild<QSpinBox *>(QStringLiteral("boxRow"))->setValue(3);
    panel.saveTarnBaseInfo();
    QVERIFY(drawer->m_layoutOn);
    QCOMPARE(drawer->m_moduleRowCount, 3);
    QCOMPARE(drawer->m_fontColor, QColor(Qt::white));
    QCOMPARE(drawer->m_scanColor, QColor(Qt::blue));
}

void TestTarnTool::withoutSettings_thePanelShowsItsDefaults()
{
    Canvas canvas;
    const TarnTool panel(&canvas, nullptr, nullptr);
    const std::pair<const char *, int> counts[] = {
        {"boxHight", 16}, {"boxWidth", 32}, {"boxColumn", 2}, {"boxRow", 2}};
    for (const auto &[name, value] : counts)
        QCOMPARE(panel.findChild<QSpinBox *>(QLatin1String(name))->value(), value);
    for (const char *name : {"radioBackground", "radioBeginLeft"})
        QVERIFY(panel.findChild<QRadioButton *>(QLatin1String(name))->isChecked());
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
