#include "drawerbase.h"

#include <QWidget>

DrawerBase::DrawerBase(QWidget *target)
    : QObject(nullptr)
    , targetWidget(target)
{ }

void DrawerBase::update()
{
    targetWidget->update();
}
