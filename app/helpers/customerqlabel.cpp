#include "customerqlabel.h"

CustomerQlabel::CustomerQlabel(QWidget *parent, Qt::WindowFlags f)
    : QLabel(parent, f)
{ }

CustomerQlabel::CustomerQlabel(const QString &text, QWidget *parent, Qt::WindowFlags f)
    : QLabel(text, parent, f)
{ }

void CustomerQlabel::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    emit clicked();
}
