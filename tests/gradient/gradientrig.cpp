#include "gradientrig.h"

#include "directramp.h"

#include <QtTest>

#include <algorithm>

const QString colorKey = QStringLiteral("/setting/gradualChangeColor");
const QString levelKey = QStringLiteral("/setting/gradualChangeColorLevel");

void addColorRows()
{
    QTest::addColumn<int>("index");
    QTest::newRow("red") << 0;
    QTest::newRow("green") << 1;
    QTest::newRow("blue") << 2;
    QTest::newRow("white") << 3;
    QTest::newRow("yellow") << 4;
    QTest::newRow("cyan") << 5;
    QTest::newRow("purple") << 6;
}

GradientRig::GradientRig(const QVariantMap &values)
    : settings(values)
    , canvas(QSize(600, 7))
{
    build();
}

void GradientRig::build()
{
    panel = std::make_unique<GradualChangeCtrlWidget>(&canvas, settings.get(), nullptr);
    canvas.setDrawer(panel->getDrawer());
}

void GradientRig::restart()
{
    canvas.setDrawer(nullptr);
    panel.reset();
    settings->sync();
    settings.reopen();
    build();
}

std::vector<QPushButton *> GradientRig::levelButtons() const
{
    const auto found = panel->findChildren<QPushButton *>(QStringLiteral("levelPushBtn"));
    std::vector<QPushButton *> buttons(found.cbegin(), found.cend());
    std::sort(buttons.begin(), buttons.end(),
              [](const QPushButton *a, const QPushButton *b) { return a->x() < b->x(); });
    return buttons;
}

QAbstractButton *GradientRig::colorButton(int index) const
{
    static const char *const names[] = {"radioButtonRed",   "radioButtonGreen",  "radioButtonBlue",
                                        "radioButtonWhite", "radioButtonYellow", "radioButtonCyan",
                                        "radioButtonPurple"};
    return panel->findChild<QAbstractButton *>(QLatin1String(names[index]));
}

int GradientRig::checkedColor() const
{
    int checked = -1;
    for (int index = 0; index < colorCount; ++index) {
        if (colorButton(index)->isChecked() && checked >= 0)
            qFatal("more than one colour is checked");
        if (colorButton(index)->isChecked())
            checked = index;
    }
    return checked;
}

void GradientRig::click(QAbstractButton *button) const
{
    QTest::mouseClick(button, Qt::LeftButton);
}

bool GradientRig::shows(int level, const QColor &color)
{
    return canvas.painted() == DirectRamp{level, color}.image(canvas.size());
}
