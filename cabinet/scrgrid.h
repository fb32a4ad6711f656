#pragma once

#include "drawerbase.h"
#include "layoutpicture.h"
#include "pictureloader.h"

// Paints the layout of an LED screen: a line at every module edge, another at every scan-board
// edge, and the row and column of every scan board in its middle, over a colour or a picture.
//
// The cabinet panel and its advanced settings write the parameters and call update(); one that
// changed is noticed at the next paint.
class ScrGrid
    : public DrawerBase
    , public LayoutParameters
{
    Q_OBJECT

public:
    using DrawerBase::DrawerBase;

    void draw(bool enabled) override;
    bool coversWindow() const override { return m_layoutOn; }
    void update() override { DrawerBase::update(); }

    // Keeps the path. When the picture is next shown it is stretched to the test window's size
    // at that time. A file that cannot be read leaves the picture before it; one that is no
    // picture leaves none.
    void setBackgroundImage(const QString &path);
    // The same picture again, for another size of the test window.
    void updateBackgroundImage() { setBackgroundImage(m_bgPicturePath); }
    // As it is before it is stretched. The next one to be asked for it, or shown, costs nothing
    // while it is of the same file.
    QImage picture(const QString &path) { return m_pictures.load(path); }

    // The test window's background from now on.
    void setBgColor(const QColor &color);
    void loadBgPicture();

    void drawModuleLines(QPainter &painter) const
    {
        drawLayer(painter, Layer::ModuleRows);
        drawLayer(painter, Layer::ModuleColumns);
    }
    void drawScanLines(QPainter &painter) const
    {
        drawLayer(painter, Layer::ScanRows);
        drawLayer(painter, Layer::ScanColumns);
    }
    void drawText(QPainter &painter) const { drawLayer(painter, Layer::Numbers); }
    // One family of lines each, enabled or not, with the painter's pen.
    void drawHoriLines(QPainter &painter) const { drawLayer(painter, Layer::HoriLines); }
    void drawVertLines(QPainter &painter) const { drawLayer(painter, Layer::VertLines); }
    void drawSlantLeftLines(QPainter &p) const { drawLayer(p, Layer::SlantLeftLines); }
    void drawSlantRightLines(QPainter &p) const { drawLayer(p, Layer::SlantRightLines); }
    void drawOldTest(QPainter & /*painter*/) { setBgColor(m_oldTestColor); }

    // False while the layout takes some more paints to be complete.
    bool isDrawnInFull() const override { return m_picture.isComplete(); }
    void dropPictures() override { m_picture.drop(); }

private:
    using Layer = CabinetLayout::Layer;

    void installBackground();
    void stretchPicture();
    CabinetLayout layout() const;
    void drawLayer(QPainter &painter, Layer layer) const { layout().drawLayer(painter, layer); }

    LayoutPicture m_picture;
    PictureLoader m_pictures;
    QString m_pictureToShow; // not stretched yet; empty once it is
};
