#pragma once

#include "latin1.h"

#include <QColor>
#include <QVariant>

class QSettings;

// The keys that more than one panel reads or writes. Every other key stands
// beside the panel that owns it.
namespace SharedKey {
constexpr QLatin1String baseColor = latin1("/setting/testWindowBaseColor");
constexpr QLatin1String gradientColor = latin1("/setting/gradualChangeColor");
} // namespace SharedKey

// How values are read from and written to the settings file. Keys begin with
// "/setting/". A value that is missing or of the wrong type gives the default.
namespace SettingsRules {

// The stored int; a value below 1 means the default, so 0 cannot be stored.
int positiveInt(const QSettings &settings, QLatin1String key, int defaultValue);

// The stored int; 0 means the default.
int nonZeroInt(const QSettings &settings, QLatin1String key, int defaultValue);

// The stored colour, kept as a colour or as its name; an invalid colour when
// there is none.
QColor color(const QSettings &settings, QLatin1String key);

// Writes the value unless the file holds it already, so that saving what did
// not change leaves the file alone.
void store(QSettings &settings, QLatin1String key, const QVariant &value);

} // namespace SettingsRules
