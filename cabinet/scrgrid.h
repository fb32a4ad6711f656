#pragma once

#include "drawerbase.h"
#include "layoutpicture.h"
#include "pictureloader.h"

#include <QBrush>
#include <QColor>
#include <QPen>
#include <QPixmap>
#include <QString>

class QPainter;

// Paints the layout of an LED screen: a line at every module edge, another at every scan-board
// edge, and the row and column of every scan board in its middle, over a colour or a picture.
//
// The cabinet panel and its advanced settings write the fields and call update(); any value
// is safe, and a field that changed is noticed at the next paint.
class ScrGrid : public DrawerBase
{
    Q_OBJECT

public:
    // `parent` is the test window.
    explicit ScrGrid(QWidget *parent);

    void draw(bool enabled) override;
    bool coversWindow() const override;
    void update() override;

    // Keeps the path. When the picture is next shown it is stretched to the test window's size
    // at that time. A file that cannot be read leaves the picture before it; one that is no
    // picture leaves none.
    void setBackgroundImage(const QString &path);
    // The same picture again, for another size of the test window.
    void updateBackgroundImage();
    // As it is before it is stretched. The next one to be asked for it, or shown, costs nothing
    // while it is of the same file.
    QImage picture(const QString &path);

    // The test window's background from now on.
    void setBgColor(const QColor &color);
    void loadBgPicture();

    void drawModuleLines(QPainter &painter);
    void drawScanLines(QPainter &painter);
    void drawText(QPainter &painter);

    // One family of lines each, enabled or not, with the painter's pen.
    void drawHoriLines(QPainter &painter);
    void drawVertLines(QPainter &painter);
    void drawSlantLeftLines(QPainter &painter);
    void drawSlantRightLines(QPainter &painter);
    void drawOldTest(QPainter &painter);

    // False while the layout is so laborious that it takes some more paints to be complete.
    bool isDrawnInFull() const { return m_picture.isComplete(); }

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
    int m_fontSize = 10; // in points; the pen of the numbers has the same width
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

private:
    void installBackground();
    void stretchPicture();
    CabinetLayout layout() const;

    LayoutPicture m_picture;
    PictureLoader m_pictures;
    QString m_pictureToShow; // not stretched yet; empty once it is
};
