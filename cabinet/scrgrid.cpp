#include "scrgrid.h"

#include <QPainter>
#include <QWidget>

#include <utility>

// The background is the window's, painted before this is called; the picture that is shown has
// it once more, so that a background set here is seen at once and the rest fits it to the pixel.
void ScrGrid::draw(bool enabled)
{
    if (!enabled)
        return;
    installBackground();
    QPainter painter(targetWidget);
    if (m_layoutOn) {
        m_picture.show(painter, layout());
        return;
    }
    painter.setBrush(m_brush);
    layout().draw(painter);
}

// A resting window has the background already.
void ScrGrid::installBackground()
{
    if (!m_layoutOn && !m_oldTest)
        return;
    if (hasPicture())
        stretchPicture();
    if (targetWidget->palette().brush(targetWidget->backgroundRole()) == background())
        return;
    if (hasPicture())
        loadBgPicture();
    else
        setBgColor(m_oldTest ? m_oldTestColor : m_bgColor);
}

void ScrGrid::setBackgroundImage(const QString &path)
{
    m_bgPicturePath = path;
    if (PictureLoader::isFile(path))
        m_pictureToShow = path;
}

void ScrGrid::stretchPicture()
{
    if (m_pictureToShow.isEmpty())
        return;
    const QImage image = picture(std::exchange(m_pictureToShow, QString()));
    m_bgPixmap = image.isNull()
                     ? QPixmap()
                     : QPixmap::fromImage(image.scaled(targetWidget->size(), Qt::IgnoreAspectRatio,
                                                       Qt::FastTransformation));
}

void ScrGrid::setBgColor(const QColor &color)
{
    QPalette palette = targetWidget->palette();
    palette.setBrush(QPalette::All, QPalette::Window, QBrush(color, Qt::SolidPattern));
    targetWidget->setPalette(palette);
}

// Specified: from a fresh palette, unlike a colour.
void ScrGrid::loadBgPicture()
{
    stretchPicture();
    QPalette palette;
    palette.setBrush(QPalette::All, targetWidget->backgroundRole(), QBrush(m_bgPixmap));
    targetWidget->setPalette(palette);
}

CabinetLayout ScrGrid::layout() const
{
    return {*this, targetWidget->size(), targetWidget->font(), targetWidget->layoutDirection()};
}
