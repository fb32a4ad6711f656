#pragma once

#include "endtoendtest.h"

/// Base of the tests of where the test window lies; the environment variable TARN_WINDOW_MANAGER
/// names the window manager that they run under.
class PlacementTest : public EndToEndTest
{
    Q_OBJECT

protected:
    static constexpr QRgb Green = qRgb(0, 255, 0);
    static constexpr QRgb OtherColour = qRgb(200, 0, 200); // of other programs' windows
    static constexpr QRect Inside = QRect(200, 150, 300, 300);
    static constexpr QRect BeyondTheLeft = QRect(-50, 40, 300, 300);
    static constexpr QRect BeyondTheRight = QRect(1700, 80, 300, 300);

    std::unique_ptr<VirtualDesktop> createDesktop() const override;

    /// Whether the test window comes to cover this area and is still there when manager and
    /// program have handled everything.
    bool covers(const QRect &place);
    /// The same after a key.
    void pressAndExpect(const char *key, Qt::KeyboardModifier modifier, const QRect &place);
    void toggleFullScreen() { desktop().keyboard().key("f", Qt::ShiftModifier); }
    /// Hidden, it leaves the keyboard to the control window, once the window manager is through.
    bool settleHidden();
    /// Hides or shows the test window by its key.
    void shiftH(bool shown);
};
