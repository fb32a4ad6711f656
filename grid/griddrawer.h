#pragma once

#include "drawerbase.h"
#include "gridpicture.h"

#include <QBrush>
#include <QColor>
#include <QPen>

class QPainter;

// Paints a background and up to four families of evenly spaced lines, on which dead rows,
// dead columns and misaligned modules show. Scrolling and the merged cycle advance by one
// step per call; the drawer has no timer.
//
// Not every change makes the drawer active: switching families and the line colour do not.
class GridDrawer : public DrawerBase
{
public:
    explicit GridDrawer(QWidget *testWindow);

    void draw(bool paint) override;
    bool coversWindow() const override { return m_bgColor.alpha() == 255; }

    // False while a laborious picture takes some more paints to be complete.
    bool isDrawnInFull() const { return m_picture.isComplete(); }

    // One family each over the test window's size, enabled or not, with the painter's pen.
    void drawHoriLines(QPainter &painter);
    void drawVertLines(QPainter &painter);
    void drawSlantLeftLines(QPainter &painter);
    void drawSlantRightLines(QPainter &painter);

    void slot_colorChanged(const QColor &color);
    // 0 to 255; dims the seven test colours only.
    void slot_changeGrayScale(int grey);

    // The background goes back to the old colour with each of these.
    void slot_horiToggled(bool on);
    void slot_vertLineToggled(bool on);
    void slot_slantLeftToggled(bool on);
    void slot_slantRightToggled(bool on);

    // The flag alone: no repaint.
    void setHoriLinesEnabled(bool on);
    void setVertLinesEnabled(bool on);
    void setSlantLeftLinesEnabled(bool on);
    void setSlantRightLinesEnabled(bool on);
    void disableAll();

    void slot_changeBgColor(const QColor &color);
    // The old colour only, which becomes the background when a family is switched.
    void slot_setBgColor(const QColor &color);
    QColor getOldColor() const { return m_oldColor; }

    // The width of the lines in pixels, 1 to 5.
    void slot_changePix(int width);
    int getPix() const { return m_pix; }

    // Between neighbouring lines in pixels, 3 to 700. The offset stays as it is, even where it
    // exceeds the new distance, up to the next scroll step.
    void slot_changeDistance(int distance);
    int getLineDistance() const { return m_lineDistance; }

    // Move all lines by one pixel; only the first makes the drawer active. Wanted.
    void scrollLines();
    void slot_ScrollLines();

    // Shows the next of: each family alone, in the order of the slots above, and a bare
    // background.
    void mergedTest();

private:
    GridPattern pattern() const;
    void toggle(LineFamily::Direction family, bool on);

    QPen m_pen;
    QBrush m_brush;
    // By direction; the fifth is the bare step of the merged cycle, for which nothing is drawn.
    std::array<bool, GridPattern::familyCount + 1> m_enabled{};
    int m_offset = 0; // of the first line of every family, in pixels
    int m_lineDistance = 10;
    int m_mergedIndex = 0; // the next step of the merged cycle, 0 to 4
    int m_grayScale = 255;
    QColor m_bgColor;
    QColor m_lineColor; // before dimming
    QColor m_oldColor = Qt::black;
    int m_pix = 1;
    GridPicture m_picture;
};
