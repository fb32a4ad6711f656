#include "settingsrules.h"

#include <QSettings>

#include <limits>

namespace SettingsRules {

int positiveInt(const QSettings &settings, QLatin1String key, int defaultValue)
{
    const int value = nonZeroInt(settings, key, defaultValue);
    return value < 1 ? defaultValue : value;
}

int nonZeroInt(const QSettings &settings, QLatin1String key, int defaultValue)
{
    // Read with room to spare: what is beyond an int must not come round as something else.
    const qlonglong value = settings.value(key).toLongLong();
    using Limits = std::numeric_limits<int>;
    return value == 0 || value < Limits::min() || value > Limits::max() ? defaultValue
                                                                        : static_cast<int>(value);
}

QColor color(const QSettings &settings, QLatin1String key)
{
    return settings.value(key).value<QColor>();
}

void store(QSettings &settings, QLatin1String key, const QVariant &value)
{
    // What comes from the file is text, so the stored value is compared as the type that is
    // written: "true" and true are the same setting.
    QVariant stored = settings.value(key);
    if (stored.isValid() && stored.convert(value.userType()) && stored == value)
        return;
    settings.setValue(key, value);
}

} // namespace SettingsRules
