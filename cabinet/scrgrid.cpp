#include "scrgrid.h"

#include <QPainter>
#include <QWidget>

#include <utility>

ScrGrid::ScrGrid(QWidget *parent)
    : DrawerBase(parent)
{ }

// The background is the window's, painted before this is called; the picture that is shown has
// it once more, so that a background set here is seen at once and the rest fits it to the pixel.
void ScrGrid::draw(bool enabled)
{
    if (!enabled)
        return;
    installBackground();
    QPainter painter(targetWidget);
    const CabinetLayout current = layout();
    if (m_layoutOn) {
        m_picture.show(painter, current);
        return;
    }
    current.preparePainter(painter);
    painter.setBrush(m_brush);
    for (int layer = 0; layer < CabinetLayout::LayerCount; ++layer)
        current.drawLayer(painter, CabinetLayout::Layer(layer));
}

bool ScrGrid::coversWindow() const
{
    return m_layoutOn && layout().background.isOpaque();
}

// The old test's colour comes last. Set after another one, at every paint, each would ask for
// the next paint at once.
void ScrGrid::installBackground()
{
    if (m_oldTest)
        setBgColor(m_oldTestColor);
    else if (m_layoutOn && m_bgPicturePath.isEmpty())
        setBgColor(m_bgColor);
    else if (m_layoutOn)
        loadBgPicture();
}

void ScrGrid::update()
{
    DrawerBase::update();
}

void ScrGrid::setBackgroundImage(const QString &path)
{
    m_bgPicturePath = path;
    if (PictureLoader::isFile(path))
        m_pictureToShow = path;
}

void ScrGrid::updateBackgroundImage()
{
    setBackgroundImage(m_bgPicturePath);
}

QImage ScrGrid::picture(const QString &path)
{
    return m_pictures.load(path);
}

void ScrGrid::stretchPicture()
{
    const QImage image = picture(std::exchange(m_pictureToShow, QString()));
    m_bgPixmap = image.isNull()
                     ? QPixmap()
                     : QPixmap::fromImage(image.scaled(targetWidget->size(), Qt::IgnoreAspectRatio,
                                                       Qt::FastTransformation));
}

// A palette that is as before asks for no paint.
void ScrGrid::setBgColor(const QColor &color)
{
    QPalette palette = targetWidget->palette();
    palette.setBrush(QPalette::All, QPalette::Window, QBrush(color, Qt::SolidPattern));
    targetWidget->setPalette(palette);
}

// From a fresh palette, unlike a colour: wanted.
void ScrGrid::loadBgPicture()
{
    if (!m_pictureToShow.isEmpty())
        stretchPicture();
    QPalette palette;
    palette.setBrush(QPalette::All, targetWidget->backgroundRole(), QBrush(m_bgPixmap));
    targetWidget->setPalette(palette);
}

void ScrGrid::drawModuleLines(QPainter &painter)
{
    layout().drawLines(painter, CabinetLayout::ModuleRows);
    layout().drawLines(painter, CabinetLayout::ModuleColumns);
}

void ScrGrid::drawScanLines(QPainter &painter)
{
    layout().drawLines(painter, CabinetLayout::ScanRows);
    layout().drawLines(painter, CabinetLayout::ScanColumns);
}

void ScrGrid::drawText(QPainter &painter)
{
    layout().drawText(painter);
}

void ScrGrid::drawHoriLines(QPainter &painter)
{
    layout().drawLines(painter, CabinetLayout::HoriLines);
}

void ScrGrid::drawVertLines(QPainter &painter)
{
    layout().drawLines(painter, CabinetLayout::VertLines);
}

void ScrGrid::drawSlantLeftLines(QPainter &painter)
{
    layout().drawLines(painter, CabinetLayout::SlantLeftLines);
}

void ScrGrid::drawSlantRightLines(QPainter &painter)
{
    layout().drawLines(painter, CabinetLayout::SlantRightLines);
}

void ScrGrid::drawOldTest(QPainter & /*painter*/)
{
    setBgColor(m_oldTestColor);
}

CabinetLayout ScrGrid::layout() const
{
    CabinetLayout layout;
    layout.size = targetWidget->size();
    if (m_oldTest || m_bgPicturePath.isEmpty())
        layout.background = QBrush(m_oldTest ? m_oldTestColor : m_bgColor, Qt::SolidPattern);
    else
        layout.background = QBrush(m_bgPixmap);
    layout.pen = m_pen;
    layout.font = targetWidget->font();
    layout.direction = targetWidget->layoutDirection();
    layout.generalLines[CabinetLayout::HoriLines] = m_horiLines;
    layout.generalLines[CabinetLayout::VertLines] = m_vertLines;
    layout.generalLines[CabinetLayout::SlantLeftLines] = m_slantLeftLines;
    layout.generalLines[CabinetLayout::SlantRightLines] = m_slantRightLines;
    layout.lineStart = qMax(0, m_lineStart);
    layout.lineStep = m_lineStep;
    layout.layoutOn = m_layoutOn;
    layout.module = {m_moduleWidth, m_moduleHeight, m_moduleLineWidth, m_moduleLineColor};
    layout.scanBoard = {qint64(m_moduleColumnCount) * m_moduleWidth,
                        qint64(m_moduleRowCount) * m_moduleHeight, m_scanLineWidth, m_scanColor};
    layout.leftToRight = m_leftToRight;
    layout.fontColor = m_fontColor;
    layout.fontSize = m_fontSize;
    layout.fontShape = m_fontShape;
    layout.beginRow = m_beginRow;
    layout.beginColumn = m_beginColumn;
    return layout;
}
