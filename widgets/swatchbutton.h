#pragma once

#include <QRadioButton>

// A radio button that is a filled swatch: the style sheet gives its colour, its text
// stands in the middle, and the whole area answers the mouse.
class SwatchButton : public QRadioButton
{
    Q_OBJECT

public:
    explicit SwatchButton(QWidget *parent = nullptr);

protected:
    bool hitButton(const QPoint &position) const override;
    void paintEvent(QPaintEvent *event) override;
};
