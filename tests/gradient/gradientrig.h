#pragma once

#include "gradualchangectrlwidget.h"
#include "panelrig.h"

#include <QPushButton>

extern const QString colorKey;
extern const QString levelKey;

// The gradient panel with its controls at hand.
class GradientRig : public PanelRig<GradualChangeCtrlWidget>
{
public:
    explicit GradientRig(const QVariantMap &values = {})
        : PanelRig(values, canvasSize)
    { }
    explicit GradientRig(const QByteArray &contents)
        : PanelRig(contents, canvasSize)
    { }

    // From the left: 32, 64, 128, 256.
    std::vector<QPushButton *> levelButtons() const;
    QPushButton *levelButton(std::size_t row) const { return levelButtons().at(row); }

    // Whether the test window shows these ramps.
    bool shows(int level, const QColor &color);

private:
    static constexpr QSize canvasSize{600, 7};
};
