#pragma once

#include <QtGlobal>

class GradualChangeCtrlWidget;
class QTabWidget;
class ScrGridCtrlDialog;
class ScrPurityCtrlDialog;

// The panels' places among the tabs.
enum Tab { PlacementTab, PurityTab, GradientTab, GridTab, CabinetTab, HelpTab, AboutTab, TabCount };

// The way of the page keys: the purity colours, the gradient colours, the grid's colours with each
// of its line families, and from the start again. Its state is the current tab with the colour and
// the line of that tab's panel.
class PageCycle
{
public:
    // All are borrowed, and the panels stand on the tabs.
    PageCycle(QTabWidget *tabs, ScrPurityCtrlDialog *purity, GradualChangeCtrlWidget *gradient,
              ScrGridCtrlDialog *grid);

    // One step; from a tab off the cycle, onto its first or its last one.
    void stepDown();
    void stepUp();

private:
    qint16 cycleTab() const;
    void makeTabCurrent(Tab tab);
    void enterUnlessOnCycle(Tab tab);

    // A step on the current tab, or from its last one onto the tab that comes next.
    void setPurityCtrlPageDownEvent();
    void setGradualChangePageDownEvent();
    void setGridCtrlPageDownEvent();
    void setGridCtrlPageUpEvent();
    void setGradualChangePageUpEvent();
    void setPurityCtrlPageUpEvent();

    QTabWidget *m_tabs;
    ScrPurityCtrlDialog *m_purity;
    GradualChangeCtrlWidget *m_gradient;
    ScrGridCtrlDialog *m_grid;
};
