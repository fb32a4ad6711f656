// The timer-driven half of the panel: the run, the aging test and the merged test.

#include "ui_scrtestdialog.h"

#include "commonhelper.h"
#include "drawcontainer.h"
#include "mixselection.h"
#include "mixsetting.h"
#include "savesoon.h"
#include "scrgridctrldialog.h"
#include "testcolor.h"

#include <QTimer>

namespace {

constexpr int agingColorCount = 4; // of the colour list, from its beginning
constexpr int ticksPerGreyStep = 5;

} // namespace

int ScrGridCtrlDialog::currentSpeed() const
{
    return ui->hScrollBarSpeed->value();
}

// In milliseconds: from 707 to 14 for scrolling lines, from 8080 to 160 in the tests.
int ScrGridCtrlDialog::interval(int speed) const
{
    if (isOldTest)
        return (101 - speed) * 80 + 80;
    if (isMix)
        return (102 - speed) * 80;
    return (102 - speed) * 7;
}

// Never from within the timer's own timeout, since the timer before goes at once.
void ScrGridCtrlDialog::initTimer(int speed)
{
    timer = std::make_shared<QTimer>(this);
    timer->start(interval(speed));
    connect(timer.get(), &QTimer::timeout, this, &ScrGridCtrlDialog::slot_TimerOut);
}

// The run's own steps are not worth a write each.
void ScrGridCtrlDialog::slot_TimerOut()
{
    const auto hold = m_saveSoon->hold();
    showRunning(isScroll);
    if (isScroll) {
        emit signal_gridAutoChange();
        if (advanceEnabled)
            scrollStep();
    } else {
        m_lamps.showGreen();
    }
    if (isOldTest && isScroll)
        agingStep();
    if (isMix && isScroll)
        mergedStep();
}

void ScrGridCtrlDialog::scrollStep()
{
    // A grid behind another pattern would have that one painted for nothing.
    if (DrawContainer::showsOrAwaits(drawer))
        drawer.scrollLines();
    m_lamps.blink();
    greyRampStep();
    emit signal_greyChanged(QString::number(ui->labelGrayLevel->value()));
}

void ScrGridCtrlDialog::greyRampStep()
{
    if (++tickCount < ticksPerGreyStep)
        return;
    tickCount = 0;
    if (autoGreyUp)
        slot_keyRightPressed();
    if (autoGreyDown)
        slot_keyLeftPressed();
}

// Four of the seven colours; wanted.
void ScrGridCtrlDialog::agingStep()
{
    drawer.disableAll();
    if (oldColorIndex >= agingColorCount)
        oldColorIndex = 0;
    showBackground(oldColors.at(oldColorIndex));
    oldColorIndex = (oldColorIndex + 1) % oldColors.size();
}

void ScrGridCtrlDialog::mergedStep()
{
    drawer.disableAll();
    const int steps = mixColorCount + mixLineCount;
    if (mixIndex < mixColorCount) {
        showBackground(mixColors.at(mixIndex));
        ++mixIndex;
    } else if (mixIndex < steps) {
        showNextLines();
    }
    if (mixIndex >= steps) {
        mixIndex = 0;
        mixLinePending.fill(true);
    }
}

void ScrGridCtrlDialog::showNextLines()
{
    for (int index = 0; index < familyCount; ++index) {
        if (mixLines.at(index) && mixLinePending.at(index)) {
            (drawer.*m_families.at(index).toggle)(true);
            mixLinePending.at(index) = false;
            ++mixIndex;
            return;
        }
    }
}

void ScrGridCtrlDialog::showBackground(const QColor &color)
{
    emit signal_oldMixColorChanged(color);
    drawer.slot_changeBgColor(getGrayScaleColor(color, ui->hScrollBarGrayLevel->value()));
}

// Only when the text changes, since ticks may be 14 ms apart.
void ScrGridCtrlDialog::showRunning(bool running)
{
    if (running == m_runningShown)
        return;
    m_runningShown = running;
    CommonHelper::setQPushButtonText(ui->pushButtonPause, running ? tr("暂停") : tr("开始"));
}

void ScrGridCtrlDialog::slot_OldTest()
{
    beginTest(true);
}

void ScrGridCtrlDialog::slot_mixTest()
{
    beginTest(false);
}

// A test goes on where it stopped; wanted.
void ScrGridCtrlDialog::beginTest(bool aging)
{
    isOldTest = aging;
    isMix = !aging;
    isScroll = true;
    showRunning(true);
    uncheckFamilies();
    for (const Family &family : m_families)
        *family.pressed = false;
    autoGreyUp = false;
    autoGreyDown = false;
    initTimer(currentSpeed());
}

// The text of the button changes with the next tick.
void ScrGridCtrlDialog::startOrPause()
{
    isScroll = !isScroll;
    if (!m_runningShown)
        gridBtnClick();
}

void ScrGridCtrlDialog::slot_colorChanged(const QColor &color)
{
    if (isOldTest && !isScroll)
        drawer.slot_changeBgColor(getGrayScaleColor(color, ui->hScrollBarGrayLevel->value()));
}

void ScrGridCtrlDialog::slot_stopStartPauseStatus()
{
    isScroll = true;
}

void ScrGridCtrlDialog::slot_stopPauseStatus()
{
    isScroll = false;
}

void ScrGridCtrlDialog::slot_keyInsertPressed()
{
    rampGrey(true);
}

void ScrGridCtrlDialog::slot_keyDeletePressed()
{
    rampGrey(false);
}

// The keys reach every panel; only the one whose pattern is shown answers.
void ScrGridCtrlDialog::rampGrey(bool up)
{
    if (!isScroll || !DrawContainer::shows(drawer))
        return;
    autoGreyUp = up;
    autoGreyDown = !up;
}

// What is chosen here counts for the rest of the run, even if the dialog was not confirmed.
void ScrGridCtrlDialog::on_pushButtonSettings_clicked()
{
    MixSetting dialog(&drawer, settings, this);
    dialog.exec();
    useMixSelection(dialog.selection());
}

void ScrGridCtrlDialog::initMixSettings()
{
    useMixSelection(MixSelection::stored(settings));
}

void ScrGridCtrlDialog::useMixSelection(const MixSelection &selection)
{
    mixColors = selection.colors();
    mixColorCount = static_cast<qint16>(mixColors.size());
    mixLines = selection.lines();
    getSelectedHVLRCount();
}

int ScrGridCtrlDialog::getSelectedHVLRCount()
{
    mixLineCount = 0;
    for (int index = 0; index < familyCount; ++index) {
        if (mixLines.at(index)) {
            mixLinePending.at(index) = true;
            ++mixLineCount;
        }
    }
    return mixLineCount;
}
