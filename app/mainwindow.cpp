#include "mainwindow.h"

#include "ui_mainwindow.h"

#include "commonhelper.h"
#include "drawctrlform.h"
#include "drawerbase.h"
#include "form.h"
#include "gradualchangectrlwidget.h"
#include "griddrawer.h"
#include "puritykeys.h"
#include "scraboutwidget.h"
#include "screenarea.h"
#include "scrgridctrldialog.h"
#include "scrhelperctrlwidget.h"
#include "scrpurityctrldialog.h"
#include "settingsfile.h"
#include "settingsrules.h"
#include "tarntool.h"

#include <QCoreApplication>
#include <QIcon>
#include <QScrollArea>
#include <QSettings>

namespace {

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

QSettings *openSettings(QObject *parent)
{
    return SettingsFile::open(
        QCoreApplication::applicationDirPath() + QStringLiteral("/config.ini"), parent);
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : UX::Utils::AppMainWindow(parent)
    , ui(makeForm<Ui::MainWindow>(this))
    , settings(openSettings(this))
{
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
    setTabs(); // the placement panel shows the test window, unless it was left hidden
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
    gradientPanel = new GradualChangeCtrlWidget(&testWindow, settings, this);
    addTab(gradientPanel, gradientPanel->getDrawer());
    gridPanel = new ScrGridCtrlDialog(&testWindow, settings, this);
    addTab(gridPanel, gridPanel->getDrawer());
    cabinetPanel = new TarnTool(&testWindow, settings, this);
    addTab(cabinetPanel, cabinetPanel->getDrawer());
    addCards();
    spareGridDrawer = new GridDrawer(this);
    spareGridDrawer->setParent(this);
}

void MainWindow::addTab(QWidget *panel, DrawerBase *drawer)
{
    const int index = ui->tabWidget->addTab(panel, tr(tabTitles[ui->tabWidget->count()]));
    tabTable[index] = {panel, drawer};
}

// The two tabs that only show something: they have no drawer and no place in the table.
void MainWindow::addCards()
{
    helpPanel = new ScrHelperCtrlWidget;
    helpScrollArea = new QScrollArea;
    helpScrollArea->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    helpScrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    helpScrollArea->setWidgetResizable(true);
    helpScrollArea->setWidget(helpPanel);
    ui->tabWidget->addTab(helpScrollArea, tr(tabTitles[HelpTab]));
    aboutPanel = new ScrAboutWidget;
    ui->tabWidget->addTab(aboutPanel, tr(tabTitles[AboutTab]));
}

void MainWindow::updateLanguage()
{
    setWindowTitle(tr("显示屏测试工具-Tarn"));
    testWindow.updateLanguage();
    placementPanel->updateLanguage();
    purityPanel->updateLanguage();
    gradientPanel->updateLanguage();
    gridPanel->updateLanguage();
    cabinetPanel->updateLanguage();
    helpPanel->updateLanguage();
    aboutPanel->updateLanguage();
    for (int index = 0; index < TabCount; ++index)
        ui->tabWidget->setTabText(index, tr(tabTitles[index]));
    ui->tabWidget->setFont(QFont(QStringLiteral("Arial")));
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

    // Only this once the grid counts as the tab before, which resumes its run.
    currentTabIndex = settings->value(currentTabKey).toInt();
    ui->tabWidget->setCurrentIndex(currentTabIndex);
    if (currentTabIndex == GridTab)
        currentTabIndex = PlacementTab;
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
    gradientPanel->saveGradualChangeInfo();
    gridPanel->saveWhileRunning();
    cabinetPanel->saveTarnBaseInfo();
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
    dealGridInitStatus();
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

// The control window does not stay behind on a screen that is gone.
void MainWindow::stayReachable()
{
    const QRect frame = frameGeometry();
    const QPoint place = ScreenArea::movedInto(frame, ScreenArea::around(frame.center())).topLeft();
    if (place != frame.topLeft())
        move(place);
}

// A panel whose settings the operator changed has taken the screen from the grid, so the grid's
// run stops.
void MainWindow::pauseGridStatus()
{
    switch (currentTabIndex) {
    case PurityTab:
        if (purityPanel->puritySelected && !gridPanel->scrollLocked)
            gridPanel->setScrollEnabled(false);
        break;
    case GradientTab:
        if (gradientPanel->m_userChanged && !gridPanel->scrollLocked)
            gridPanel->setScrollEnabled(false);
        break;
    case CabinetTab:
        if (cabinetPanel->m_userChanged) // whatever scrollLocked says
            gridPanel->setScrollEnabled(false);
        break;
    default:
        break;
    }
    purityPanel->puritySelected = false;
    gradientPanel->m_userChanged = false;
    cabinetPanel->m_userChanged = false;
}

// Brings the grid's run back to what it was when the tab changes.
void MainWindow::settleGrid()
{
    if (gridPanel->pushButtonPauseChecked)
        gridPanel->gridBtnClick();
    else if (currentTabIndex == GridTab) // at start-up and never again
        gridPanel->setScrollEnabled(true);
}

void MainWindow::dealGridInitStatus()
{
    settleGrid();
    pauseGridStatus();
}
