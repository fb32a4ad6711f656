// The line families: their buttons, and the page keys' steps through them.

#include "ui_scrtestdialog.h"

#include "gridkeys.h"
#include "savesoon.h"
#include "scrgridctrldialog.h"
#include "testcolor.h"

#include <algorithm>

ScrGridCtrlDialog::Families ScrGridCtrlDialog::makeFamilies()
{
    using Panel = ScrGridCtrlDialog;
    return {{
        {ui->radioButtonHorizontal, QT_TR_NOOP("横"), &isHorizontalPress,
         &GridDrawer::slot_horiToggled, &GridDrawer::setHoriLinesEnabled,
         &Panel::slot_toggledHorizontal, GridKey::horizontal, GridKey::horizontalPressed},
        {ui->radioButtonVertical, QT_TR_NOOP("竖"), &isVerticalPress,
         &GridDrawer::slot_vertLineToggled, &GridDrawer::setVertLinesEnabled,
         &Panel::slot_toggledVertical, GridKey::vertical, GridKey::verticalPressed},
        {ui->radioButtonSlantLeft, QT_TR_NOOP("左斜"), &isSlantLeftPress,
         &GridDrawer::slot_slantLeftToggled, &GridDrawer::setSlantLeftLinesEnabled,
         &Panel::slot_toggledSlantLeft, GridKey::slantLeft, GridKey::slantLeftPressed},
        {ui->radioButtonSlantRight, QT_TR_NOOP("右斜"), &isSlantRightPress,
         &GridDrawer::slot_slantRightToggled, &GridDrawer::setSlantRightLinesEnabled,
         &Panel::slot_toggledSlantRight, GridKey::slantRight, GridKey::slantRightPressed},
    }};
}

void ScrGridCtrlDialog::slot_toggledHorizontal()
{
    toggleFamily(0);
}

void ScrGridCtrlDialog::slot_toggledVertical()
{
    toggleFamily(1);
}

void ScrGridCtrlDialog::slot_toggledSlantLeft()
{
    toggleFamily(2);
}

void ScrGridCtrlDialog::slot_toggledSlantRight()
{
    toggleFamily(3);
}

void ScrGridCtrlDialog::toggleFamily(int index)
{
    if (ui->netGridCheckBox->isChecked())
        toggleInOverlay(index);
    else
        pressAlone(index);
    // A test may have left the drawer with other families than the buttons show.
    for (const Family &family : m_families)
        (drawer.*family.enable)(family.button->isChecked());
    isOldTest = false;
    isMix = false;
    enableAdvanceSettings();
    initTimer(currentSpeed());
}

// The last family that is pressed cannot be released.
void ScrGridCtrlDialog::toggleInOverlay(int index)
{
    const Family &family = m_families.at(index);
    const auto pressed = std::count_if(m_families.cbegin(), m_families.cend(),
                                       [](const Family &each) { return *each.pressed; });
    const bool released = *family.pressed && pressed > 1;
    family.button->setChecked(!released);
    *family.pressed = !released;
}

// The buttons and what is remembered of them.
void ScrGridCtrlDialog::pressAlone(int index)
{
    for (int other = 0; other < familyCount; ++other) {
        if (other != index)
            m_families.at(other).button->setChecked(false);
    }
    m_families.at(index).button->setChecked(true);
    rememberAlone(index);
}

void ScrGridCtrlDialog::rememberAlone(int index)
{
    for (int each = 0; each < familyCount; ++each)
        *m_families.at(each).pressed = each == index;
}

void ScrGridCtrlDialog::uncheckFamilies()
{
    for (const Family &family : m_families)
        family.button->setChecked(false);
}

void ScrGridCtrlDialog::slot_changeGridStatus(bool checked)
{
    if (checked)
        return;
    for (int index = 0; index < familyCount; ++index) {
        if (*m_families.at(index).pressed) {
            pressAlone(index);
            return;
        }
    }
}

// The click runs the slot as well; for a single family that comes to the same.
void ScrGridCtrlDialog::slot_changeLineState()
{
    if (lineIndex < 0 || lineIndex >= familyCount)
        return;
    const Family &family = m_families.at(lineIndex);
    family.button->click();
    (this->*family.clicked)();
}

void ScrGridCtrlDialog::slot_changeColorByPageDown()
{
    ui->netGridCheckBox->setChecked(false);
    enableAdvanceSettings();
    if (colorIndex < 0 || colorIndex >= TestColor::pageColorCount)
        return;
    slot_changeSelectedGridColor(TestColor::at(colorIndex));
    slot_changeLineState();
}

// The others stay checked; wanted.
void ScrGridCtrlDialog::canclePageUpDownSelect()
{
    ui->radioButtonHorizontal->setChecked(false);
    ui->radioButtonSlantRight->setChecked(false);
}

// Not a change by the operator: what it leads to is saved with the next one.
void ScrGridCtrlDialog::gridBtnClick()
{
    const auto hold = m_saveSoon->hold();
    for (const Family &family : m_families) {
        if (*family.pressed) {
            family.button->click();
            family.button->setChecked(true);
        }
    }
}
