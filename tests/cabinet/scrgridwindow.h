#pragma once

#include "drawcontainer.h"
#include "paintcounter.h"
#include "scrgridrig.h"

#include <QScreen>
#include <QTest>
#include <QTimer>

// What stands on the screen where the window is.
inline QImage onScreen(const QWidget &window)
{
    return window.screen()
        ->grabWindow(window.winId())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

// The cabinet drawer on the real test window, with a style sheet as in the program, and
// with one module so large that only the background is to be seen but for the first 2 rows
// and columns.
struct ScrGridWindow
{
    static constexpr QRect place = QRect(20, 30, 100, 60);

    ScrGridWindow()
        : drawer(&window)
        , paints(&window)
    {
        window.setStyleSheet(QStringLiteral("QWidget{background-color:#ffff00;}"));
        showFirstStart(drawer);
        drawer.m_moduleWidth = 1000;
        drawer.m_moduleHeight = 1000;
        window.setDrawer(&drawer, true);
        window.setGeometry(place);
        window.show();
    }

    bool shows(QRgb color) const
    {
        const QImage image = onScreen(window);
        QImage expected(place.size() - QSize(2, 2), QImage::Format_RGB32);
        expected.fill(color);
        return image.copy(QRect(QPoint(2, 2), expected.size())) == expected;
    }

    QTimer *refreshTimer() const { return window.findChild<QTimer *>(); }

    // Waits until nothing is under way any more: a paint that is asked for comes within a few
    // milliseconds. False if there is no end of them.
    bool settle()
    {
        constexpr int quietMs = 50;
        refreshTimer()->stop();
        const int first = paints.count;
        int before = first;
        do {
            before = paints.count;
            QTest::qWait(quietMs);
        } while (paints.count != before && paints.count - first < 5);
        return paints.count == before;
    }

    DrawContainer window;
    ScrGrid drawer;
    PaintCounter paints;
};
