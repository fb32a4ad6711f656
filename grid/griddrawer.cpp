#include "griddrawer.h"

#include "testcolor.h"

#include <QDebug>
#include <QPainter>
#include <QWidget>

#include <algorithm>

GridDrawer::GridDrawer(QWidget *testWindow)
    : DrawerBase(testWindow)
{ }

void GridDrawer::draw(bool paint)
{
    if (!paint)
        return;
    QPainter painter(targetWidget);
    painter.setPen(m_pen);
    painter.setBrush(m_brush);
    m_picture.show(painter, pattern());
}

void GridDrawer::drawHoriLines(QPainter &painter)
{
    pattern().family(LineFamily::Horizontal).draw(painter);
}

void GridDrawer::drawVertLines(QPainter &painter)
{
    pattern().family(LineFamily::Vertical).draw(painter);
}

void GridDrawer::drawSlantLeftLines(QPainter &painter)
{
    pattern().family(LineFamily::SlantLeft).draw(painter);
}

void GridDrawer::drawSlantRightLines(QPainter &painter)
{
    pattern().family(LineFamily::SlantRight).draw(painter);
}

GridPattern GridDrawer::pattern() const
{
    GridPattern pattern;
    pattern.size = targetWidget->size();
    pattern.distance = m_lineDistance;
    pattern.offset = m_offset;
    std::copy_n(m_enabled.begin(), pattern.enabled.size(), pattern.enabled.begin());
    pattern.pen = m_pen;
    pattern.background = m_bgColor;
    return pattern;
}

void GridDrawer::slot_colorChanged(const QColor &color)
{
    m_lineColor = color;
    const QColor dimmed = getGrayScaleColor(color, m_grayScale);
    m_pen.setColor(dimmed);
    m_brush.setColor(dimmed);
    update();
}

// The brush keeps its colour: wanted.
void GridDrawer::slot_changeGrayScale(int grey)
{
    active = true;
    m_pen.setColor(getGrayScaleColor(m_lineColor, grey));
    m_grayScale = grey;
    update();
}

void GridDrawer::slot_horiToggled(bool on)
{
    toggle(LineFamily::Horizontal, on);
}

void GridDrawer::slot_vertLineToggled(bool on)
{
    toggle(LineFamily::Vertical, on);
}

void GridDrawer::slot_slantLeftToggled(bool on)
{
    toggle(LineFamily::SlantLeft, on);
}

void GridDrawer::slot_slantRightToggled(bool on)
{
    toggle(LineFamily::SlantRight, on);
}

void GridDrawer::toggle(LineFamily::Direction family, bool on)
{
    m_enabled[family] = on;
    m_bgColor = m_oldColor;
    update();
}

void GridDrawer::setHoriLinesEnabled(bool on)
{
    m_enabled[LineFamily::Horizontal] = on;
}

void GridDrawer::setVertLinesEnabled(bool on)
{
    m_enabled[LineFamily::Vertical] = on;
}

void GridDrawer::setSlantLeftLinesEnabled(bool on)
{
    m_enabled[LineFamily::SlantLeft] = on;
}

void GridDrawer::setSlantRightLinesEnabled(bool on)
{
    m_enabled[LineFamily::SlantRight] = on;
}

void GridDrawer::disableAll()
{
    m_enabled.fill(false);
}

void GridDrawer::slot_changeBgColor(const QColor &color)
{
    active = true;
    m_bgColor = color;
    update();
}

void GridDrawer::slot_setBgColor(const QColor &color)
{
    m_oldColor = color;
}

void GridDrawer::slot_changePix(int width)
{
    active = true;
    m_pen.setWidth(width);
    m_pix = width;
    update();
}

void GridDrawer::slot_changeDistance(int distance)
{
    active = true;
    m_lineDistance = distance;
    update();
}

void GridDrawer::scrollLines()
{
    active = true;
    slot_ScrollLines();
}

void GridDrawer::slot_ScrollLines()
{
    if (m_lineDistance > 0)
        m_offset = (m_offset + 1) % m_lineDistance;
    update();
}

void GridDrawer::mergedTest()
{
    active = true;
    disableAll();
    m_enabled[size_t(m_mergedIndex)] = true;
    qDebug("MergedTest index=[%d]", m_mergedIndex);
    m_mergedIndex = (m_mergedIndex + 1) % 5;
    update();
}
