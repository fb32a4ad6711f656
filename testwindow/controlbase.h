#pragma once

class DrawerBase;

// What every test panel offers beside its widget: the drawer of its pattern. Panels
// are never deleted through this interface, so it has no virtual destructor.
class ControlBase
{
public:
    // The panel's drawer, never null; the panel keeps it.
    virtual DrawerBase *getDrawer() = 0;

protected:
    ~ControlBase() = default;
};
