#include "runindicator.h"

#include <QCoreApplication>
#include <QWidget>

RunIndicator::RunIndicator(QWidget *green, QWidget *grey)
    : m_green(green)
    , m_grey(grey)
{
    showGrey();
}

void RunIndicator::showGreen()
{
    m_green->show();
    m_grey->hide();
}

void RunIndicator::showGrey()
{
    m_green->hide();
    m_grey->show();
}

void RunIndicator::blink()
{
    if (m_green->isHidden())
        showGreen();
    else
        showGrey();
}

void RunIndicator::retranslate()
{
    for (QWidget *lamp : {m_green, m_grey})
        lamp->setAccessibleName(QCoreApplication::translate("RunIndicator", "运行指示灯"));
}
