#pragma once

#include "linefamily.h"

#include <QColor>
#include <QLatin1String>
#include <QVector>

#include <array>
#include <bitset>

class QSettings;

// What the merged test shows: any of the seven pure colours and of the four line families.
class MixSelection
{
public:
    // The colours in the order of the colour table, then the families.
    enum Item {
        Red,
        Green,
        Blue,
        White,
        Yellow,
        Cyan,
        Purple,
        Vertical,
        Horizontal,
        SlantLeft,
        SlantRight,
        itemCount
    };

    struct Entry
    {
        Item item;
        QLatin1String key; // the stored value is true where the item is not selected
        const char *text; // in the context MixSetting
    };

    // Every item once, in the order in which the settings are read and written.
    static const std::array<Entry, itemCount> entries;

    // The selection that is stored. Whatever is not, is selected; so everything is, where there
    // are no settings.
    static MixSelection stored(const QSettings *settings);
    void store(QSettings &settings) const;

    bool contains(Item item) const { return m_selected.test(item); }
    void set(Item item, bool selected) { m_selected.set(item, selected); }
    bool isEmpty() const { return m_selected.none(); }

    // The selected colours, in the order of the colour table.
    QVector<QColor> colors() const;
    // The selected families, in the order horizontal, vertical, slant left, slant right.
    QVector<LineFamily::Direction> families() const;

private:
    std::bitset<itemCount> m_selected;
};
