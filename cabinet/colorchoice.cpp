#include "colorchoice.h"

#include "colordialog.h"
#include "settingsrules.h"
#include "swatch.h"

#include <QSettings>
#include <QWidget>

void ColorChoice::set(const QColor &chosen, const QString &style)
{
    color = chosen;
    swatch->setStyleSheet(style);
}

void ColorChoice::reset()
{
    set(initial, Swatch::style(initial));
}

void ColorChoice::restore(const QSettings &settings)
{
    const QString style = settings.value(styleKey).toString();
    const QColor stored = SettingsRules::color(settings, colorKey);
    if (style.isEmpty() || !stored.isValid())
        reset();
    else // a text that is another style could name any file
        set(stored, Swatch::isStyle(style) ? style : Swatch::style(stored));
}

bool ColorChoice::ask(QSettings *settings)
{
    // Specified: begins with green, whatever the colour is.
    const QColor chosen = ColorDialog::getColor(Qt::green);
    if (!chosen.isValid())
        return false;
    const QString style = Swatch::style(chosen);
    set(chosen, style);
    if (settings) {
        SettingsRules::store(*settings, colorKey, chosen);
        SettingsRules::store(*settings, styleKey, style);
    }
    return true;
}
