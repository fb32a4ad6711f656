#include "settingsrules.h"

#include <QSettings>

namespace SettingsRules {

int positiveInt(const QSettings &settings, QLatin1String key, int defaultValue)
{
    const int value = settings.value(key).toInt();
    return value < 1 ? defaultValue : value;
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
