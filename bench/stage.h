#pragma once

#include "drawcontainer.h"

#include <QImage>

#include <memory>

class DrawerBase;

// A test window of a given size, off the screen, whose painting is timed.
class Stage
{
public:
    explicit Stage(const QSize &size);
    ~Stage();

    DrawContainer *window() { return &m_window; }

    // The processor time in seconds that the window's whole paint event takes with this drawer,
    // its background included; what else the machine does costs none.
    double paint(DrawerBase &drawer) { return paint(m_window, drawer); }

    // The same for the copy of an opaque pixmap of the window's size: the yardstick.
    double copy() { return paint(m_copyWindow, *m_copier); }

private:
    double paint(DrawContainer &window, DrawerBase &drawer);

    DrawContainer m_window;
    DrawContainer m_copyWindow; // one window would make its drawers drop their kept pictures
    QImage m_target;
    const std::unique_ptr<DrawerBase> m_copier;
};
