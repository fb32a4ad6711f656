#include "purityrig.h"

QTimer *PurityRig::timer() const
{
    QTimer *running = nullptr;
    const QList<QTimer *> timers =
        panel->findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    for (QTimer *timer : timers) {
        if (timer->isActive() && running)
            qFatal("the panel has more than one running timer");
        if (timer->isActive())
            running = timer;
    }
    return running;
}

int PurityRig::tick() const
{
    panel->slot_AutoTimerFinished();
    return autoSpinBox()->value();
}

bool PurityRig::hasControlsOf(bool automaticMode) const
{
    const QWidget *automaticOnly[] = {beginButton(), speedSlider(), speedSpinBox(), autoSpinBox()};
    const QWidget *manualOnly[] = {greySlider(), greySpinBox()};
    for (const QWidget *widget : automaticOnly) {
        if (widget->isEnabled() != automaticMode)
            return false;
    }
    for (const QWidget *widget : manualOnly) {
        if (widget->isEnabled() == automaticMode)
            return false;
    }
    return automatic()->isChecked() == automaticMode && manual()->isChecked() != automaticMode;
}

QRgb PurityRig::shownColor()
{
    const QImage image = canvas.painted();
    return image.pixel(image.width() / 2, image.height() / 2);
}
