#include "mixselection.h"

#include "purecolor.h"
#include "settingsrules.h"

#include <QCoreApplication>
#include <QSettings>

const std::array<MixSelection::Entry, MixSelection::itemCount> MixSelection::entries{{
    {Blue, latin1("/setting/checkBoxBlue"), QT_TRANSLATE_NOOP("MixSetting", "蓝色")},
    {Cyan, latin1("/setting/checkBoxCyan"), QT_TRANSLATE_NOOP("MixSetting", "青色")},
    {Green, latin1("/setting/checkBoxGreen"), QT_TRANSLATE_NOOP("MixSetting", "绿色")},
    {Horizontal, latin1("/setting/checkBoxH"), QT_TRANSLATE_NOOP("MixSetting", "横线")},
    {Purple, latin1("/setting/checkBoxPurple"), QT_TRANSLATE_NOOP("MixSetting", "紫色")},
    {Red, latin1("/setting/checkBoxRed"), QT_TRANSLATE_NOOP("MixSetting", "红色")},
    {SlantLeft, latin1("/setting/checkBoxSL"), QT_TRANSLATE_NOOP("MixSetting", "左斜")},
    {SlantRight, latin1("/setting/checkBoxSR"), QT_TRANSLATE_NOOP("MixSetting", "右斜")},
    {Vertical, latin1("/setting/checkBoxV"), QT_TRANSLATE_NOOP("MixSetting", "竖线")},
    {White, latin1("/setting/checkBoxWhite"), QT_TRANSLATE_NOOP("MixSetting", "白色")},
    {Yellow, latin1("/setting/checkBoxYellow"), QT_TRANSLATE_NOOP("MixSetting", "黄色")},
}};

MixSelection MixSelection::stored(const QSettings *settings)
{
    MixSelection selection;
    for (const Entry &entry : entries)
        selection.set(entry.item, !settings || !settings->value(entry.key).toBool());
    return selection;
}

void MixSelection::store(QSettings &settings) const
{
    for (const Entry &entry : entries)
        SettingsRules::store(settings, entry.key, !contains(entry.item));
}

QVector<QColor> MixSelection::colors() const
{
    QVector<QColor> selected;
    for (int index = 0; index < PureColor::count; ++index) {
        if (contains(static_cast<Item>(Red + index)))
            selected.append(PureColor::at(index));
    }
    return selected;
}

QVector<LineFamily::Direction> MixSelection::families() const
{
    constexpr Item items[] = {Horizontal, Vertical, SlantLeft, SlantRight}; // by direction
    QVector<LineFamily::Direction> selected;
    for (int direction = LineFamily::Horizontal; direction <= LineFamily::SlantRight; ++direction) {
        if (contains(items[direction]))
            selected.append(LineFamily::Direction(direction));
    }
    return selected;
}
