#include "drawerbase.h"

#include "drawcontainer.h"

DrawerBase::DrawerBase(QWidget *target)
    : QObject(nullptr)
    , targetWidget(target)
{ }

// A grid that scrolls behind another pattern must not have that one painted for nothing.
void DrawerBase::update()
{
    if (isSelected())
        targetWidget->update();
}

bool DrawerBase::isSelected() const
{
    const auto *testWindow = qobject_cast<const DrawContainer *>(targetWidget);
    return !testWindow || testWindow->selectedDrawer() == this;
}
