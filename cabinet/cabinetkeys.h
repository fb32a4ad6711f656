#pragma once

#include "latin1.h"

// The settings keys of the cabinet panel and its advanced settings.
namespace CabinetKey {

constexpr QLatin1String boxHeight = latin1("/setting/tarnBoxHeight");
constexpr QLatin1String boxWidth = latin1("/setting/tarnBoxWidth");
constexpr QLatin1String columnCount = latin1("/setting/tarnModelColumnCount");
constexpr QLatin1String rowCount = latin1("/setting/tarnModelRowCount");
constexpr QLatin1String rightToLeft = latin1("/setting/tarnLeftToRight"); // true: right to left
constexpr QLatin1String solidBackground = latin1("/setting/tarnBackgroundSelect");

// Each colour is kept twice, as itself and as the style of its swatch.
constexpr QLatin1String fontColor = latin1("/setting/tarnFontFontColor");
constexpr QLatin1String fontStyle = latin1("/setting/tarnFontColor");
constexpr QLatin1String moduleLineColor = latin1("/setting/tarnModuleLineColor");
constexpr QLatin1String moduleLineStyle = latin1("/setting/tarnBoxLineColor");
constexpr QLatin1String scanLineColor = latin1("/setting/tarnScanLineColor");
constexpr QLatin1String scanLineStyle = latin1("/setting/tarnModelColor");
constexpr QLatin1String backgroundColor = latin1("/setting/tarnBackColor");
constexpr QLatin1String backgroundStyle = latin1("/setting/tarnBackgroundColor");

constexpr QLatin1String fontSize = latin1("/setting/advanceFontSize");
constexpr QLatin1String fontShape = latin1("/setting/advanceFontShape");
constexpr QLatin1String beginRow = latin1("/setting/advanceBeginRow");
constexpr QLatin1String beginColumn = latin1("/setting/advanceBeginColumn");
constexpr QLatin1String moduleLineWidth = latin1("/setting/advanceModeWidth");
constexpr QLatin1String scanLineWidth = latin1("/setting/advanceScanWidth");

} // namespace CabinetKey
