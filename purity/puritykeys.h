#pragma once

#include "latin1.h"

// The settings keys of the purity panel, beside the shared colour. The main window
// reads some of them for the test window's first overlay.
namespace PurityKey {

constexpr QLatin1String manualGrey = latin1("/setting/testPurityGreyLevel");
constexpr QLatin1String speed = latin1("/setting/testPuritySpeed");
constexpr QLatin1String autoGrey = latin1("/setting/testAutoScale");
constexpr QLatin1String autoMode = latin1("/setting/AutoTest");

constexpr int defaultGrey = 255;
constexpr int defaultSpeed = 50;

} // namespace PurityKey
