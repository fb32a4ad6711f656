#include "griddrawer.h"

#include <QPainter>
#include <QWidget>

GridDrawer::GridDrawer(QWidget *testWindow)
    : DrawerBase(testWindow)
{ }

void GridDrawer::draw(bool paint)
{
    if (!paint)
        return;
    QPainter painter(targetWidget);
    painter.setPen(m_pattern.pen);
    painter.setBrush(m_brush);
    m_pattern.size = targetWidget->size();
    m_picture.show(painter, m_pattern);
}

void GridDrawer::drawFamily(QPainter &painter, LineFamily::Direction family)
{
    m_pattern.size = targetWidget->size();
    m_pattern.family(family).draw(painter);
}

void GridDrawer::slot_colorChanged(const QColor &color)
{
    m_lineColor = color;
    m_pattern.pen.setColor(dimmed(color));
    m_brush.setColor(dimmed(color));
    update();
}

// Specified: the brush keeps its colour.
void GridDrawer::slot_changeGrayScale(int grey)
{
    active = true;
    m_grayScale = grey;
    m_pattern.pen.setColor(dimmed(m_lineColor));
    update();
}

void GridDrawer::toggle(LineFamily::Direction family, bool on)
{
    m_pattern.enabled[family] = on;
    m_pattern.background = m_oldColor;
    update();
}

void GridDrawer::slot_changeBgColor(const QColor &color)
{
    active = true;
    m_pattern.background = color;
    update();
}

void GridDrawer::slot_changePix(int width)
{
    active = true;
    m_pattern.pen.setWidth(width);
    update();
}

void GridDrawer::slot_changeDistance(int distance)
{
    active = true;
    m_pattern.distance = distance;
    update();
}

void GridDrawer::scrollLines()
{
    active = true;
    slot_ScrollLines();
}

void GridDrawer::slot_ScrollLines()
{
    if (m_pattern.distance > 0)
        m_pattern.offset = (m_pattern.offset + 1) % m_pattern.distance;
    update();
}

void GridDrawer::mergedTest()
{
    active = true;
    disableAll();
    if (m_mergedIndex < GridPattern::familyCount)
        m_pattern.enabled[size_t(m_mergedIndex)] = true;
    qDebug("MergedTest index=[%d]", m_mergedIndex);
    m_mergedIndex = (m_mergedIndex + 1) % (GridPattern::familyCount + 1);
    update();
}
