#pragma once

#include "linefamily.h"

#include <QColor>
#include <QPen>
#include <QSize>

#include <array>

class QPainter;

// Everything that decides on the grid's pixels: the window's size, the four families of
// lines and their colours.
struct GridPattern
{
    static constexpr int familyCount = 4;

    // What the operator may choose, in pixels: the width of the lines and their distance.
    static constexpr int thinnest = 1;
    static constexpr int thickest = 5;
    static constexpr int closest = 3;
    static constexpr int farthest = 700;

    QSize size; // of the window, in pixels
    int distance = 10; // between neighbouring lines of a family; below 1 there are no lines
    int offset = 0; // of the first line of each family
    std::array<bool, familyCount> enabled{}; // by direction
    QPen pen;
    QColor background;

    // Whether what is below cannot be seen through it.
    bool isOpaque() const { return background.alpha() == 255 && pen.color().alpha() == 255; }

    // One family, enabled or not.
    LineFamily family(int direction) const;

    void drawBackground(QPainter &painter) const;
    // Background and enabled families, with the pattern's own pen.
    void paint(QPainter &painter) const;

    bool operator==(const GridPattern &other) const;
    bool operator!=(const GridPattern &other) const { return !(*this == other); }
};
