#pragma once

#include "drawerbase.h"

#include <QColor>

// Fills the test window with one colour: a pure colour at a grey level, or any other
// colour as it is.
class ScrPurity : public DrawerBase
{
    Q_OBJECT

public:
    explicit ScrPurity(QWidget *target);

    void draw(bool paint) override;
    bool coversWindow() const override;

signals:
    // A grey level was set. Specified: a colour alone does not say so.
    void signal_puritySelect(bool flag);

public slots:
    void slot_colorChanged(const QColor &color);
    // The grey level, 0 to 255; painted alpha is not affected.
    void slot_AlphaChanged(int alpha);

private:
    QColor color;
    int alpha = 255;
};
