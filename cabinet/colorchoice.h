#pragma once

#include <QColor>
#include <QLatin1String>

class QSettings;
class QString;
class QWidget;
class ScrGrid;

// One colour of the layout: the operator chooses it at a swatch, the settings keep it, and the
// drawer shows it.
struct ColorChoice
{
    QWidget *swatch;
    QLatin1String colorKey;
    QLatin1String styleKey; // of the swatch
    QColor ScrGrid::*field;
    Qt::GlobalColor initial;
    QColor color{};

    void reset();
    // A stored colour counts only with the style of its swatch.
    void restore(const QSettings &settings);
    // False when the operator chose none. Settings may be null.
    bool ask(QSettings *settings);

private:
    void set(const QColor &chosen, const QString &style);
};
