#pragma once

#include "latin1.h"

// The settings keys of the grid panel, beside the shared colours and those of the mix
// selection.
namespace GridKey {

constexpr QLatin1String overlayOff = latin1("/setting/gridNetChecked"); // true means unchecked

constexpr QLatin1String horizontal = latin1("/setting/gridHorizontalChecked");
constexpr QLatin1String vertical = latin1("/setting/gridVerticalChecked");
constexpr QLatin1String slantLeft = latin1("/setting/gridSlantLeftChecked");
constexpr QLatin1String slantRight = latin1("/setting/gridSlantRightChecked");

constexpr QLatin1String aging = latin1("/setting/gridIsOldTest");
constexpr QLatin1String running = latin1("/setting/gridIsScroll");
constexpr QLatin1String merged = latin1("/setting/gridIsMix");

constexpr QLatin1String grey = latin1("/setting/gridGreyLevel");
constexpr QLatin1String speed = latin1("/setting/gridSpeed");

constexpr QLatin1String horizontalPressed = latin1("/setting/isHorizontalPress");
constexpr QLatin1String verticalPressed = latin1("/setting/isVerticalPress");
constexpr QLatin1String slantLeftPressed = latin1("/setting/isSlantLeftPress");
constexpr QLatin1String slantRightPressed = latin1("/setting/isSlantRightPress");
constexpr QLatin1String paused = latin1("/setting/pushButtonPauseChecked");

constexpr int defaultGrey = 255;
constexpr int defaultSpeed = 50;

} // namespace GridKey
