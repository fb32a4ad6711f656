#pragma once

#include <array>
#include <bitset>

class QPushButton;
class QSettings;

// The buttons of the four line families, and which of them are remembered as pressed. That is
// another set than the checked ones where the settings say so.
class FamilyRow
{
public:
    static constexpr int count = 4;
    using Buttons = std::array<QPushButton *, count>;

    // Horizontal, vertical, slant left and slant right, numbered 0 to 3 everywhere; borrowed.
    explicit FamilyRow(const Buttons &buttons)
        : m_buttons(buttons)
    { }

    const Buttons &buttons() const { return m_buttons; }

    // Beside the others; the last one that is pressed stays so.
    void toggle(int family);
    void pressAlone(int family);
    void rememberAlone(int family) { m_pressed.reset().set(family); }
    // Nothing happens while none is remembered.
    void pressFirstAlone();
    void releaseAll();
    // Clicks the remembered ones.
    void clickPressed();

    void retranslate();
    // The last family that is checked, 0 if none is.
    int restore(const QSettings &settings);
    void store(QSettings &settings) const;

private:
    const Buttons m_buttons;
    std::bitset<count> m_pressed;
};
