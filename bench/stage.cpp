#include "stage.h"

#include "drawerbase.h"

#include <QPainter>
#include <QPixmap>

#include <ctime>

namespace {

// Copies a picture of the window's size onto the window.
class CopyDrawer : public DrawerBase
{
public:
    CopyDrawer(QWidget *window, const QSize &size)
        : DrawerBase(window)
        , m_picture(size)
    {
        m_picture.fill(Qt::darkCyan);
    }

    void draw(bool paint) override
    {
        if (!paint)
            return;
        QPainter painter(targetWidget);
        painter.drawPixmap(0, 0, m_picture);
    }

    bool coversWindow() const override { return true; }

private:
    QPixmap m_picture;
};

} // namespace

Stage::Stage(const QSize &size)
    : m_target(size, QImage::Format_RGB32)
    , m_copier(std::make_unique<CopyDrawer>(&m_copyWindow, size))
{
    m_window.resize(size);
    m_copyWindow.resize(size);
    m_target.fill(Qt::black);
}

Stage::~Stage() = default;

double Stage::paint(DrawContainer &window, DrawerBase &drawer)
{
    window.setDrawer(&drawer, true);
    const std::clock_t start = std::clock();
    window.render(&m_target, QPoint(), QRegion(), QWidget::DrawWindowBackground);
    return double(std::clock() - start) / CLOCKS_PER_SEC;
}
