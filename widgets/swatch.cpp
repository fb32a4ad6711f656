#include "swatch.h"

#include "customerqlabel.h"

#include <QColor>
#include <QRegularExpression>
#include <QShortcut>

namespace Swatch {

QString style(const QColor &color)
{
    return QStringLiteral("background-color: rgb(%1,%2,%3)")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue());
}

bool isStyle(const QString &text)
{
    static const QRegularExpression pattern(
        QStringLiteral("\\Abackground-color: rgb\\([0-9]{1,3},[0-9]{1,3},[0-9]{1,3}\\)\\z"));
    return pattern.match(text).hasMatch();
}

void makeClickable(CustomerQlabel *label)
{
    label->setFocusPolicy(Qt::StrongFocus);
    label->setCursor(Qt::PointingHandCursor);
    auto *space = new QShortcut(Qt::Key_Space, label, nullptr, nullptr, Qt::WidgetShortcut);
    QObject::connect(space, &QShortcut::activated, label, &CustomerQlabel::clicked);
}

} // namespace Swatch
