#include "gradientrig.h"

#include "directramp.h"

#include <algorithm>

const QString colorKey = QStringLiteral("/setting/gradualChangeColor");
const QString levelKey = QStringLiteral("/setting/gradualChangeColorLevel");

std::vector<QPushButton *> GradientRig::levelButtons() const
{
    const auto found = panel->findChildren<QPushButton *>(QStringLiteral("levelPushBtn"));
    std::vector<QPushButton *> buttons(found.cbegin(), found.cend());
    std::sort(buttons.begin(), buttons.end(),
              [](const QPushButton *a, const QPushButton *b) { return a->x() < b->x(); });
    return buttons;
}

bool GradientRig::shows(int level, const QColor &color)
{
    return canvas.painted() == DirectRamp{level, color}.image(canvas.size());
}
