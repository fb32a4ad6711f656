#pragma once

#include <QLatin1String>

// The settings keys of the purity panel, beside the shared colour. The main window
// reads some of them for the test window's first overlay.
namespace PurityKey {

constexpr QLatin1String manualGrey("/setting/testPurityGreyLevel");
constexpr QLatin1String speed("/setting/testPuritySpeed");
constexpr QLatin1String autoGrey("/setting/testAutoScale");
constexpr QLatin1String autoMode("/setting/AutoTest");

constexpr int defaultGrey = 255;
constexpr int defaultSpeed = 50;

} // namespace PurityKey
