#include "scrgridctrldialog.h"

#include "ui_scrtestdialog.h"

#include "commonhelper.h"
#include "form.h"
#include "mixsetting.h"
#include "purecolor.h"
#include "settingsrules.h"
#include "swatchrow.h"

#include <QKeyEvent>
#include <QSettings>
#include <QTimer>

#include <initializer_list>
#include <tuple>

namespace {

using Panel = ScrGridCtrlDialog;

constexpr QLatin1String overlayOffKey = latin1("/setting/gridNetChecked"); // true means unchecked
constexpr QLatin1String agingKey = latin1("/setting/gridIsOldTest");
constexpr QLatin1String runningKey = latin1("/setting/gridIsScroll");
constexpr QLatin1String mergedKey = latin1("/setting/gridIsMix");
constexpr QLatin1String greyKey = latin1("/setting/gridGreyLevel");
constexpr QLatin1String speedKey = latin1("/setting/gridSpeed");
constexpr QLatin1String pausedKey = latin1("/setting/pushButtonPauseChecked");

constexpr int maximumGrey = 255; // and the default
constexpr int firstGrey = 128;
constexpr int minimumSpeed = 1;
constexpr int maximumSpeed = 100;
constexpr int defaultSpeed = 50;

} // namespace

ScrGridCtrlDialog::ScrGridCtrlDialog(QWidget *testWindow, QSettings *settings_, QWidget *parent)
    : QDialog(parent)
    , ui(makeForm<Ui::ScrTestDialog>(this))
    , drawer(testWindow)
    , settings(settings_)
    , m_run(&drawer)
    , m_families({ui->radioButtonHorizontal, ui->radioButtonVertical, ui->radioButtonSlantLeft,
                  ui->radioButtonSlantRight})
    , m_grey(ui->hScrollBarGrayLevel, ui->labelGrayLevel)
    , m_speed(ui->hScrollBarSpeed, ui->labelSpeed)
    , m_lamps(ui->signalGreenButton, ui->signalGreyButton)
    , m_swatches(new SwatchRow(*ui, this))
    , m_saveSoon([this] { saveWhileRunning(); }, this)
{
    for (QPushButton *button : {ui->pushButtonPause, ui->pushButtonSettings})
        button->setObjectName(QStringLiteral("beginPushBtn"));
    initSlots();
    initSaving();
    initCtrls();
    initGridStatus();
    initTimer(ui->hScrollBarSpeed->value());
}

ScrGridCtrlDialog::~ScrGridCtrlDialog()
{
    saveGridBaseInfo();
}

void ScrGridCtrlDialog::initSlots()
{
    connect(this, &Panel::signal_colorChanged, &drawer, &GridDrawer::slot_colorChanged);
    connect(this, &Panel::signal_colorChanged, this, &Panel::slot_colorChanged);
    connect(ui->hScrollBarGrayLevel, &QSlider::valueChanged, this,
            [this](int grey) { emit signal_greyChanged(QString::number(grey)); });
    connect(ui->hScrollBarGrayLevel, &QSlider::valueChanged, &drawer,
            &GridDrawer::slot_changeGrayScale);
    connect(m_swatches, &SwatchRow::selected, this, &Panel::selectColor);
    initLinesSlots();
    initRunSlots();
}

void ScrGridCtrlDialog::initLinesSlots()
{
    using Grid = GridDrawer;
    const std::tuple<QPushButton *, void (Grid::*)(bool), void (Panel::*)()> families[] = {
        {ui->radioButtonHorizontal, &Grid::slot_horiToggled, &Panel::slot_toggledHorizontal},
        {ui->radioButtonVertical, &Grid::slot_vertLineToggled, &Panel::slot_toggledVertical},
        {ui->radioButtonSlantLeft, &Grid::slot_slantLeftToggled, &Panel::slot_toggledSlantLeft},
        {ui->radioButtonSlantRight, &Grid::slot_slantRightToggled, &Panel::slot_toggledSlantRight},
    };
    for (const auto &[button, toggle, clicked] : families) {
        connect(button, &QPushButton::toggled, &drawer, toggle);
        connect(button, &QPushButton::clicked, this, clicked);
    }
    connect(ui->netGridCheckBox, &QCheckBox::toggled, this, &Panel::slot_changeGridStatus);
}

