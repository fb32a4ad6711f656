#include "swatchrow.h"

#include "purecolor.h"

#include <QAbstractButton>
#include <QButtonGroup>

SwatchRow::SwatchRow(const Buttons &buttons, QObject *parent)
    : QObject(parent)
    , m_group(new QButtonGroup(this))
{
    for (QAbstractButton *button : buttons) {
        const int index = m_group->buttons().size();
        m_group->addButton(button, index);
        const auto announce = [this, index](bool checked) {
            if (checked)
                emit selected(index);
        };
        connect(button, &QAbstractButton::toggled, this, announce);
        connect(button, &QAbstractButton::clicked, this, announce);
    }
}

QAbstractButton *SwatchRow::button(const QColor &color) const
{
    return m_group->button(PureColor::indexOf(color));
}

void SwatchRow::retranslate()
{
    constexpr int border = 3; // on either side of the text, in pixels
    for (int index = 0; index < PureColor::count; ++index) {
        QAbstractButton *button = m_group->button(index);
        const QString name = PureColor::translatedName(index);
        button->setText(
            button->fontMetrics().elidedText(name, Qt::ElideRight, button->width() - 2 * border));
        button->setToolTip(name);
        button->setAccessibleName(name);
    }
}
