#include "lamppair.h"

#include <QWidget>

LampPair::LampPair(QWidget *green, QWidget *grey)
    : m_green(green)
    , m_grey(grey)
{
    showGrey();
}

void LampPair::showGreen()
{
    m_green->show();
    m_grey->hide();
}

void LampPair::showGrey()
{
    m_green->hide();
    m_grey->show();
}

void LampPair::blink()
{
    if (m_green->isHidden())
        showGreen();
    else
        showGrey();
}
