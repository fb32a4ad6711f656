#include "gradualchange.h"

#include <QLinearGradient>
#include <QPainter>
#include <QWidget>

namespace {

// Few enough rows to stay in the processor's cache at any width, and enough to make the
// calls that copy them cheap.
constexpr int stripHeight = 33;

// Copies are exact where they hide what is below them, and land pixel on pixel.
bool canCopy(const QPainter &painter, const QColor &color)
{
    return color.rgba64().isOpaque() && painter.pen().brush().isOpaque()
           && painter.deviceTransform().type() <= QTransform::TxTranslate;
}

} // namespace

GradualChange::GradualChange(QWidget *target)
    : DrawerBase(target)
{ }

void GradualChange::draw(bool paint)
{
    if (!paint)
        return;
    QPainter painter(targetWidget);
    if (canCopy(painter, m_color))
        paintCopies(painter, targetWidget->size());
    else
        paintReference(painter, targetWidget->size());
}

// The outline of the default pen on the last column and the last row is wanted.
void GradualChange::paintReference(QPainter &painter, const QSize &size) const
{
    QLinearGradient ramp(0, 0, m_level, 0);
    ramp.setColorAt(0, Qt::black);
    ramp.setColorAt(1, m_color);
    ramp.setSpread(QGradient::RepeatSpread);
    painter.setBrush(ramp);
    painter.drawRect(QRect(QPoint(-1, -1), size));
}

// All rows are alike but the last one, so a low window's picture serves one of any height.
void GradualChange::paintCopies(QPainter &painter, const QSize &size)
{
    const QSize stripSize(size.width(), qMin(size.height(), stripHeight));
    const QPen pen = painter.pen(); // of the window's text colour
    const QPixmap &strip =
        m_strip.pixmap(stripSize, {m_level, m_color, pen}, [&](QPainter &stripPainter) {
            stripPainter.setPen(pen);
            paintReference(stripPainter, stripSize);
        });
    if (strip.isNull())
        return paintReference(painter, size);
    const int rows = strip.height() - 1;
    const int lastTop = size.height() - strip.height();
    for (int top = 0; top < lastTop; top += rows)
        painter.drawPixmap(0, top, strip, 0, 0, strip.width(), qMin(rows, lastTop - top));
    painter.drawPixmap(0, lastTop, strip);
}

void GradualChange::slot_gradualChangeColor(short level, const QColor &color)
{
    active = true;
    m_level = level;
    m_color = color;
    targetWidget->update();
}
