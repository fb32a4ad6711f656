#pragma once

#include "appmainwindow.h"
#include "drawcontainer.h"
#include "latin1.h"

#include <QString>

#include <map>
#include <memory>
#include <utility>

class CommonHelper;
class DrawCtrlForm;
class DrawerBase;
class GradualChangeCtrlWidget;
class GridDrawer;
class QKeyEvent;
class QScrollArea;
class QSettings;
class ScrAboutWidget;
class ScrGridCtrlDialog;
class ScrHelperCtrlWidget;
class ScrPurityCtrlDialog;
class TarnTool;

namespace Ui {
class MainWindow;
}

// The control window: owns the test window, the settings and the tab panels, wires
// them together, and walks the page keys through the patterns of all panels.
class MainWindow : public UX::Utils::AppMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    void updateLanguage();

    // The current tab as the grid counts it: tabs 3, 5 and 6 are 0.
    int tabIndexForGrid() const { return currentTabIndex; }

signals:
    void signal_colorChanged(const QColor &color);
    void signal_greyChanged(const QString &grey);
    void signal_stopGreyChanged();
    void signal_sendScreenMaxSize();
    void signal_forbidTarnToolCtrls();

public slots:
    void slot_keyPressed(QKeyEvent *event);
    void slot_SwitchWindow(int index);
    void slot_currentTabWidget(int index);
    void slot_SwitchUpTabControl();
    void slot_SwitchDownTabControl();

    // Writes what the panels have not written yet, on to the disk.
    void saveSettings();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    // The panels' places among the tabs.
    enum Tab {
        PlacementTab,
        PurityTab,
        GradientTab,
        GridTab,
        CabinetTab,
        HelpTab,
        AboutTab,
        TabCount
    };

    static constexpr QLatin1String currentTabKey = latin1("/setting/currentTabIndex");

    void initCtrls();
    void initTitleBar();
    void initSlots();
    void initKeySlots();
    void initTestWindowSlots();
    void initPanelSlots();
    void stayReachable();
    void setInitDrawWindowInfo();
    QString storedGrey() const;
    void setTabs();
    void addTab(QWidget *panel, DrawerBase *drawer);
    void addCards();
    void makeTabCurrent(int index);
    void grayScaleChange(int index);
    void settleGrid();
    void dealGridInitStatus();
    void pauseGridStatus();

    bool isOnWalk() const;
    void setPurityCtrlPageDownEvent();
    void setGradualChangePageDownEvent();
    void setGridCtrlPageDownEvent();
    void setPurityCtrlPageUpEvent();
    void setGradualChangePageUpEvent();
    void setGridCtrlPageUpEvent();

    template<typename Panel>
    void connectArrowKeys(Panel *panel, bool on);
    template<typename Panel, typename ColorSignal>
    void connectFeed(Panel *panel, ColorSignal colorSignal, bool on);

    const std::unique_ptr<Ui::MainWindow> ui;
    DrawContainer testWindow;
    std::map<int, std::pair<QWidget *, DrawerBase *>> tabTable;
    ScrAboutWidget *aboutPanel = nullptr;
    ScrHelperCtrlWidget *helpPanel = nullptr;
    QScrollArea *helpScrollArea = nullptr;
    std::unique_ptr<CommonHelper> keyHelper;
    DrawCtrlForm *placementPanel = nullptr;
    ScrGridCtrlDialog *gridPanel = nullptr;
    ScrPurityCtrlDialog *purityPanel = nullptr;
    GradualChangeCtrlWidget *gradientPanel = nullptr;
    TarnTool *cabinetPanel = nullptr;
    GridDrawer *spareGridDrawer = nullptr; // used by nothing; part of the window all the same
    qint16 cycleTab = 0; // where the page keys stand
    int currentTabIndex = 0;
    QSettings *settings;
};
