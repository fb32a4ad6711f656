#pragma once

#include "canvas.h"
#include "gradualchangectrlwidget.h"
#include "testsettings.h"

#include <QAbstractButton>
#include <QPushButton>

#include <memory>
#include <vector>

extern const QString colorKey;
extern const QString levelKey;

constexpr int colorCount = 7;
constexpr Qt::GlobalColor colors[colorCount] = {Qt::red,    Qt::green, Qt::blue,   Qt::white,
                                                Qt::yellow, Qt::cyan,  Qt::magenta};

// Adds the column "index" with a row for each of the seven colours.
void addColorRows();

// The gradient panel over a canvas and a settings file of its own, with its controls at
// hand.
class GradientRig
{
public:
    // `values` stand in the file before the panel is built.
    explicit GradientRig(const QVariantMap &values = {});

    // Builds the panel anew, as after a restart of the program.
    void restart();

    // From the left: 32, 64, 128, 256.
    std::vector<QPushButton *> levelButtons() const;
    QPushButton *levelButton(std::size_t row) const { return levelButtons().at(row); }
    QAbstractButton *colorButton(int index) const;

    // The checked colour, -1 for none.
    int checkedColor() const;

    void click(QAbstractButton *button) const;

    // Whether the test window shows these ramps.
    bool shows(int level, const QColor &color);

    TestSettings settings;
    Canvas canvas;
    std::unique_ptr<GradualChangeCtrlWidget> panel;

private:
    void build();
};