void ScrGridCtrlDialog::initRunSlots()
{
    connect(ui->hScrollBarSpeed, &QSlider::valueChanged, this, &Panel::initTimer);
    connect(ui->pushButtonMerged, &QPushButton::clicked, this, &Panel::slot_mixTest);
    connect(ui->pushButtonOld, &QPushButton::clicked, this, &Panel::slot_OldTest);
    for (const QPushButton *button : {ui->pushButtonMerged, ui->pushButtonOld})
        connect(button, &QPushButton::clicked, this, &Panel::enableAdvanceSettings);
    connect(ui->pushButtonPause, &QPushButton::clicked, this, &Panel::startOrPause,
            Qt::DirectConnection);
    connect(&m_run, &GridRun::greyStepped, this, &Panel::stepGrey);
    connect(&m_run, &GridRun::scrolled, this, &Panel::tellScrolled);
    connect(&m_run, &GridRun::colorShown, this, &Panel::signal_oldMixColorChanged);
}

void ScrGridCtrlDialog::initSaving()
{
    for (const QSpinBox *spinBox : {ui->labelGrayLevel, ui->labelSpeed})
        connect(spinBox, qOverload<int>(&QSpinBox::valueChanged), &m_saveSoon, &SaveSoon::schedule);
    connect(m_swatches, &SwatchRow::selected, &m_saveSoon, &SaveSoon::schedule);
    connect(ui->netGridCheckBox, &QCheckBox::toggled, &m_saveSoon, &SaveSoon::schedule);
    for (const QPushButton *button : {ui->pushButtonPause, ui->pushButtonMerged, ui->pushButtonOld})
        connect(button, &QPushButton::clicked, &m_saveSoon, &SaveSoon::schedule);
    for (const QPushButton *button : m_families.buttons())
        connect(button, &QPushButton::clicked, &m_saveSoon, &SaveSoon::schedule);
}

void ScrGridCtrlDialog::initCtrls()
{
    const auto hold = m_saveSoon.hold();
    m_speed.setRange(minimumSpeed, maximumSpeed);
    m_grey.setRange(0, maximumGrey);
    ui->radioButtonRed->setChecked(true);
    ui->hScrollBarGrayLevel->setValue(firstGrey);
}

// Restoring is not a change by the operator and writes nothing.
void ScrGridCtrlDialog::initGridStatus()
{
    const auto hold = m_saveSoon.hold();
    if (settings) {
        ui->netGridCheckBox->setChecked(!settings->value(overlayOffKey).toBool());
        lineIndex = static_cast<qint16>(m_families.restore(*settings));
        m_run.isAging = settings->value(agingKey).toBool();
        m_run.isOn = settings->value(runningKey).toBool();
        m_run.isMerged = settings->value(mergedKey).toBool();
        using SettingsRules::positiveInt;
        m_grey.setValue(positiveInt(*settings, greyKey, maximumGrey));
        m_speed.setValue(positiveInt(*settings, speedKey, defaultSpeed));
        // Specified: a colour other than red starts a paused run, as if it were chosen, and
        // yellow, cyan and purple count as the first colour for the page keys.
        const QColor color = SettingsRules::color(*settings, SharedKey::gradientColor);
        slot_changeSelectedGridColor(color);
        colorIndex = static_cast<qint16>(CommonHelper::getColorIndex(color));
        pushButtonPauseChecked = settings->value(pausedKey).toBool();
    }
    initMixSettings();
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
    using SettingsRules::store;
    store(*settings, overlayOffKey, !ui->netGridCheckBox->isChecked());
    m_families.store(*settings);
    store(*settings, agingKey, m_run.isAging);
    store(*settings, runningKey, m_run.isOn);
    store(*settings, mergedKey, m_run.isMerged);
    store(*settings, greyKey, ui->labelGrayLevel->value());
    store(*settings, speedKey, ui->labelSpeed->value());
    store(*settings, pausedKey, isPaused());
}

