#include "displayfaults.h"

#include <QRegion>

#include <algorithm>

namespace DisplayFaults {

namespace {

bool isRamp(const QVector<quint16> &levels)
{
    return levels.size() > 1 && levels.constFirst() != levels.constLast()
           && (std::is_sorted(levels.cbegin(), levels.cend())
               || std::is_sorted(levels.crbegin(), levels.crend()));
}

} // namespace

bool isGammaAltered(const QVector<quint16> &ramp)
{
    constexpr int level = 256; // of 8 bits, in the ramp's 16
    if (!isRamp(ramp))
        return false;
    for (int i = 0; i < ramp.size(); ++i) {
        if (qAbs(ramp.at(i) - i * 65535 / (ramp.size() - 1)) >= level)
            return true;
    }
    return false;
}

bool isScaled(const QVector<QSize> &outputs, const QVector<QSize> &screens)
{
    return std::any_of(outputs.cbegin(), outputs.cend(), [&](const QSize &output) {
        return !screens.contains(output) && !screens.contains(output.transposed());
    });
}

bool isDepthTooLow(int bitsPerPixel)
{
    return bitsPerPixel < 3 * 8;
}

bool isPartlyOffScreen(const QRect &window, const QVector<QRect> &screens)
{
    QRegion off(window);
    for (const QRect &screen : screens)
        off -= screen;
    return !off.isEmpty();
}

} // namespace DisplayFaults
