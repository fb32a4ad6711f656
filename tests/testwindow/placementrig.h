#pragma once

#include "drawctrlform.h"
#include "panelrig.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QStringList>

// The sums over all screens that the panel's ranges come from.
inline QSize desktopSums()
{
    QSize sums(0, 0);
    const auto screens = QGuiApplication::screens();
    for (const QScreen *screen : screens)
        sums += screen->geometry().size();
    return sums;
}

// What the object names of the controls end in.
inline QStringList placementAxes()
{
    return {QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("Width"),
            QStringLiteral("Height")};
}

// Counts how often a window is moved or resized.
class PlacementCounter : public QObject
{
public:
    explicit PlacementCounter(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
            ++changes;
        return QObject::eventFilter(watched, event);
    }

    int changes = 0;
};

// The placement panel with its controls at hand.
class PlacementRig : public PanelRig<DrawCtrlForm>
{
public:
    using PanelRig::PanelRig;

    QSlider *slider(const QString &axis) const
    {
        return panel->findChild<QSlider *>(QStringLiteral("hScrollBar") + axis);
    }
    QSpinBox *spinBox(const QString &axis) const
    {
        return panel->findChild<QSpinBox *>(QStringLiteral("spinBox") + axis);
    }

    QSlider *x() const { return child<QSlider>("hScrollBarX"); }
    QSlider *y() const { return child<QSlider>("hScrollBarY"); }
    QSlider *width() const { return child<QSlider>("hScrollBarWidth"); }
    QSlider *height() const { return child<QSlider>("hScrollBarHeight"); }

    // The rectangle that the sliders show.
    QRect controls() const
    {
        return {x()->value(), y()->value(), width()->value(), height()->value()};
    }

    // The buttons have one object name for the two of them; they stand side by side.
    QPushButton *showButton() const
    {
        return qobject_cast<QPushButton *>(panel->childAt(380, 160));
    }
    QPushButton *hideButton() const
    {
        return qobject_cast<QPushButton *>(panel->childAt(480, 160));
    }
    // Whether one of them alone can be pressed: that which hides.
    bool isHideable() const
    {
        if (showButton()->isEnabled() == hideButton()->isEnabled())
            qFatal("the buttons do not exclude each other");
        return hideButton()->isEnabled();
    }
};
