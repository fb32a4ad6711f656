#pragma once

#include "gridcanvas.h"

#include <QColor>
#include <QImage>
#include <QSize>
#include <QString>

#include <random>

// What a grid drawer is told, kept beside it.
struct GridSettings
{
    int distance = 10;
    int offset = 0;
    int width = 1;
    int families = 0; // bits of Family
    QColor line;
    QColor background;
};

// The rule for a grid's pixels, spelled out and independent of the code under test: what the
// image shows once every line is drawn on it by a call of its own.
QImage drawnLineByLine(QImage image, const QSize &size, const GridSettings &settings);

// Of one colour that no grid leaves standing; `scale` is the number of device pixels to a pixel.
QImage blank(const QSize &size, QImage::Format format = QImage::Format_RGB32, qreal scale = 1);

// Tells the drawer the settings through its own operations only.
void apply(GridDrawer &drawer, GridSettings &current, const GridSettings &wanted);
void scroll(GridDrawer &drawer, GridSettings &current);

QString description(const QSize &size, const GridSettings &settings);

// Draws sizes and settings by lot, the same ones in every run.
class Lot
{
public:
    static constexpr unsigned seed = 20240611;

    int between(int low, int high);
    // Tall, wide, square or tiny.
    QSize size();
    GridSettings settings();

private:
    QColor color();
    QColor opaqueColor();

    std::mt19937 m_engine{seed};
};
