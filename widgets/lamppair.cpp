#include "lamppair.h"

#include <QCoreApplication>
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

void LampPair::retranslate()
{
    const QString name = QCoreApplication::translate("LampPair", "运行指示灯");
    m_green->setAccessibleName(name);
    m_grey->setAccessibleName(name);
}
