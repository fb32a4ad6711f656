#pragma once

#include <QObject>

#include <array>

class QAbstractButton;
class QButtonGroup;
class QColor;

// Seven checkable buttons as an exclusive row of the pure colours, in the order of
// the colour table.
class SwatchRow : public QObject
{
    Q_OBJECT

public:
    using Buttons = std::array<QAbstractButton *, 7>;

    // The buttons are borrowed; they have to outlive the row.
    SwatchRow(const Buttons &buttons, QObject *parent);

    // Those of a form, by the names that they have in every form.
    template<typename Form>
    SwatchRow(const Form &form, QObject *parent)
        : SwatchRow(Buttons{form.radioButtonRed, form.radioButtonGreen, form.radioButtonBlue,
                            form.radioButtonWhite, form.radioButtonYellow, form.radioButtonCyan,
                            form.radioButtonPurple},
                    parent)
    { }

    // The button of a pure colour, null for any other colour.
    QAbstractButton *button(const QColor &color) const;

    // Names the buttons in the interface language: the text where it fits, the tool
    // tip and the accessible name always.
    void retranslate();

signals:
    // The button of this colour became checked, or was clicked and is checked: so a
    // click that checks a button says so twice, one on the checked button once.
    void selected(int index);

private:
    QButtonGroup *m_group; // by the colours' indices
};
