#include "mixselection.h"

#include "settingsrules.h"
#include "testcolor.h"

#include <QCoreApplication>
#include <QSettings>

#include <algorithm>

const std::array<MixSelection::Entry, MixSelection::itemCount> &MixSelection::entries()
{
    static const std::array<Entry, itemCount> table{{
        {Blue, QLatin1String("/setting/checkBoxBlue"), QT_TRANSLATE_NOOP("MixSetting", "蓝色")},
        {Cyan, QLatin1String("/setting/checkBoxCyan"), QT_TRANSLATE_NOOP("MixSetting", "青色")},
        {Green, QLatin1String("/setting/checkBoxGreen"), QT_TRANSLATE_NOOP("MixSetting", "绿色")},
        {Horizontal, QLatin1String("/setting/checkBoxH"), QT_TRANSLATE_NOOP("MixSetting", "横线")},
        {Purple, QLatin1String("/setting/checkBoxPurple"), QT_TRANSLATE_NOOP("MixSetting", "紫色")},
        {Red, QLatin1String("/setting/checkBoxRed"), QT_TRANSLATE_NOOP("MixSetting", "红色")},
        {SlantLeft, QLatin1String("/setting/checkBoxSL"), QT_TRANSLATE_NOOP("MixSetting", "左斜")},
        {SlantRight, QLatin1String("/setting/checkBoxSR"), QT_TRANSLATE_NOOP("MixSetting", "右斜")},
        {Vertical, QLatin1String("/setting/checkBoxV"), QT_TRANSLATE_NOOP("MixSetting", "竖线")},
        {White, QLatin1String("/setting/checkBoxWhite"), QT_TRANSLATE_NOOP("MixSetting", "白色")},
        {Yellow, QLatin1String("/setting/checkBoxYellow"), QT_TRANSLATE_NOOP("MixSetting", "黄色")},
    }};
    return table;
}

MixSelection MixSelection::stored(const QSettings *settings)
{
    MixSelection selection;
    for (const Entry &entry : entries())
        selection.set(entry.item, !settings || !settings->value(entry.key).toBool());
    return selection;
}

void MixSelection::store(QSettings &settings) const
{
    for (const Entry &entry : entries())
        SettingsRules::store(settings, entry.key, !contains(entry.item));
}

bool MixSelection::isEmpty() const
{
    return std::none_of(m_selected.cbegin(), m_selected.cend(), [](bool on) { return on; });
}

QVector<QColor> MixSelection::colors() const
{
    QVector<QColor> selected;
    for (int index = 0; index < TestColor::count; ++index) {
        if (contains(static_cast<Item>(Red + index)))
            selected.append(TestColor::at(index));
    }
    return selected;
}

std::array<bool, 4> MixSelection::lines() const
{
    return {contains(Horizontal), contains(Vertical), contains(SlantLeft), contains(SlantRight)};
}
