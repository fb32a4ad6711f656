#include "familyrow.h"

#include "commonhelper.h"
#include "settingsrules.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QSettings>

namespace {

struct Family
{
    const char *text;
    QLatin1String checkedKey;
    QLatin1String pressedKey;
};

constexpr Family families[FamilyRow::count] = {
    {QT_TRANSLATE_NOOP("ScrGridCtrlDialog", "横"), latin1("/setting/gridHorizontalChecked"),
     latin1("/setting/isHorizontalPress")},
    {QT_TRANSLATE_NOOP("ScrGridCtrlDialog", "竖"), latin1("/setting/gridVerticalChecked"),
     latin1("/setting/isVerticalPress")},
    {QT_TRANSLATE_NOOP("ScrGridCtrlDialog", "左斜"), latin1("/setting/gridSlantLeftChecked"),
     latin1("/setting/isSlantLeftPress")},
    {QT_TRANSLATE_NOOP("ScrGridCtrlDialog", "右斜"), latin1("/setting/gridSlantRightChecked"),
     latin1("/setting/isSlantRightPress")},
};

} // namespace

void FamilyRow::toggle(int family)
{
    m_pressed.set(family, !m_pressed.test(family) || m_pressed.count() == 1);
    m_buttons.at(family)->setChecked(m_pressed.test(family));
}

void FamilyRow::pressAlone(int family)
{
    rememberAlone(family);
    for (int each = 0; each < count; ++each)
        m_buttons.at(each)->setChecked(each == family);
}

void FamilyRow::pressFirstAlone()
{
    for (int family = 0; family < count; ++family) {
        if (m_pressed.test(family)) {
            pressAlone(family);
            return;
        }
    }
}

void FamilyRow::releaseAll()
{
    m_pressed.reset();
    for (QPushButton *button : m_buttons)
        button->setChecked(false);
}

void FamilyRow::clickPressed()
{
    for (int family = 0; family < count; ++family) {
        if (m_pressed.test(family)) {
            m_buttons.at(family)->click();
            m_buttons.at(family)->setChecked(true);
        }
    }
}

void FamilyRow::retranslate()
{
    for (int family = 0; family < count; ++family)
        CommonHelper::setQPushButtonText(
            m_buttons.at(family),
            QCoreApplication::translate("ScrGridCtrlDialog", families[family].text));
}

int FamilyRow::restore(const QSettings &settings)
{
    int lastChecked = 0;
    for (int family = 0; family < count; ++family) {
        const bool checked = settings.value(families[family].checkedKey).toBool();
        m_buttons.at(family)->setChecked(checked);
        m_pressed.set(family, settings.value(families[family].pressedKey).toBool());
        if (checked)
            lastChecked = family;
    }
    return lastChecked;
}

void FamilyRow::store(QSettings &settings) const
{
    for (int family = 0; family < count; ++family) {
        SettingsRules::store(settings, families[family].checkedKey,
                             m_buttons.at(family)->isChecked());
        SettingsRules::store(settings, families[family].pressedKey, m_pressed.test(family));
    }
}
