#pragma once

#include "linefamily.h"

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QPen>
#include <QPixmap>
#include <QRect>
#include <QSize>
#include <QString>

class QPainter;

// What the operator chooses of the layout. Any value of any field is safe.
struct LayoutParameters
{
    // What the operator may choose.
    static constexpr int smallestModule = 16; // pixels
    static constexpr int largestModule = 100;
    static constexpr int mostModules = 100; // in a row or a column of a scan board

    bool m_layoutOn = false;
    QColor m_bgColor; // while there is no path of a picture
    QColor m_oldTestColor;
    QString m_bgPicturePath; // empty for the solid colour
    int m_moduleWidth = 32; // pixels
    int m_moduleHeight = 16;
    int m_moduleRowCount = 2; // modules on one scan board
    int m_moduleColumnCount = 2;
    QColor m_fontColor;
    QColor m_moduleLineColor;
    QColor m_scanColor;
    bool m_leftToRight = true; // where columns begin
    int m_fontSize = 10; // points
    int m_fontShape = 0; // 0 normal, 1 bold, 2 italic; others leave the window's font as it is
    int m_beginRow = 1;
    int m_beginColumn = 1;
    int m_moduleLineWidth = 1; // pixels
    int m_scanLineWidth = 4;
    QPen m_pen;
    QBrush m_brush;
    bool m_horiLines = false;
    bool m_vertLines = false;
    bool m_slantLeftLines = false;
    bool m_slantRightLines = false;
    bool m_oldTest = false;
    int m_lineStart = 0; // of every family, modules and scan boards included, in pixels
    int m_lineStep = 8; // between the lines of the four general families
    QPixmap m_bgPixmap; // stretched to the test window, once it has been shown

    bool hasPicture() const { return !m_oldTest && !m_bgPicturePath.isEmpty(); }
    // Below all layers, over black. The old test's colour wins.
    QBrush background() const;
};

// Everything that decides on the layout's pixels, and the rule for what it looks like: items
// in layers, one above the other.
struct CabinetLayout : LayoutParameters
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

    // Of the window.
    QSize size;
    QFont font;
    Qt::LayoutDirection direction = Qt::LeftToRight;

    // Sets up what the items take for granted.
    void preparePainter(QPainter &painter) const;
    void drawBackground(QPainter &painter) const;
    // All layers that are on.
    void draw(QPainter &painter) const;

    // A layer has lines, or numbers row by row, for items; none while it is off.
    qint64 itemCount(Layer layer) const;
    void drawItems(QPainter &painter, Layer layer, qint64 from, qint64 to) const;
    // All of its items, on or off.
    void drawLayer(QPainter &painter, Layer layer) const;
    LineFamily family(Layer layer) const;
    QPen linePen(QPen linePen, Layer layer) const;

    // The scan boards that have numbers.
    QRect cell(qint64 row, qint64 column) const;
    qint64 rowCount() const { return cellCount(size.height(), cellSize().height()); }
    qint64 columnCount() const { return cellCount(size.width(), cellSize().width()); }
    QString rowText(qint64 row) const { return numberText(m_beginRow + row); }
    QString columnText(qint64 column) const { return numberText(m_beginColumn + column); }
    // For the numbers, on what the painter paints on.
    QPen numberPen(const QPainter &painter) const;
    QFont numberFont(const QPainter &painter) const;

    bool operator==(const CabinetLayout &other) const;
    bool operator!=(const CabinetLayout &other) const { return !(*this == other); }

private:
    static qint64 cellCount(int windowLength, int cellLength);
    static QString numberText(qint64 number);
    QSize cellSize() const;
    bool isOn(Layer layer) const;
    qint64 fullCount(Layer layer) const;
};
