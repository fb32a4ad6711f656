#include "griddrawer.h"

#include "testcolor.h"

#include <QDebug>
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
    painter.setPen(m_pen);
    painter.setBrush(m_brush);
    m_picture.paint(painter, pattern());
}

void GridDrawer::drawHoriLines(QPainter &painter)
{
    pattern().drawHorizontal(painter);
}

void GridDrawer::drawVertLines(QPainter &painter)
{
    pattern().drawVertical(painter);
}

void GridDrawer::drawSlantLeftLines(QPainter &painter)
{
    pattern().drawSlantLeft(painter);
}

void GridDrawer::drawSlantRightLines(QPainter &painter)
{
    pattern().drawSlantRight(painter);
}

GridPattern GridDrawer::pattern() const
{
    GridPattern pattern;
    pattern.size = targetWidget->size();
    pattern.distance = m_lineDistance;
    pattern.offset = m_offset;
    pattern.horizontal = m_horiEnabled;
    pattern.vertical = m_vertEnabled;
    pattern.slantLeft = m_slantLeftEnabled;
    pattern.slantRight = m_slantRightEnabled;
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
    toggle(m_horiEnabled, on);
}

void GridDrawer::slot_vertLineToggled(bool on)
{
    toggle(m_vertEnabled, on);
}

void GridDrawer::slot_slantLeftToggled(bool on)
{
    toggle(m_slantLeftEnabled, on);
}

void GridDrawer::slot_slantRightToggled(bool on)
{
    toggle(m_slantRightEnabled, on);
}

void GridDrawer::toggle(bool &family, bool on)
{
    family = on;
    m_bgColor = m_oldColor;
    update();
}

void GridDrawer::setHoriLinesEnabled(bool on)
{
    m_horiEnabled = on;
}

void GridDrawer::setVertLinesEnabled(bool on)
{
    m_vertEnabled = on;
}

void GridDrawer::setSlantLeftLinesEnabled(bool on)
{
    m_slantLeftEnabled = on;
}

void GridDrawer::setSlantRightLinesEnabled(bool on)
{
    m_slantRightEnabled = on;
}

void GridDrawer::disableAll()
{
    m_horiEnabled = false;
    m_vertEnabled = false;
    m_slantLeftEnabled = false;
    m_slantRightEnabled = false;
    m_mergedBlank = false;
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
    bool *const steps[] = {&m_horiEnabled, &m_vertEnabled, &m_slantLeftEnabled,
                           &m_slantRightEnabled, &m_mergedBlank};
    *steps[m_mergedIndex] = true;
    qDebug("MergedTest index=[%d]", m_mergedIndex);
    m_mergedIndex = (m_mergedIndex + 1) % 5;
    update();
}
