#include "advancedvalue.h"

#include <QSettings>

std::optional<int> AdvancedValue::stored(const QSettings &settings) const
{
    const QString text = settings.value(key).toString();
    if (text.isEmpty())
        return std::nullopt;
    return text.toInt();
}
