#include "purecolor.h"

#include <QCoreApplication>

#include <array>

namespace PureColor {
namespace {

struct Entry
{
    Qt::GlobalColor color;
    const char *name;
};

constexpr std::array<Entry, count> table{{
    {Qt::red, QT_TRANSLATE_NOOP("CommonHelper", "红")},
    {Qt::green, QT_TRANSLATE_NOOP("CommonHelper", "绿")},
    {Qt::blue, QT_TRANSLATE_NOOP("CommonHelper", "蓝")},
    {Qt::white, QT_TRANSLATE_NOOP("CommonHelper", "白")},
    {Qt::yellow, QT_TRANSLATE_NOOP("CommonHelper", "黄")},
    {Qt::cyan, QT_TRANSLATE_NOOP("CommonHelper", "青")},
    {Qt::magenta, QT_TRANSLATE_NOOP("CommonHelper", "紫")},
}};

// Null outside the table.
const char *name(int index)
{
    return index >= 0 && index < count ? table.at(std::size_t(index)).name : nullptr;
}

} // namespace

QColor at(int index)
{
    return name(index) ? QColor(table.at(std::size_t(index)).color) : QColor();
}

int indexOf(const QColor &color)
{
    for (int index = 0; index < count; ++index) {
        if (color == at(index))
            return index;
    }
    return -1;
}

QString sourceName(int index)
{
    return QString::fromUtf8(name(index));
}

QString translatedName(int index)
{
    return QCoreApplication::translate("CommonHelper", name(index));
}

} // namespace PureColor

QColor getGrayScaleColor(const QColor &color, int grey)
{
    if (PureColor::indexOf(color) < 0)
        return color;
    const int level = qBound(0, grey, 255);
    const auto channel = [level](int full) { return full > 0 ? level : 0; };
    return {channel(color.red()), channel(color.green()), channel(color.blue())};
}
