#include "gradualchange.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

namespace {

// Few enough rows to stay in the processor's cache at any width, and enough to make the calls
// that copy them cheap.
constexpr int stripHeight = 8;

// One ramp, in a row of pixels. Every column has the colour at its middle: the painter's own
// repeated gradient adds up rounding errors from one ramp to the next.
QPixmap rampRow(int level, const QColor &color)
{
    QImage row(level, 1, QImage::Format_ARGB32_Premultiplied);
    auto *const pixels = reinterpret_cast<QRgb *>(row.bits());
    const QRgb end = qPremultiply(color.rgba());
    for (int x = 0; x < level; ++x) {
        const double share = (x + 0.5) / level;
        const auto mixed = [share](int black, int full) {
            return qRound(black + (full - black) * share);
        };
        pixels[x] = qRgba(mixed(0, qRed(end)), mixed(0, qGreen(end)), mixed(0, qBlue(end)),
                          mixed(255, qAlpha(end)));
    }
    return QPixmap::fromImage(row);
}

} // namespace

GradualChange::GradualChange(QWidget *target)
    : DrawerBase(target)
{ }

// Specified: the outline of the default pen on the last column and the last row.
void GradualChange::draw(bool paint)
{
    if (!paint)
        return;
    QPainter painter(targetWidget);
    if (coversWindow()) {
        paintRows(painter);
        return;
    }
    painter.setBrush(m_ramps);
    painter.drawRect(QRect(QPoint(-1, -1), targetWidget->size()));
}

// All rows but the last are alike, so a few are painted and copied.
void GradualChange::paintRows(QPainter &painter) const
{
    const QSize size = targetWidget->size();
    const QPen pen = painter.pen(); // of the window's text colour
    QPixmap strip(size.width(), stripHeight);
    QPainter stripPainter(&strip);
    stripPainter.setPen(pen);
    stripPainter.setBrush(m_ramps);
    stripPainter.drawRect(-1, -1, size.width(), stripHeight + 1);
    stripPainter.end();
    for (int top = 0; top < size.height(); top += stripHeight)
        painter.drawPixmap(0, top, strip);
    painter.fillRect(0, size.height() - 1, size.width(), 1, pen.brush());
}

bool GradualChange::coversWindow() const
{
    return m_ramps.isOpaque()
           && targetWidget->palette().brush(targetWidget->foregroundRole()).isOpaque();
}

void GradualChange::slot_gradualChangeColor(short level, const QColor &color)
{
    active = true;
    m_ramps = level > 0 ? QBrush(rampRow(level, color)) : QBrush(Qt::black);
    targetWidget->update();
}
