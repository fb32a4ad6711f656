#include "drawerbase.h"

#include "drawcontainer.h"

DrawerBase::DrawerBase(QWidget *target)
    : QObject(nullptr)
    , targetWidget(target)
{ }

void DrawerBase::update()
{
    targetWidget->update();
}

bool DrawerBase::isSelected() const
{
    const auto *testWindow = qobject_cast<const DrawContainer *>(targetWidget);
    return !testWindow || testWindow->selectedDrawer() == this;
}
