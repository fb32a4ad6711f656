// What the panel keeps in the settings file.

#include "ui_scrtestdialog.h"

#include "commonhelper.h"
#include "gridkeys.h"
#include "savesoon.h"
#include "scrgridctrldialog.h"
#include "settingsrules.h"
#include "swatchrow.h"

#include <QSettings>

void ScrGridCtrlDialog::initSaving()
{
    for (QSpinBox *spinBox : {ui->labelGrayLevel, ui->labelSpeed})
        connect(spinBox, qOverload<int>(&QSpinBox::valueChanged), m_saveSoon, &SaveSoon::schedule);
    connect(m_swatches, &SwatchRow::selected, m_saveSoon, &SaveSoon::schedule);
    connect(ui->netGridCheckBox, &QCheckBox::toggled, m_saveSoon, &SaveSoon::schedule);
    for (QPushButton *button : {ui->pushButtonPause, ui->pushButtonMerged, ui->pushButtonOld})
        connect(button, &QPushButton::clicked, m_saveSoon, &SaveSoon::schedule);
    for (const Family &family : m_families)
        connect(family.button, &QPushButton::clicked, m_saveSoon, &SaveSoon::schedule);
}

// Restoring is not a change by the operator and writes nothing.
void ScrGridCtrlDialog::initGridStatus()
{
    const auto hold = m_saveSoon->hold();
    if (settings) {
        ui->netGridCheckBox->setChecked(!settings->value(GridKey::overlayOff).toBool());
        restoreFamilies();
        isOldTest = settings->value(GridKey::aging).toBool();
        isScroll = settings->value(GridKey::running).toBool();
        isMix = settings->value(GridKey::merged).toBool();
        using SettingsRules::positiveInt;
        ui->hScrollBarGrayLevel->setValue(
            positiveInt(*settings, GridKey::grey, GridKey::defaultGrey));
        ui->hScrollBarSpeed->setValue(
            positiveInt(*settings, GridKey::speed, GridKey::defaultSpeed));
        restoreColor();
        for (const Family &family : m_families)
            *family.pressed = settings->value(family.pressedKey).toBool();
        pushButtonPauseChecked = settings->value(GridKey::paused).toBool();
    }
    initMixSettings();
}

void ScrGridCtrlDialog::restoreFamilies()
{
    for (qint16 index = 0; index < familyCount; ++index) {
        const Family &family = m_families.at(index);
        const bool checked = settings->value(family.checkedKey).toBool();
        family.button->setChecked(checked);
        if (checked)
            lineIndex = index;
    }
}

// A colour other than red starts a paused run, as if it were chosen, and yellow, cyan and
// purple count as the first colour for the page keys. Wanted.
void ScrGridCtrlDialog::restoreColor()
{
    const QColor color = SettingsRules::color(*settings, SharedKey::gradientColor);
    slot_changeSelectedGridColor(color);
    colorIndex = static_cast<qint16>(CommonHelper::getColorIndex(color));
}

// As the start/pause button says; where that was switched off while the run went on, as before.
bool ScrGridCtrlDialog::isPaused() const
{
    if (!m_runningShown)
        return true;
    return pushButtonPauseChecked && !ui->pushButtonPause->isEnabled();
}

void ScrGridCtrlDialog::saveGridBaseInfo()
{
    pushButtonPauseChecked = isPaused();
    saveWhileRunning();
}

void ScrGridCtrlDialog::saveWhileRunning()
{
    if (!settings)
        return;
    const auto save = [this](QLatin1String key, const QVariant &value) {
        SettingsRules::store(*settings, key, value);
    };
    save(GridKey::overlayOff, !ui->netGridCheckBox->isChecked());
    for (const Family &family : m_families)
        save(family.checkedKey, family.button->isChecked());
    save(GridKey::aging, isOldTest);
    save(GridKey::running, isScroll);
    save(GridKey::merged, isMix);
    save(GridKey::grey, ui->labelGrayLevel->value());
    save(GridKey::speed, ui->labelSpeed->value());
    for (const Family &family : m_families)
        save(family.pressedKey, *family.pressed);
    save(GridKey::paused, isPaused());
}
