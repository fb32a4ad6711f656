#include "mainwindow.h"

#include "ui_mainwindow.h"

#include "commonhelper.h"
#include "drawctrlform.h"
#include "drawerbase.h"
#include "form.h"
#include "puritykeys.h"
#include "screenarea.h"
#include "scrpurityctrldialog.h"
#include "settingsrules.h"
#include "testcolor.h"

#include <QCoreApplication>
#include <QIcon>
#include <QSettings>

namespace {

constexpr QLatin1String currentTabKey("/setting/currentTabIndex");

// The panels' places among the tabs.
enum Tab : qint16 {
    PlacementTab,
    PurityTab,
    GradientTab,
    GridTab,
    CabinetTab,
    HelpTab,
    AboutTab,
    TabCount
};

constexpr const char *tabTitles[TabCount] = {
    QT_TRANSLATE_NOOP("MainWindow", "窗口"), QT_TRANSLATE_NOOP("MainWindow", "纯色"),
    QT_TRANSLATE_NOOP("MainWindow", "渐变"), QT_TRANSLATE_NOOP("MainWindow", "网格"),
    QT_TRANSLATE_NOOP("MainWindow", "定位"), QT_TRANSLATE_NOOP("MainWindow", "帮助"),
    QT_TRANSLATE_NOOP("MainWindow", "关于"),
};

// Long enough for the window manager to have moved what it moves itself.
constexpr int screenChangeSettlesMs = 300;

constexpr int lastPurityStep = TestColor::pageColorCount - 1;

// The test window before its first pattern, and its context menu.
QString testWindowStyle(const QColor &background)
{
    return QStringLiteral("QWidget{background-color:") + QVariant(background).toString()
           + QStringLiteral(";}"
                            "QMenu {border: 0px solid black;background-color: white;}"
                            "QMenu::item {color: black;width: 80px;height: 26px;margin: 0;"
                            "background-color: white; border: 0px solid black;}");
}

QSettings *openSettings(QObject *parent)
{
    auto *settings =
        new QSettings(QCoreApplication::applicationDirPath() + QStringLiteral("/config.ini"),
                      QSettings::IniFormat, parent);
    settings->setIniCodec("UTF-8");
    return settings;
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : UX::Utils::AppMainWindow(parent)
    , ui(makeForm<Ui::MainWindow>(this))
    , settings(openSettings(this))
{
    m_afterScreenChange.setSingleShot(true);
    m_afterScreenChange.setInterval(screenChangeSettlesMs);
    connect(&m_afterScreenChange, &QTimer::timeout, this, &MainWindow::stayReachable);
    initCtrls();
    initTitleBar();
    initSlots();
    setInitDrawWindowInfo();
    connect(ui->tabWidget, &QTabWidget::currentChanged, this, &MainWindow::slot_currentTabWidget);
}

// The panels save while the settings and the test window are still there, and without the tabs
// that go making others current.
MainWindow::~MainWindow()
{
    ui->tabWidget->disconnect(this);
    delete ui->tabWidget;
}

void MainWindow::initCtrls()
{
    setStyleSheet(CommonHelper::setStyle(QStringLiteral(":/qss/global_style.css")));
    keyHelper = std::make_unique<CommonHelper>();
    testWindow.setKeyHelper(keyHelper.get());
    testWindow.setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    testWindow.show();
    setTabs();
}

void MainWindow::initTitleBar()
{
    setWindowIcon(QIcon(QStringLiteral(":/Resource/Image/logo/TarnTestTool.ico")));
    setWindowTitle(tr("显示屏测试工具-Tarn"));
}

void MainWindow::setTabs()
{
    placementPanel = new DrawCtrlForm(&testWindow, settings, this);
    addTab(placementPanel, nullptr);
    purityPanel = new ScrPurityCtrlDialog(&testWindow, settings, this);
    addTab(purityPanel, purityPanel->getDrawer());
    while (ui->tabWidget->count() < TabCount)
        addTab(new QWidget(this), nullptr);
}

void MainWindow::addTab(QWidget *panel, DrawerBase *drawer)
{
    const int index = ui->tabWidget->addTab(panel, tr(tabTitles[ui->tabWidget->count()]));
    tabTable[index] = {panel, drawer};
}

void MainWindow::updateLanguage()
{
    setWindowTitle(tr("显示屏测试工具-Tarn"));
    testWindow.updateLanguage();
    placementPanel->updateLanguage();
    purityPanel->updateLanguage();
    for (int index = 0; index < TabCount; ++index)
        ui->tabWidget->setTabText(index, tr(tabTitles[index]));
    ui->tabWidget->setFont(QFont(QStringLiteral("Arial")));
}

void MainWindow::initSlots()
{
    connect(ui->tabWidget, &QTabWidget::currentChanged, this, &MainWindow::slot_SwitchWindow);
    initKeySlots();
    initTestWindowSlots();
    initPanelSlots();
}

void MainWindow::initKeySlots()
{
    const CommonHelper *keys = keyHelper.get();
    using K = CommonHelper;
    using P = DrawCtrlForm;
    connect(keys, &K::signal_keyHomePressed, &testWindow, &DrawContainer::slot_keyHomePressed);
    connect(keys, &K::signal_keyEndPressed, &testWindow, &DrawContainer::slot_keyEndPressed);
    connect(keys, &K::signal_keyPageUpPressed, this, &MainWindow::slot_SwitchUpTabControl);
    connect(keys, &K::signal_keyPageDownPressed, this, &MainWindow::slot_SwitchDownTabControl);
    connect(keys, &K::signal_keyShiftUpPressed, placementPanel, &P::slot_keyShiftUpPressed);
    connect(keys, &K::signal_keyShiftDownPressed, placementPanel, &P::slot_keyShiftDownPressed);
    connect(keys, &K::signal_keyShiftLeftPressed, placementPanel, &P::slot_keyShiftLeftPressed);
    connect(keys, &K::signal_keyShiftRightPressed, placementPanel, &P::slot_keyShiftRightPressed);
    connect(keys, &K::signal_keyShiftFPressed, &testWindow, &DrawContainer::slot_keyShiftFPressed);
    connect(keys, &K::signal_keyCtrlUpPressed, placementPanel, &P::slot_keyCtrlUpPressed);
    connect(keys, &K::signal_keyCtrlDownPressed, placementPanel, &P::slot_keyCtrlDownPressed);
    connect(keys, &K::signal_keyCtrlLeftPressed, placementPanel, &P::slot_keyCtrlLeftPressed);
    connect(keys, &K::signal_keyCtrlRightPressed, placementPanel, &P::slot_keyCtrlRightPressed);
    connect(keys, &K::signal_keyShiftHPressed, &testWindow, &DrawContainer::slot_keyShiftHPressed);
    connectArrowKeys(purityPanel, settings->value(currentTabKey).toInt() == PurityTab);
    connect(keys, &K::signal_keyInsertPressed, purityPanel,
            &ScrPurityCtrlDialog::slot_keyInsertPressed);
    connect(keys, &K::signal_keyDeletePressed, purityPanel,
            &ScrPurityCtrlDialog::slot_keyDeletePressed);
}

void MainWindow::initTestWindowSlots()
{
    using P = DrawCtrlForm;
    connect(&testWindow, &DrawContainer::signal_containerWidgetHide, placementPanel,
            &P::slot_enableShowButton);
    connect(&testWindow, &DrawContainer::signal_containerWidgetShow, placementPanel,
            &P::slot_disableShowButton);
    connect(&testWindow, &DrawContainer::signal_drawWidgetSizeChange, placementPanel,
            &P::slot_drawWidgetSizeChange);
    connect(&testWindow, &DrawContainer::signal_drawWidgetPositionChange, placementPanel,
            &P::slot_drawWidgetPositionChange);
    connect(placementPanel, &P::signal_screenMaxSizeChanged, &testWindow,
            &DrawContainer::slot_setScreenMaxSize);
    connect(this, &MainWindow::signal_sendScreenMaxSize, placementPanel, &P::getScreenSize);
    emit signal_sendScreenMaxSize();
    connect(placementPanel, &P::signal_screenMaxSizeChanged, &m_afterScreenChange,
            qOverload<>(&QTimer::start));
    connect(this, &MainWindow::signal_colorChanged, &testWindow,
            &DrawContainer::slot_changeSelectedDrawColor);
    connect(this, &MainWindow::signal_greyChanged, &testWindow,
            &DrawContainer::slot_changeSelectedDrawGrey);
}

// The control window does not stay behind on a screen that is gone.
void MainWindow::stayReachable()
{
    const QRect frame = frameGeometry();
    const QPoint place = ScreenArea::movedInto(frame, ScreenArea::around(frame.center())).topLeft();
    if (place != frame.topLeft())
        move(place);
}

void MainWindow::initPanelSlots()
{
    connectFeed(purityPanel, &ScrPurityCtrlDialog::signal_colorChanged, true);
    connect(this, &MainWindow::signal_stopGreyChanged, purityPanel,
            &ScrPurityCtrlDialog::slot_stopChangeGrey);
}

// What the test window shows before any pattern, what its overlay says, and the last tab.
void MainWindow::setInitDrawWindowInfo()
{
    const QString grey = storedGrey();
    emit signal_greyChanged(grey);
    const QColor stored(settings->value(SharedKey::baseColor).toString());
    QColor color = stored.isValid() ? stored : QColor(Qt::red);
    emit signal_colorChanged(color);
    color.setAlpha(qBound(0, grey.toInt(), 255)); // painted over nothing, so it dims
    testWindow.setStyleSheet(testWindowStyle(color));

    const int tab = settings->value(currentTabKey).toInt();
    ui->tabWidget->setCurrentIndex(tab);
    currentTabIndex = tab == GridTab ? PlacementTab : tab;
}

QString MainWindow::storedGrey() const
{
    if (settings->value(PurityKey::autoMode).toBool())
        return QString::number(settings->value(PurityKey::autoGrey).toInt());
    return QString::number(
        SettingsRules::positiveInt(*settings, PurityKey::manualGrey, PurityKey::defaultGrey));
}

void MainWindow::saveSettings()
{
    placementPanel->saveWindowBaseInfo();
    purityPanel->saveScrPurityInfo();
    settings->sync();
}

void MainWindow::slot_keyPressed(QKeyEvent *event)
{
    keyHelper->dealKeyPressEvent(event);
}

void MainWindow::keyPressEvent(QKeyEvent *event)
{
    keyHelper->dealKeyPressEvent(event);
}

// A double click on the control window does nothing.
void MainWindow::mouseDoubleClickEvent(QMouseEvent * /*event*/) { }

void MainWindow::slot_SwitchWindow(int index)
{
    pauseGridStatus();
    cycleTab = static_cast<qint16>(index);
    if (index != CabinetTab)
        emit signal_forbidTarnToolCtrls();
    const auto entry = tabTable.find(index);
    if (entry != tabTable.end() && entry->second.second) {
        testWindow.setDrawer(entry->second.second, false);
        SettingsRules::store(*settings, currentTabKey, index);
    }
    testWindow.update();
}

void MainWindow::slot_currentTabWidget(int index)
{
    grayScaleChange(index);
    const bool countsAsFirst = index == GridTab || index == HelpTab || index == AboutTab;
    currentTabIndex = countsAsFirst ? PlacementTab : index;
}

// Gives the arrow keys and the test window's overlay to the current panel.
void MainWindow::grayScaleChange(int index)
{
    connectArrowKeys(purityPanel, index == PurityTab);
    if (index == PurityTab || index == GradientTab || index == GridTab)
        connectFeed(purityPanel, &ScrPurityCtrlDialog::signal_colorChanged, index == PurityTab);
}

template<typename Panel>
void MainWindow::connectArrowKeys(Panel *panel, bool on)
{
    const auto set = [this, panel, on](auto signal, auto slot) {
        disconnect(keyHelper.get(), signal, panel, slot);
        if (on)
            connect(keyHelper.get(), signal, panel, slot);
    };
    set(&CommonHelper::signal_keyUpPressed, &Panel::slot_keyUpPressed);
    set(&CommonHelper::signal_keyDownPressed, &Panel::slot_keyDownPressed);
    set(&CommonHelper::signal_keyLeftPressed, &Panel::slot_keyLeftPressed);
    set(&CommonHelper::signal_keyRightPressed, &Panel::slot_keyRightPressed);
}

template<typename Panel, typename ColorSignal>
void MainWindow::connectFeed(Panel *panel, ColorSignal colorSignal, bool on)
{
    const auto set = [this, panel, on](auto signal, auto slot) {
        disconnect(panel, signal, &testWindow, slot);
        if (on)
            connect(panel, signal, &testWindow, slot);
    };
    set(colorSignal, &DrawContainer::slot_changeSelectedDrawColor);
    set(&Panel::signal_greyChanged, &DrawContainer::slot_changeSelectedDrawGrey);
}

// What the operator changed in a panel while it was shown no longer matters to the next one.
void MainWindow::pauseGridStatus()
{
    purityPanel->puritySelected = false;
}

void MainWindow::makeTabCurrent(int index)
{
    cycleTab = static_cast<qint16>(index);
    ui->tabWidget->setCurrentIndex(index);
}

void MainWindow::slot_SwitchDownTabControl()
{
    emit signal_stopGreyChanged();
    switch (cycleTab) {
    case GradientTab:
        makeTabCurrent(GridTab);
        return;
    case GridTab:
        makeTabCurrent(PurityTab);
        purityPanel->colorIndex = 0;
        purityPanel->slot_changeColorByPageUpDown();
        return;
    case PurityTab:
        break;
    default:
        makeTabCurrent(PurityTab);
    }
    setPurityCtrlPageDownEvent();
}

void MainWindow::slot_SwitchUpTabControl()
{
    emit signal_stopGreyChanged();
    switch (cycleTab) {
    case PurityTab:
        setPurityCtrlPageUpEvent();
        return;
    case GradientTab:
        purityPanel->canclePageUpDownSelect();
        makeTabCurrent(PurityTab);
        purityPanel->colorIndex = lastPurityStep;
        purityPanel->slot_changeColorByPageUpDown();
        return;
    case GridTab:
        makeTabCurrent(GradientTab);
        return;
    default:
        makeTabCurrent(GridTab);
    }
}

void MainWindow::setPurityCtrlPageDownEvent()
{
    if (purityPanel->colorIndex >= lastPurityStep) {
        purityPanel->canclePageUpDownSelect();
        makeTabCurrent(GradientTab);
        return;
    }
    ++purityPanel->colorIndex;
    purityPanel->slot_changeColorByPageUpDown();
}

void MainWindow::setPurityCtrlPageUpEvent()
{
    if (purityPanel->colorIndex < 1) {
        makeTabCurrent(GridTab);
        return;
    }
    --purityPanel->colorIndex;
    purityPanel->slot_changeColorByPageUpDown();
}
