#include "runindicator.h"

#include <QCoreApplication>
#include <QWidget>

RunIndicator::RunIndicator(QWidget *green, QWidget *grey)
    : m_green(green)
    , m_grey(grey)
{
    showGrey();
}

void RunIndicator::show(bool isGreen)
{
    m_green->setVisible(isGreen);
    m_grey->setVisible(!isGreen);
}

void RunIndicator::blink()
{
    show(m_green->isHidden());
}

void RunIndicator::retranslate()
{
    for (QWidget *lamp : {m_green, m_grey})
        lamp->setAccessibleName(QCoreApplication::translate("RunIndicator", "运行指示灯"));
}
