#pragma once

#include "drawerbase.h"
#include "gridpicture.h"
#include "purecolor.h"

#include <QBrush>

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
    bool coversWindow() const override { return m_pattern.background.alpha() == 255; }
    bool isDrawnInFull() const override { return m_picture.isComplete(); }
    void dropPictures() override { m_picture.drop(); }

    // One family each over the test window's size, enabled or not, with the painter's pen.
    void drawHoriLines(QPainter &painter) { drawFamily(painter, LineFamily::Horizontal); }
    void drawVertLines(QPainter &painter) { drawFamily(painter, LineFamily::Vertical); }
    void drawSlantLeftLines(QPainter &painter) { drawFamily(painter, LineFamily::SlantLeft); }
    void drawSlantRightLines(QPainter &painter) { drawFamily(painter, LineFamily::SlantRight); }

    void slot_colorChanged(const QColor &color);
    // 0 to 255; dims the seven pure colours only.
    void slot_changeGrayScale(int grey);

    // As the lines are at the present grey.
    QColor dimmed(const QColor &color) const { return getGrayScaleColor(color, m_grayScale); }

    // The background goes back to the old colour with each of these.
    void toggle(LineFamily::Direction family, bool on);
    void slot_horiToggled(bool on) { toggle(LineFamily::Horizontal, on); }
    void slot_vertLineToggled(bool on) { toggle(LineFamily::Vertical, on); }
    void slot_slantLeftToggled(bool on) { toggle(LineFamily::SlantLeft, on); }
    void slot_slantRightToggled(bool on) { toggle(LineFamily::SlantRight, on); }

    // The flag alone: no repaint.
    void setHoriLinesEnabled(bool on) { m_pattern.enabled[LineFamily::Horizontal] = on; }
    void setVertLinesEnabled(bool on) { m_pattern.enabled[LineFamily::Vertical] = on; }
    void setSlantLeftLinesEnabled(bool on) { m_pattern.enabled[LineFamily::SlantLeft] = on; }
    void setSlantRightLinesEnabled(bool on) { m_pattern.enabled[LineFamily::SlantRight] = on; }
    void disableAll() { m_pattern.enabled.fill(false); }

    void slot_changeBgColor(const QColor &color);
    // The old colour only, which becomes the background when a family is switched.
    void slot_setBgColor(const QColor &color) { m_oldColor = color; }
    QColor getOldColor() const { return m_oldColor; }

    // The width of the lines in pixels, 1 to 5.
    void slot_changePix(int width);
    int getPix() const { return m_pattern.pen.width(); }

    // Between neighbouring lines in pixels, 3 to 700. The offset stays as it is, even where it
    // exceeds the new distance, up to the next scroll step.
    void slot_changeDistance(int distance);
    int getLineDistance() const { return m_pattern.distance; }

    // Move all lines by one pixel. Specified: only the first makes the drawer active.
    void scrollLines();
    void slot_ScrollLines();

    // Shows the next of: each family alone, in the order of the slots above, and a bare
    // background.
    void mergedTest();

private:
    void drawFamily(QPainter &painter, LineFamily::Direction family);

    GridPattern m_pattern; // its size only while it is drawn
    QBrush m_brush;
    int m_mergedIndex = 0; // the next step of the merged cycle, 0 to 4
    int m_grayScale = 255;
    QColor m_lineColor; // before dimming
    QColor m_oldColor = Qt::black;
    GridPicture m_picture;
};