// As the start/pause button says; where that was switched off while the run went on, as before.
bool ScrGridCtrlDialog::isPaused() const
{
    return !m_runningShown || (pushButtonPauseChecked && !ui->pushButtonPause->isEnabled());
}

DrawerBase *ScrGridCtrlDialog::getDrawer()
{
    disableAdvanceSettings();
    drawer.active = false;
    return &drawer;
}

void ScrGridCtrlDialog::setScrollEnabled(bool on)
{
    if (on)
        ui->pushButtonPause->setEnabled(true);
    m_run.isOn = on;
    m_run.canScroll = on;
}

void ScrGridCtrlDialog::enableAdvanceSettings()
{
    setRunControlsEnabled(true);
    ui->pushButtonSettings->setEnabled(true);
    m_run.isOn = true;
}

void ScrGridCtrlDialog::setRunControlsEnabled(bool on)
{
    for (QWidget *control :
         std::initializer_list<QWidget *>{ui->hScrollBarSpeed, ui->hScrollBarGrayLevel,
                                          ui->labelSpeed, ui->labelGrayLevel, ui->pushButtonPause})
        control->setEnabled(on);
    m_run.canScroll = on;
}

// The colour is told while the run still stands as it was: a paused aging test takes it for
// its background at once.
void ScrGridCtrlDialog::selectColor(int index)
{
    colorIndex = static_cast<qint16>(index);
    storeColor(PureColor::at(index));
    emit signal_colorChanged(PureColor::at(index));
    enableAdvanceSettings();
}

void ScrGridCtrlDialog::slot_changeSelectedGridColor(const QColor &color)
{
    if (QAbstractButton *button = m_swatches->button(color)) {
        button->setChecked(true);
        storeColor(color);
    }
}

void ScrGridCtrlDialog::storeColor(const QColor &color)
{
    if (settings && !m_saveSoon.isHeld())
        SettingsRules::store(*settings, SharedKey::baseColor, color);
}

void ScrGridCtrlDialog::slot_colorChanged(const QColor &color)
{
    if (m_run.isAging && !m_run.isOn)
        drawer.slot_changeBgColor(drawer.dimmed(color));
}

// From 255 on to 0, and back.
void ScrGridCtrlDialog::stepGrey(int by)
{
    QSlider *slider = ui->hScrollBarGrayLevel;
    if (slider->isEnabled())
        slider->setValue((slider->value() + by + maximumGrey + 1) % (maximumGrey + 1));
}

void ScrGridCtrlDialog::toggleFamily(int family)
{
    if (ui->netGridCheckBox->isChecked())
        m_families.toggle(family);
    else
        m_families.pressAlone(family);
    // A test may have left the drawer with other families than the buttons show.
    drawer.setHoriLinesEnabled(ui->radioButtonHorizontal->isChecked());
    drawer.setVertLinesEnabled(ui->radioButtonVertical->isChecked());
    drawer.setSlantLeftLinesEnabled(ui->radioButtonSlantLeft->isChecked());
    drawer.setSlantRightLinesEnabled(ui->radioButtonSlantRight->isChecked());
    m_run.isAging = m_run.isMerged = false;
    enableAdvanceSettings();
    initTimer(ui->hScrollBarSpeed->value());
}

void ScrGridCtrlDialog::slot_changeGridStatus(bool checked)
{
    if (!checked)
        m_families.pressFirstAlone();
}

// Specified: the click runs the slot as well, which for a single family comes to the same.
void ScrGridCtrlDialog::slot_changeLineState()
{
    if (lineIndex < 0 || lineIndex >= FamilyRow::count)
        return;
    m_families.buttons().at(lineIndex)->click();
    toggleFamily(lineIndex);
}

