#pragma once

#include "appmainwindow.h"
#include "commonhelper.h"
#include "drawcontainer.h"
#include "pagecycle.h"

#include <QMap>
#include <QString>

#include <memory>

class DrawCtrlForm;
class DrawerBase;
class GradualChangeCtrlWidget;
class QKeyEvent;
class ScrAboutWidget;
class ScrGridCtrlDialog;
class ScrHelperCtrlWidget;
class ScrPurityCtrlDialog;
class StoredSettings;
class TarnTool;

namespace Ui {
class MainWindow;
}

// The control window: owns the test window, the settings and the tab panels, wires
// them together, and says which of them has the test window and the keys.
class MainWindow : public UX::Utils::AppMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    // On other settings than the program's own; takes them over.
    MainWindow(QWidget *parent, StoredSettings *settings);
    ~MainWindow() override;

    DrawContainer &testWindow() { return m_testWindow; }

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
    void slot_keyPressed(QKeyEvent *event) { m_keyHelper.dealKeyPressEvent(event); }
    void slot_SwitchWindow(int index);
    void slot_currentTabWidget(int index);
    void slot_SwitchUpTabControl();
    void slot_SwitchDownTabControl();

    // Writes what the panels have not written yet, on to the disk.
    void saveSettings();

protected:
    void keyPressEvent(QKeyEvent *event) override { slot_keyPressed(event); }
    // Specified: a double click on the control window does nothing.
    void mouseDoubleClickEvent(QMouseEvent * /*event*/) override { }

private:
    void initCtrls();
    void initSlots();
    void initKeySlots();
    void initTestWindowSlots();
    void initPanelSlots();
    void moveOntoScreen();
    void setInitDrawWindowInfo();
    void setTabs();
    void addTab(QWidget *panel, DrawerBase *drawer);
    QWidget *createHelpTab();
    void grayScaleChange(int index);
    void dealGridInitStatus();
    void pauseGridStatus();

    template<typename Panel>
    void connectArrowKeys(Panel *panel, bool on);
    template<typename Panel, typename ColorSignal>
    void connectFeed(Panel *panel, ColorSignal colorSignal, bool on);

    const std::unique_ptr<Ui::MainWindow> ui;
    CommonHelper m_keyHelper;
    DrawContainer m_testWindow;
    QMap<int, DrawerBase *> m_drawers; // of each tab; null for those without
    DrawCtrlForm *m_placementPanel = nullptr;
    ScrPurityCtrlDialog *m_purityPanel = nullptr;
    GradualChangeCtrlWidget *m_gradientPanel = nullptr;
    ScrGridCtrlDialog *m_gridPanel = nullptr;
    TarnTool *m_cabinetPanel = nullptr;
    ScrHelperCtrlWidget *m_helpPanel = nullptr;
    ScrAboutWidget *m_aboutPanel = nullptr;
    std::unique_ptr<PageCycle> m_pageCycle;
    int currentTabIndex = 0;
    StoredSettings *m_settings;
};
