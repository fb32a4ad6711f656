#pragma once

#include "linefamily.h"

#include <QColor>
#include <QObject>
#include <QVector>

class GridDrawer;
class MixSelection;

// The automatic run of the grid test, one step at a time: the lines scroll, and a test shows
// full-screen colours in turn (the aging test), or colours and line families (the merged test).
// It sets the drawer, and knows neither controls nor a timer.
class GridRun : public QObject
{
    Q_OBJECT

public:
    // The drawer is borrowed.
    explicit GridRun(GridDrawer *drawer);

    bool isOn = false; // not paused
    bool canScroll = false; // lines and grey; the tests go on without it
    // Both only by a settings file, and then both run.
    bool isAging = false;
    bool isMerged = false;

    // Either test, which goes on where it stopped; ends the grey ramp.
    void beginTest(bool aging);
    // The grey level goes up (1) or down (-1) at every fifth step from now on.
    void rampGrey(int by);

    // What the merged test shows from now on.
    void select(const MixSelection &selection);
    // All selected families are still to be shown in this cycle of the merged test; their number.
    int restartFamilies();

    // Between two steps, in milliseconds, at a speed of 1 to 100.
    int interval(int speed) const { return (102 - speed) * (isAging || isMerged ? 80 : 7); }
    void step();

signals:
    void greyStepped(int by);
    void scrolled();
    // Before dimming.
    void colorShown(const QColor &color);

private:
    void scroll();
    void stepAging();
    void stepMerged();
    void showColor(const QColor &color);

    GridDrawer *const m_drawer;
    int m_greyRamp = 0; // what a grey step adds
    int m_scrollCount = 0; // since the last grey step
    int m_agingIndex = 0;
    int m_mergedIndex = 0;
    int m_familyIndex = 0; // of the next family in this cycle of the merged test
    QVector<QColor> m_colors;
    QVector<LineFamily::Direction> m_families;
};
