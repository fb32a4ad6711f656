#include "swatchrow.h"

#include "testcolor.h"

#include <QAbstractButton>
#include <QButtonGroup>

SwatchRow::SwatchRow(const Buttons &buttons, QObject *parent)
    : QObject(parent)
    , m_buttons(buttons)
{
    auto *group = new QButtonGroup(this);
    for (int index = 0; index < TestColor::count; ++index) {
        QAbstractButton *button = m_buttons.at(static_cast<std::size_t>(index));
        group->addButton(button, index);
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
    const int index = TestColor::indexOf(color);
    return index < 0 ? nullptr : m_buttons.at(static_cast<std::size_t>(index));
}

void SwatchRow::retranslate()
{
    constexpr int border = 3; // on either side of the text, in pixels
    for (int index = 0; index < TestColor::count; ++index) {
        QAbstractButton *button = m_buttons.at(static_cast<std::size_t>(index));
        const QString name = TestColor::translatedName(index);
        button->setText(
            button->fontMetrics().elidedText(name, Qt::ElideRight, button->width() - 2 * border));
        button->setToolTip(name);
        button->setAccessibleName(name);
    }
}
