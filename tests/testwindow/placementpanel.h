#pragma once

#include "drawctrlform.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QSlider>
#include <QSpinBox>
#include <QStringList>

#include <memory>

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

// A placement panel with a plain widget for its test window, which stands anywhere
// but where the panel would put it.
class PlacementPanel
{
public:
    explicit PlacementPanel(QSettings *settings = nullptr)
    {
        target.setGeometry(77, 66, 55, 44);
        form = std::make_unique<DrawCtrlForm>(&target, settings, nullptr);
    }

    QSlider *slider(const QString &axis) const
    {
        return form->findChild<QSlider *>(QStringLiteral("hScrollBar") + axis);
    }
    QSpinBox *spinBox(const QString &axis) const
    {
        return form->findChild<QSpinBox *>(QStringLiteral("spinBox") + axis);
    }

    QSlider *x() const { return slider(QStringLiteral("X")); }
    QSlider *y() const { return slider(QStringLiteral("Y")); }
    QSlider *width() const { return slider(QStringLiteral("Width")); }
    QSlider *height() const { return slider(QStringLiteral("Height")); }

    // The rectangle that the sliders show.
    QRect controls() const
    {
        return {x()->value(), y()->value(), width()->value(), height()->value()};
    }

    // The buttons have one object name for the two of them; they stand side by side.
    QPushButton *showButton() const { return button(378); }
    QPushButton *hideButton() const { return button(474); }

    QWidget target{nullptr, Qt::FramelessWindowHint};
    std::unique_ptr<DrawCtrlForm> form;

private:
    QPushButton *button(int left) const
    {
        const auto buttons = form->findChildren<QPushButton *>();
        for (QPushButton *candidate : buttons) {
            if (candidate->x() == left)
                return candidate;
        }
        return nullptr;
    }
};