void ScrGridCtrlDialog::slot_changeColorByPageDown()
{
    ui->netGridCheckBox->setChecked(false);
    enableAdvanceSettings();
    if (colorIndex < 0 || colorIndex >= PureColor::pageColorCount)
        return;
    slot_changeSelectedGridColor(PureColor::at(colorIndex));
    slot_changeLineState();
}

// Specified: the others stay checked.
void ScrGridCtrlDialog::canclePageUpDownSelect()
{
    ui->radioButtonHorizontal->setChecked(false);
    ui->radioButtonSlantRight->setChecked(false);
}

// Not a change by the operator: what it leads to is saved with the next one.
void ScrGridCtrlDialog::gridBtnClick()
{
    const auto hold = m_saveSoon.hold();
    m_families.clickPressed();
}

// Never from within the timer's own timeout, since the timer before goes at once.
void ScrGridCtrlDialog::initTimer(int speed)
{
    timer = std::make_shared<QTimer>(this);
    timer->setTimerType(Qt::PreciseTimer); // a coarse one gains a step in a hundred
    timer->start(m_run.interval(speed));
    connect(timer.get(), &QTimer::timeout, this, &Panel::slot_TimerOut);
}

// The run's own steps are not worth a write each.
void ScrGridCtrlDialog::slot_TimerOut()
{
    const auto hold = m_saveSoon.hold();
    showRunning(m_run.isOn);
    if (m_run.isOn)
        emit signal_gridAutoChange();
    else
        m_lamps.showGreen();
    m_run.step();
}

void ScrGridCtrlDialog::tellScrolled()
{
    m_lamps.blink();
    emit signal_greyChanged(QString::number(ui->labelGrayLevel->value()));
}

void ScrGridCtrlDialog::beginTest(bool aging)
{
    m_run.beginTest(aging);
    showRunning(true);
    m_families.releaseAll();
    initTimer(ui->hScrollBarSpeed->value());
}

// The text of the button changes with the next step.
void ScrGridCtrlDialog::startOrPause()
{
    m_run.isOn = !m_run.isOn;
    if (!m_runningShown)
        gridBtnClick();
}

// Only when the text changes, since steps may be 14 ms apart.
void ScrGridCtrlDialog::showRunning(bool running)
{
    if (running == m_runningShown)
        return;
    m_runningShown = running;
    CommonHelper::setQPushButtonText(ui->pushButtonPause, running ? tr("暂停") : tr("开始"));
}

// What is chosen here counts for the rest of the run, even if the dialog was not confirmed.
void ScrGridCtrlDialog::on_pushButtonSettings_clicked()
{
    MixSetting dialog(&drawer, settings, this);
    dialog.exec();
    m_run.select(dialog.selection());
}

void ScrGridCtrlDialog::initMixSettings()
{
    m_run.select(MixSelection::stored(settings));
}

void ScrGridCtrlDialog::updateLanguage()
{
    setWindowTitle(tr("显示屏测试工具-网格"));
    m_swatches->retranslate();
    m_families.retranslate();
    m_lamps.retranslate();
    CommonHelper::setQLabelText(ui->label_4, tr("速度"));
    CommonHelper::setQLabelText(ui->label_2, tr("灰度"));
    CommonHelper::setQCheckBoxText(ui->netGridCheckBox, tr("网格叠加"));
    CommonHelper::setQPushButtonText(ui->pushButtonMerged, tr("混测"));
    CommonHelper::setQPushButtonText(ui->pushButtonOld, tr("老化"));
    CommonHelper::setQPushButtonText(ui->pushButtonSettings, tr("高级设置"));
    CommonHelper::setQPushButtonText(ui->pushButtonPause, tr("开始"));
    m_runningShown = false; // up to the next step
    m_speed.setAccessibleName(tr("速度"));
    m_grey.setAccessibleName(tr("灰度"));
}

// A page of the tabs, not a window: Escape does not close it, and Enter does not press the
// button that was used last.
void ScrGridCtrlDialog::keyPressEvent(QKeyEvent *event)
{
    event->ignore();
}
