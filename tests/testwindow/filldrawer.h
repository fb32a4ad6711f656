#pragma once

#include "drawerbase.h"

#include <QColor>
#include <QPainter>
#include <QWidget>

// A pattern of one colour that counts how often it was painted.
class FillDrawer : public DrawerBase
{
public:
    FillDrawer(QWidget *target, const QColor &fillColor)
        : DrawerBase(target)
        , color(fillColor)
    { }

    void draw(bool paint) override
    {
        if (!paint) {
            ++refusals;
            return;
        }
        ++draws;
        QPainter painter(targetWidget);
        painter.fillRect(targetWidget->rect(), color);
    }

    bool coversWindow() const override { return covers; }
    void dropPictures() override { ++drops; }

    QColor color;
    bool covers = false;
    int draws = 0;
    int drops = 0;
    int refusals = 0; // calls that asked for nothing
};
