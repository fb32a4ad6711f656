#pragma once

#include <QObject>

class QWidget;

// A test pattern. A drawer paints its whole pattern onto the test window when the
// test window asks for it; its panel owns it and sets its parameters.
class DrawerBase : public QObject
{
    Q_OBJECT

public:
    // `target` is the test window; it is painted on and not owned.
    explicit DrawerBase(QWidget *target);

    // Paints the complete pattern on the test window, inside that window's own
    // paint event; paints nothing when `paint` is false.
    virtual void draw(bool paint) = 0;

    // Asks the test window for a repaint on the next turn of the event loop.
    virtual void update();

    // Whether every pixel of the test window is painted over by draw(true), so that nothing
    // has to be there before.
    virtual bool coversWindow() const { return false; }

    // False while draw(true) has to be called again for the picture to be complete.
    virtual bool isDrawnInFull() const { return true; }

    // Another drawer is painted from now on: gives back the pictures that were kept to be shown
    // again.
    virtual void dropPictures() { }

    // The drawer has something to show. The test window goes on painting the drawer
    // that was shown before until the selected one is active.
    bool active = false;

    QWidget *targetWidget;
};
