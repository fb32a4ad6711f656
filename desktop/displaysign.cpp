#include "displaysign.h"

#include "displayfaults.h"
#include "displayreading.h"
#include "wayland.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <algorithm>

namespace {

constexpr int checkIntervalMs = 2000; // an altered gamma ramp is told by no event

QVector<QRect> screenPlaces()
{
    QVector<QRect> places;
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens)
        places.append(screen->geometry());
    return places;
}

} // namespace

DisplaySign::DisplaySign(const QWidget *window, QWidget *parent)
    : QLabel(parent)
    , m_window(window)
{
    hide();
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &DisplaySign::check);
    timer->start(checkIntervalMs);
}

void DisplaySign::check()
{
    const QStringList texts = m_window->isVisible() ? faults() : QStringList();
    setVisible(!texts.isEmpty());
    setToolTip(texts.join(QLatin1Char('\n')));
    setAccessibleName(toolTip());
}

QStringList DisplaySign::faults()
{
    const QRect place = isOnWayland() ? QRect() : m_window->geometry();
    const QVector<QRect> screens = screenPlaces();
    if (screens != m_screens) {
        m_screens = screens;
        m_outputs = DisplayReading::compositorOutputs();
    }
    QVector<QSize> sizes;
    for (const QRect &screen : screens)
        sizes.append(screen.size());
    const QVector<QVector<quint16>> ramps = DisplayReading::gammaRamps(place);

    QStringList texts;
    if (std::any_of(ramps.cbegin(), ramps.cend(), DisplayFaults::isGammaAltered))
        texts += tr("屏幕的伽马曲线被更改（夜间模式或色彩校准）");
    if (DisplayFaults::isScaled(m_outputs, sizes))
        texts += tr("桌面缩放了画面，图案像素与屏幕像素不是一一对应");
    if (DisplayFaults::isDepthTooLow(m_window->windowHandle()->screen()->depth()))
        texts += tr("屏幕的每个颜色通道不足8位");
    if (DisplayFaults::isPartlyOffScreen(place, screens))
        texts += tr("测试窗口有一部分不在任何屏幕上");
    return texts;
}
