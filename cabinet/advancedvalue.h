#pragma once

#include "cabinetkeys.h"
#include "scrgrid.h"

#include <QSettings>

#include <array>
#include <optional>

// One of the cabinet layout's advanced values: where it is kept, its limits, and the drawer's
// field that it goes to.
struct AdvancedValue
{
    enum Item { FontSize, BeginRow, BeginColumn, ModuleLine, ScanLine, FontShape, itemCount };

    QLatin1String key;
    int minimum;
    int initial;
    int maximum;
    int ScrGrid::*field;

    // What is stored, within the limits or not; 0 for a text that is no int, nothing for an
    // empty one.
    std::optional<int> stored(const QSettings &settings) const
    {
        const QString text = settings.value(key).toString();
        return text.isEmpty() ? std::nullopt : std::optional(text.toInt());
    }
};

constexpr std::array<AdvancedValue, AdvancedValue::itemCount> advancedValues = {{
    {CabinetKey::fontSize, 1, 10, 100, &ScrGrid::m_fontSize},
    {CabinetKey::beginRow, 0, 1, 100, &ScrGrid::m_beginRow},
    {CabinetKey::beginColumn, 0, 1, 100, &ScrGrid::m_beginColumn},
    {CabinetKey::moduleLineWidth, 1, 1, 10, &ScrGrid::m_moduleLineWidth}, // alone ends at 10
    {CabinetKey::scanLineWidth, 1, 4, 100, &ScrGrid::m_scanLineWidth},
    {CabinetKey::fontShape, 0, 0, 2, &ScrGrid::m_fontShape},
}};
