#include "gridrig.h"

namespace {

struct FamilyControl
{
    char letter;
    const char *button;
    const char *pressedKey;
};

constexpr FamilyControl families[] = {
    {'H', "radioButtonHorizontal", "isHorizontalPress"},
    {'V', "radioButtonVertical", "isVerticalPress"},
    {'L', "radioButtonSlantLeft", "isSlantLeftPress"},
    {'R', "radioButtonSlantRight", "isSlantRightPress"},
};

} // namespace

QPushButton *GridRig::familyButton(char letter) const
{
    for (const FamilyControl &each : families) {
        if (letter == each.letter)
            return child<QPushButton>(each.button);
    }
    qFatal("no family");
    return nullptr;
}

QPushButton *GridRig::beginButton(int index) const
{
    const auto buttons = panel->findChildren<QPushButton *>(QStringLiteral("beginPushBtn"));
    if (buttons.size() != 2)
        qFatal("there are not two buttons of this name");
    return buttons.at(index);
}

void GridRig::clickFamilies(const char *letters) const
{
    for (; *letters; ++letters)
        click(familyButton(*letters));
}

QTimer *GridRig::timer() const
{
    const auto timers = panel->findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    if (timers.size() != 1)
        qFatal("the panel has not one timer");
    return timers.first();
}

void GridRig::tick(int times) const
{
    for (int i = 0; i < times; ++i)
        panel->slot_TimerOut();
}

QString GridRig::checked() const
{
    QString letters;
    for (const FamilyControl &family : families) {
        if (familyButton(family.letter)->isChecked())
            letters += QLatin1Char(family.letter);
    }
    return letters;
}

QString GridRig::pressed() const
{
    QString letters;
    for (const FamilyControl &family : families) {
        if (saved(QLatin1String(family.pressedKey)).toBool())
            letters += QLatin1Char(family.letter);
    }
    return letters;
}

QString GridRig::mode() const
{
    QStringList modes;
    if (saved(QStringLiteral("gridIsOldTest")).toBool())
        modes << QStringLiteral("aging");
    if (saved(QStringLiteral("gridIsMix")).toBool())
        modes << QStringLiteral("merged");
    return modes.isEmpty() ? QStringLiteral("scrolling") : modes.join(QLatin1Char(' '));
}

int GridRig::runControls() const
{
    int enabled = 0;
    for (const QWidget *control :
         QWidgetList{greySlider(), greySpinBox(), speedSlider(), speedSpinBox(), pause()})
        enabled += control->isEnabled() ? 1 : 0;
    return enabled == 0 ? 0 : enabled == 5 ? 1 : -1;
}

QString GridRig::nextShown()
{
    tick();
    return summary(canvas.painted());
}

QString GridRig::nextShown(int count)
{
    QStringList all;
    for (int i = 0; i < count; ++i)
        all << nextShown();
    return all.join(QLatin1Char(' '));
}

QVariant GridRig::saved(const QString &key) const
{
    panel->saveWhileRunning();
    return settings->value(QStringLiteral("/setting/") + key);
}
