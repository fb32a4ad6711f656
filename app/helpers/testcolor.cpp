#include "testcolor.h"

#include <QCoreApplication>

#include <array>

namespace TestColor {
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

const Entry *entry(int index)
{
    return index >= 0 && index < count ? &table.at(static_cast<std::size_t>(index)) : nullptr;
}

} // namespace

QColor at(int index)
{
    const Entry *found = entry(index);
    return found ? QColor(found->color) : QColor();
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
    const Entry *found = entry(index);
    return found ? QString::fromUtf8(found->name) : QString();
}

QString translatedName(int index)
{
    const Entry *found = entry(index);
    return found ? QCoreApplication::translate("CommonHelper", found->name) : QString();
}

} // namespace TestColor

QColor getGrayScaleColor(const QColor &color, int grey)
{
    if (TestColor::indexOf(color) < 0)
        return color;
    const int level = qBound(0, grey, 255);
    const auto channel = [level](int full) { return full > 0 ? level : 0; };
    return {channel(color.red()), channel(color.green()), channel(color.blue())};
}
