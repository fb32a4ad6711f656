#pragma once

#include <QWidget>
#include <QtTest>

constexpr QRect place(100, 100, 200, 150);

// Whether the window is to be seen, which this shows at its place.
inline bool isShown(QWidget &window)
{
    window.setGeometry(place);
    window.show();
    return QTest::qWaitForWindowExposed(&window);
}
