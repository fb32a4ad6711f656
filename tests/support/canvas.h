#pragma once

#include "drawerbase.h"

#include <QImage>
#include <QWidget>

// Stands in for the test window: a plain widget that has its drawer paint on it.
class Canvas : public QWidget
{
public:
    explicit Canvas(const QSize &size = QSize(33, 17))
        : QWidget(nullptr, Qt::FramelessWindowHint)
    {
        resize(size);
    }

    void setDrawer(DrawerBase *drawer, bool paint = true)
    {
        m_drawer = drawer;
        m_paint = paint;
    }

    int paintCount() const { return m_paintCount; }

    // What the drawer alone paints over the backdrop.
    QImage painted(const QColor &backdrop = Qt::transparent)
    {
        QImage image(size(), QImage::Format_ARGB32);
        image.fill(backdrop);
        render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        return image;
    }

    // Whether the drawer says that it covers the window, which has to be what its pixels say.
    bool isCovered()
    {
        const bool covered = painted(Qt::white) == painted(Qt::black);
        if (covered != m_drawer->coversWindow())
            qFatal("the drawer is wrong about what it covers");
        return covered;
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        ++m_paintCount;
        if (m_drawer)
            m_drawer->draw(m_paint);
    }

private:
    DrawerBase *m_drawer = nullptr;
    bool m_paint = true;
    int m_paintCount = 0;
};
