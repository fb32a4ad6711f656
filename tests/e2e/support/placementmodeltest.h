#pragma once

#include "endtoendtest.h"

#include <QMap>
#include <QRandomGenerator>

class DummyServer;

/// Base of the long tests that do something to the test window and the screens in a random order:
/// a small model says where the window is to be after each step, and what is to be stored.
class PlacementModelTest : public EndToEndTest
{
    Q_OBJECT

protected:
    std::unique_ptr<VirtualDesktop> createDesktop() const override;
    DummyServer &server() { return *m_server; }

    int random(int count) { return m_random.bounded(count); }

    QRegion desktopRegion() const;
    /// The sums of the screens' widths and heights, which the panel's ranges come from.
    QSize sums() const;
    /// The one that the window's centre lies on, empty if none.
    QString screenOfCentre() const;
    /// Whether the desktop has no room for the window, so that nothing is to be said about it.
    bool isAway() const;
    /// Where the window is to be, unless it is away.
    QRect target() const { return m_screen.isEmpty() ? m_place : m_screens.value(m_screen); }

    // One step each, done to the model and to the program. They say which; an empty text if it is
    // not possible just now.
    QString pressArrow();
    QString toggleVisibility();
    QString toggleFullScreen();
    /// Takes the window at a point of \a area.
    QString drag(const QRect &area, const QPoint &to);

    /// Whether window and file come to be as the model says; logs what they are instead if not.
    bool agrees();

    QRandomGenerator m_random;
    QMap<QString, QRect> m_screens; ///< those that are on
    QRect m_place{200, 150, 300, 300};
    QString m_screen; ///< that the window fills, empty if none
    bool m_isShown = true;

private:
    mutable DummyServer *m_server = nullptr; // owned by the desktop
};
