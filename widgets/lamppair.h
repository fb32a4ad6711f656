#pragma once

class QWidget;

// The two status lamps of an automatic run, green and grey in one place: exactly one
// of them is shown.
class LampPair
{
public:
    // The lamps are borrowed; the grey one is shown at first.
    LampPair(QWidget *green, QWidget *grey);

    void showGreen();
    void showGrey();
    void blink(); // the other one is shown

    // Names the lamps for assistive technology, in the interface language.
    void retranslate();

private:
    QWidget *m_green;
    QWidget *m_grey;
};
