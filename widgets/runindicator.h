#pragma once

class QWidget;

// Tells whether an automatic run goes on, by a green and a grey lamp in one place of which
// exactly one is shown.
class RunIndicator
{
public:
    // The lamps are borrowed; the grey one is shown at first.
    RunIndicator(QWidget *green, QWidget *grey);

    void showGreen() { show(true); }
    void showGrey() { show(false); }
    void blink(); // the other one is shown

    // Names the lamps for assistive technology, in the interface language.
    void retranslate();

private:
    void show(bool isGreen);

    QWidget *m_green;
    QWidget *m_grey;
};
