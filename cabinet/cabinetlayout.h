#pragma once

#include "linefamily.h"

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QPen>
#include <QRect>
#include <QSize>

class QPainter;

// Everything that decides on the layout's pixels, and the rule for what it looks like: strokes
// in layers, one above the other. Any value of any field is safe.
struct CabinetLayout
{
    // From the lowest to the topmost.
    enum Layer {
        HoriLines,
        VertLines,
        SlantLeftLines,
        SlantRightLines,
        ModuleRows,
        ModuleColumns,
        ScanRows,
        ScanColumns,
        Numbers,
        LayerCount,
    };

    // The lines of modules or of scan boards.
    struct Outline
    {
        qint64 width = 0; // of a module or a scan board; below 1 there are no lines
        qint64 height = 0;
        int lineWidth = 1;
        QColor color;

        bool operator==(const Outline &other) const;
    };

    QSize size; // of the window
    QBrush background; // below all layers, over black
    QPen pen; // before the first layer
    QFont font; // of the window
    Qt::LayoutDirection direction = Qt::LeftToRight; // of the window
    bool generalLines[4] = {}; // HoriLines to SlantRightLines
    int lineStart = 0; // of every family; 0 or more
    int lineStep = 8; // of the general lines; below 1 there are none
    bool layoutOn = false; // all layers above the general lines
    Outline module;
    Outline scanBoard;
    bool leftToRight = true; // where columns begin
    QColor fontColor;
    int fontSize = 10; // in points; below 1 the font keeps its own
    int fontShape = 0;
    int beginRow = 1;
    int beginColumn = 1;

    // Sets up what the strokes take for granted.
    void preparePainter(QPainter &painter) const;
    void drawBackground(QPainter &painter) const;

    // A layer has lines, or numbers row by row, for strokes.
    qint64 strokeCount(Layer layer) const;
    void drawStrokes(QPainter &painter, Layer layer, qint64 from, qint64 to) const;
    void drawLayer(QPainter &painter, Layer layer) const;
    LineFamily family(Layer layer) const;
    QPen linePen(QPen linePen, Layer layer) const;
    // All strokes of a layer, enabled or not.
    void drawLines(QPainter &painter, Layer layer) const;
    void drawText(QPainter &painter) const;

    // The scan boards that have numbers.
    QRect cell(qint64 row, qint64 column) const;
    qint64 rowCount() const;
    qint64 columnCount() const;
    QString rowText(qint64 row) const;
    QString columnText(qint64 column) const;
    // For the numbers, on what the painter paints on.
    QPen numberPen(const QPainter &painter) const;
    QFont numberFont(const QPainter &painter) const;

    bool operator==(const CabinetLayout &other) const;
    bool operator!=(const CabinetLayout &other) const { return !(*this == other); }

private:
    const Outline &outline(Layer layer) const;
    void drawNumber(QPainter &painter, qint64 row, qint64 column) const;
};
