#include "mainwindow.h"

#include "ui_mainwindow.h"

#include "accessiblebutton.h"
#include "commonhelper.h"
#include "desktopscale.h"
#include "displaysign.h"
#include "drawctrlform.h"
#include "drawerbase.h"
#include "form.h"
#include "gradualchangectrlwidget.h"
#include "griddrawer.h"
#include "pagecycle.h"
#include "scraboutwidget.h"
#include "screenarea.h"
#include "screenwakelock.h"
#include "scrgridctrldialog.h"
#include "scrhelperctrlwidget.h"
#include "scrpurityctrldialog.h"
#include "settingsfile.h"
#include "settingsrules.h"
#include "storedsettings.h"
#include "tarntool.h"
#include "titlebar.h"

#include <QCoreApplication>
#include <QIcon>
#include <QScrollArea>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>
#include <QToolTip>

using Gradient = GradualChangeCtrlWidget;
using Grid = ScrGridCtrlDialog;
using Keys = CommonHelper;
using Place = DrawCtrlForm;
using Purity = ScrPurityCtrlDialog;
using Window = DrawContainer;

namespace {

constexpr QLatin1String currentTabKey = latin1("/setting/currentTabIndex");

// Long enough for the window manager to have moved what it moves itself.
constexpr int screenChangeSettlesMs = 300;

constexpr const char *tabTitles[] = {
    QT_TRANSLATE_NOOP("MainWindow", "窗口"), QT_TRANSLATE_NOOP("MainWindow", "纯色"),
    QT_TRANSLATE_NOOP("MainWindow", "渐变"), QT_TRANSLATE_NOOP("MainWindow", "网格"),
    QT_TRANSLATE_NOOP("MainWindow", "定位"), QT_TRANSLATE_NOOP("MainWindow", "帮助"),
    QT_TRANSLATE_NOOP("MainWindow", "关于"),
};

// The test window before its first pattern, and its context menu.
QString testWindowStyle(const QColor &background)
{
    return QStringLiteral("QWidget{background-color:") + QVariant(background).toString()
           + QStringLiteral(";}"
                            "QMenu {border: 0px solid black;background-color: white;}"
                            "QMenu::item {color: black;width: 80px;height: 26px;margin: 0;"
                            "background-color: white; border: 0px solid black;}");
}

StoredSettings *openSettings()
{
    const QString path = QCoreApplication::applicationDirPath() + QStringLiteral("/config.ini");
    return new StoredSettings(SettingsFile::values(path), path);
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : MainWindow(parent, openSettings())
{ }

MainWindow::MainWindow(QWidget *parent, StoredSettings *settings)
    : UX::Utils::AppMainWindow(parent)
    , ui(makeForm<Ui::MainWindow>(this))
    , m_settings(settings)
{
    m_settings->setParent(this);
    initCtrls();
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
    AccessibleButton::install(); // before any panel is there
    setStyleSheet(CommonHelper::setStyle(QStringLiteral(":/qss/global_style.css")));
    m_testWindow.setKeyHelper(&m_keyHelper);
    m_testWindow.setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setWindowIcon(QIcon(QStringLiteral(":/Resource/Image/logo/TarnTestTool.ico")));
    setWindowTitle(tr("显示屏测试工具-Tarn"));
    new ScreenWakeLock(&m_testWindow);
    titleBar()->addSign(new DisplaySign(&m_testWindow, this));
    QToolTip::setFont(DesktopScale::font(QToolTip::font()));
    setTabs(); // the placement panel shows the test window, unless it was left hidden
    DesktopScale::apply(this);
}

void MainWindow::setTabs()
{
    m_placementPanel = new Place(&m_testWindow, m_settings, this);
    addTab(m_placementPanel, nullptr);
    m_purityPanel = new Purity(&m_testWindow, m_settings, this);
    addTab(m_purityPanel, m_purityPanel->getDrawer());
    m_gradientPanel = new Gradient(&m_testWindow, m_settings, this);
    addTab(m_gradientPanel, m_gradientPanel->getDrawer());
    m_gridPanel = new Grid(&m_testWindow, m_settings, this);
    addTab(m_gridPanel, m_gridPanel->getDrawer());
    m_cabinetPanel = new TarnTool(&m_testWindow, m_settings, this);
    addTab(m_cabinetPanel, m_cabinetPanel->getDrawer());
    addTab(createHelpTab(), nullptr);
    m_aboutPanel = new ScrAboutWidget;
    addTab(m_aboutPanel, nullptr);
    m_pageCycle =
        std::make_unique<PageCycle>(ui->tabWidget, m_purityPanel, m_gradientPanel, m_gridPanel);
    (new GridDrawer(this))->setParent(this); // Specified: a spare one, used by nothing
    // Qt's names for the scroll buttons, which are never seen, would be read out in English.
    const auto scrollButtons = ui->tabWidget->tabBar()->findChildren<QToolButton *>();
    for (QToolButton *button : scrollButtons)
        button->setAccessibleName({});
}

void MainWindow::addTab(QWidget *panel, DrawerBase *drawer)
{
    const int index = ui->tabWidget->addTab(panel, tr(tabTitles[ui->tabWidget->count()]));
    m_drawers[index] = drawer;
}

QWidget *MainWindow::createHelpTab()
{
    m_helpPanel = new ScrHelperCtrlWidget;
    auto *scrollArea = new QScrollArea;
    scrollArea->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scrollArea->setWidgetResizable(true);
    scrollArea->setWidget(m_helpPanel);
    return scrollArea;
}

void MainWindow::updateLanguage()
{
    setWindowTitle(tr("显示屏测试工具-Tarn"));
    m_testWindow.updateLanguage();
    m_placementPanel->updateLanguage();
    m_purityPanel->updateLanguage();
    m_gradientPanel->updateLanguage();
    m_gridPanel->updateLanguage();
    m_cabinetPanel->updateLanguage();
    m_helpPanel->updateLanguage();
    m_aboutPanel->updateLanguage();
    for (int index = 0; index < TabCount; ++index)
        ui->tabWidget->setTabText(index, tr(tabTitles[index]));
    ui->tabWidget->setFont(QFont(QStringLiteral("Arial")));
}

void MainWindow::initSlots()
{
    connect(ui->tabWidget, &QTabWidget::currentChanged, this, &MainWindow::slot_SwitchWindow);
    // Qt gives it to the first swatch, whose ring looks as if it were the chosen one.
    connect(ui->tabWidget, &QTabWidget::currentChanged, ui->tabWidget->tabBar(),
            qOverload<>(&QWidget::setFocus));
    initKeySlots();
    initTestWindowSlots();
    initPanelSlots();
}

void MainWindow::initKeySlots()
{
    const Keys *const keys = &m_keyHelper;
    auto *const window = &m_testWindow;
    auto *const place = m_placementPanel;
    connect(keys, &Keys::signal_keyHomePressed, window, &Window::slot_keyHomePressed);
    connect(keys, &Keys::signal_keyEndPressed, window, &Window::slot_keyEndPressed);
    connect(keys, &Keys::signal_keyPageUpPressed, this, &MainWindow::slot_SwitchUpTabControl);
    connect(keys, &Keys::signal_keyPageDownPressed, this, &MainWindow::slot_SwitchDownTabControl);
    connect(keys, &Keys::signal_keyShiftUpPressed, place, &Place::slot_keyShiftUpPressed);
    connect(keys, &Keys::signal_keyShiftDownPressed, place, &Place::slot_keyShiftDownPressed);
    connect(keys, &Keys::signal_keyShiftLeftPressed, place, &Place::slot_keyShiftLeftPressed);
    connect(keys, &Keys::signal_keyShiftRightPressed, place, &Place::slot_keyShiftRightPressed);
    connect(keys, &Keys::signal_keyShiftFPressed, window, &Window::slot_keyShiftFPressed);
    connect(keys, &Keys::signal_keyCtrlUpPressed, place, &Place::slot_keyCtrlUpPressed);
    connect(keys, &Keys::signal_keyCtrlDownPressed, place, &Place::slot_keyCtrlDownPressed);
    connect(keys, &Keys::signal_keyCtrlLeftPressed, place, &Place::slot_keyCtrlLeftPressed);
    connect(keys, &Keys::signal_keyCtrlRightPressed, place, &Place::slot_keyCtrlRightPressed);
    connect(keys, &Keys::signal_keyShiftHPressed, window, &Window::slot_keyShiftHPressed);
    const int savedTab = m_settings->value(currentTabKey).toInt();
    connectArrowKeys(m_purityPanel, savedTab == PurityTab);
    connectArrowKeys(m_gridPanel, savedTab == GridTab);
    connect(keys, &Keys::signal_keyInsertPressed, m_gridPanel, &Grid::slot_keyInsertPressed);
    connect(keys, &Keys::signal_keyDeletePressed, m_gridPanel, &Grid::slot_keyDeletePressed);
    connect(keys, &Keys::signal_keyInsertPressed, m_purityPanel, &Purity::slot_keyInsertPressed);
    connect(keys, &Keys::signal_keyDeletePressed, m_purityPanel, &Purity::slot_keyDeletePressed);
}

void MainWindow::initTestWindowSlots()
{
    auto *const window = &m_testWindow;
    auto *const place = m_placementPanel;
    connect(window, &Window::signal_containerWidgetHide, place, &Place::slot_enableShowButton);
    connect(window, &Window::signal_containerWidgetShow, place, &Place::slot_disableShowButton);
    connect(window, &Window::signal_drawWidgetSizeChange, place, &Place::slot_drawWidgetSizeChange);
    connect(window, &Window::signal_drawWidgetPositionChange, place,
            &Place::slot_drawWidgetPositionChange);
    connect(window, &Window::signal_drawWidgetSizeChange, m_cabinetPanel,
            &TarnTool::slot_drawerSizeChanged);
    connect(place, &Place::signal_screenMaxSizeChanged, window, &Window::slot_setScreenMaxSize);
    connect(this, &MainWindow::signal_sendScreenMaxSize, place, &Place::getScreenSize);
    emit signal_sendScreenMaxSize();
    connect(place, &Place::signal_screenMaxSizeChanged, this, [this] {
        QTimer::singleShot(screenChangeSettlesMs, this, &MainWindow::moveOntoScreen);
    });
    connect(this, &MainWindow::signal_colorChanged, window, &Window::slot_changeSelectedDrawColor);
    connect(this, &MainWindow::signal_greyChanged, window, &Window::slot_changeSelectedDrawGrey);
}

// The three panels share the chosen colour, each tells the test window's overlay while its tab is
// current, and a run of one stops the run of the other.
void MainWindow::initPanelSlots()
{
    auto *const purity = m_purityPanel;
    auto *const gradient = m_gradientPanel;
    auto *const grid = m_gridPanel;
    const auto toPurity = &Purity::slot_changeSelectedPurityColor;
    const auto toGradient = &Gradient::slot_changeSelectedGradualColor;
    const auto toGrid = &Grid::slot_changeSelectedGridColor;
    connect(purity, &Purity::signal_colorChanged, gradient, toGradient);
    connect(purity, &Purity::signal_colorChanged, grid, toGrid);
    connect(gradient, &Gradient::signal_selectColorChanged, purity, toPurity);
    connect(gradient, &Gradient::signal_selectColorChanged, grid, toGrid);
    connect(grid, &Grid::signal_colorChanged, purity, toPurity);
    connect(grid, &Grid::signal_colorChanged, gradient, toGradient);

    connectFeed(purity, &Purity::signal_colorChanged, true);
    connectFeed(gradient, &Gradient::signal_selectColorChanged, true);
    connectFeed(grid, &Grid::signal_colorChanged, true);
    connect(grid, &Grid::signal_oldMixColorChanged, &m_testWindow,
            &Window::slot_changeSelectedDrawColor);

    connect(this, &MainWindow::signal_stopGreyChanged, purity, &Purity::slot_stopChangeGrey);
    connect(this, &MainWindow::signal_stopGreyChanged, grid, &Grid::slot_stopStartPauseStatus);
    connect(grid, &Grid::signal_gridAutoChange, purity, &Purity::slot_stopChangeGrey);
    connect(purity, &Purity::signal_purityAutoChange, grid, &Grid::slot_stopPauseStatus);
    connect(this, &MainWindow::signal_forbidTarnToolCtrls, m_cabinetPanel,
            &TarnTool::slot_forbidControls);
}

// Gives the arrow keys and the test window's overlay to the current panel.
void MainWindow::grayScaleChange(int index)
{
    connectArrowKeys(m_purityPanel, index == PurityTab);
    connectArrowKeys(m_gridPanel, index == GridTab);
    if (index != PurityTab && index != GradientTab && index != GridTab)
        return; // the overlay goes on with the panel of before
    connectFeed(m_purityPanel, &Purity::signal_colorChanged, index == PurityTab);
    connectFeed(m_gradientPanel, &Gradient::signal_selectColorChanged, index == GradientTab);
    connectFeed(m_gridPanel, &Grid::signal_colorChanged, index == GridTab);
}

template<typename Panel>
void MainWindow::connectArrowKeys(Panel *panel, bool on)
{
    const auto set = [this, panel, on](auto signal, auto slot) {
        disconnect(&m_keyHelper, signal, panel, slot);
        if (on)
            connect(&m_keyHelper, signal, panel, slot);
    };
    set(&Keys::signal_keyUpPressed, &Panel::slot_keyUpPressed);
    set(&Keys::signal_keyDownPressed, &Panel::slot_keyDownPressed);
    set(&Keys::signal_keyLeftPressed, &Panel::slot_keyLeftPressed);
    set(&Keys::signal_keyRightPressed, &Panel::slot_keyRightPressed);
}

template<typename Panel, typename ColorSignal>
void MainWindow::connectFeed(Panel *panel, ColorSignal colorSignal, bool on)
{
    const auto set = [this, panel, on](auto signal, auto slot) {
        disconnect(panel, signal, &m_testWindow, slot);
        if (on)
            connect(panel, signal, &m_testWindow, slot);
    };
    set(colorSignal, &Window::slot_changeSelectedDrawColor);
    set(&Panel::signal_greyChanged, &Window::slot_changeSelectedDrawGrey);
}

// What the test window shows before any pattern, what its overlay says, and the last tab.
void MainWindow::setInitDrawWindowInfo()
{
    const QString grey = m_purityPanel->storedGrey();
    emit signal_greyChanged(grey);
    const QColor stored(m_settings->value(SharedKey::baseColor).toString());
    QColor color = stored.isValid() ? stored : QColor(Qt::red);
    emit signal_colorChanged(color);
    color.setAlpha(qBound(0, grey.toInt(), 255)); // painted over nothing, so it dims
    m_testWindow.setStyleSheet(DesktopScale::styleSheet(testWindowStyle(color)));

    // Only this once the grid counts as the tab before, which resumes its run.
    currentTabIndex = m_settings->value(currentTabKey).toInt();
    ui->tabWidget->setCurrentIndex(currentTabIndex);
    if (currentTabIndex == GridTab)
        currentTabIndex = PlacementTab;
}

void MainWindow::saveSettings()
{
    m_placementPanel->saveWindowBaseInfo();
    m_purityPanel->saveScrPurityInfo();
    m_gradientPanel->saveGradualChangeInfo();
    m_gridPanel->saveWhileRunning();
    m_cabinetPanel->saveTarnBaseInfo();
    m_settings->save();
}

void MainWindow::slot_SwitchWindow(int index)
{
    dealGridInitStatus();
    if (index != CabinetTab)
        emit signal_forbidTarnToolCtrls();
    if (DrawerBase *drawer = m_drawers.value(index)) {
        m_testWindow.setDrawer(drawer, false);
        SettingsRules::store(*m_settings, currentTabKey, index);
    }
    m_testWindow.update();
}

void MainWindow::slot_SwitchUpTabControl()
{
    emit signal_stopGreyChanged();
    m_pageCycle->stepUp();
}

void MainWindow::slot_SwitchDownTabControl()
{
    emit signal_stopGreyChanged();
    m_pageCycle->stepDown();
}

void MainWindow::slot_currentTabWidget(int index)
{
    grayScaleChange(index);
    const bool countsAsFirst = index == GridTab || index == HelpTab || index == AboutTab;
    currentTabIndex = countsAsFirst ? PlacementTab : index;
}

// The control window does not stay behind on a screen that is gone.
void MainWindow::moveOntoScreen()
{
    const QRect frame = frameGeometry();
    const QPoint place =
        ScreenArea::constrained(frame, ScreenArea::around(frame.center())).topLeft();
    if (place != frame.topLeft())
        move(place);
}

// A panel whose settings the operator changed has taken the screen from the grid, so the grid's
// run stops.
void MainWindow::pauseGridStatus()
{
    const bool isLocked = m_gridPanel->scrollLocked; // Specified: the cabinet does not ask
    if ((currentTabIndex == PurityTab && m_purityPanel->puritySelected && !isLocked)
        || (currentTabIndex == GradientTab && m_gradientPanel->m_userChanged && !isLocked)
        || (currentTabIndex == CabinetTab && m_cabinetPanel->m_userChanged))
        m_gridPanel->setScrollEnabled(false);
    m_purityPanel->puritySelected = false;
    m_gradientPanel->m_userChanged = false;
    m_cabinetPanel->m_userChanged = false;
}

// Brings the grid's run back to what it was when the tab changes, unless it has to stop.
void MainWindow::dealGridInitStatus()
{
    if (m_gridPanel->pushButtonPauseChecked)
        m_gridPanel->gridBtnClick();
    else if (currentTabIndex == GridTab) // at start-up and never again
        m_gridPanel->setScrollEnabled(true);
    pauseGridStatus();
}
