#include "scrpurityctrldialog.h"

#include "ui_scrpurityctrldialog.h"

#include "commonhelper.h"
#include "drawcontainer.h"
#include "form.h"
#include "latin1.h"
#include "purecolor.h"
#include "settingsrules.h"
#include "swatchrow.h"

#include <QButtonGroup>
#include <QSettings>
#include <QSignalBlocker>
#include <QTimer>

namespace {

constexpr QLatin1String manualGreyKey = latin1("/setting/testPurityGreyLevel");
constexpr QLatin1String speedKey = latin1("/setting/testPuritySpeed");
constexpr QLatin1String autoGreyKey = latin1("/setting/testAutoScale");
constexpr QLatin1String autoModeKey = latin1("/setting/AutoTest");

constexpr int defaultSpeed = 50;
constexpr int maximumGrey = 255;
constexpr int minimumSpeed = 1;
constexpr int maximumSpeed = 100;
constexpr int spinBoxHeight = 20; // pixels

// At speed 100 a step every 100 ms, at speed 1 one every 10 s.
constexpr int stepIntervalMs(int speed)
{
    return (maximumSpeed + 1 - speed) * 100;
}

// Past 255 comes 0, and before 0 comes 255.
constexpr int wrappedGrey(int grey)
{
    return (grey + maximumGrey + 1) % (maximumGrey + 1);
}

} // namespace

ScrPurityCtrlDialog::ScrPurityCtrlDialog(QWidget *testWindow, QSettings *settings_, QWidget *parent)
    : QWidget(parent)
    , ui(makeForm<Ui::ScrPurityCtrlDialog>(this))
    , drawer(testWindow)
    , settings(settings_)
    , m_grey(ui->hScrollBarScale, ui->spinBoxScale)
    , m_speed(ui->hScrollBarSpeed, ui->spinBoxSpeed)
    , m_lamps(ui->signalGreenButton, ui->signalGreyButton)
    , m_swatches(new SwatchRow(*ui, this))
    , m_saveSoon([this] { saveScrPurityInfo(); }, this)
{
    initSlots();
    initCtrls();
    initPurityStatus();
}

ScrPurityCtrlDialog::~ScrPurityCtrlDialog()
{
    saveScrPurityInfo();
}

void ScrPurityCtrlDialog::initSlots()
{
    const auto valueChanged = qOverload<int>(&QSpinBox::valueChanged);
    using Panel = ScrPurityCtrlDialog;

    connect(ui->spinBoxAutoScale, valueChanged, this, &Panel::slot_AutoScaleChanged);
    connect(ui->spinBoxScale, valueChanged, this, &Panel::slot_AutoScaleChanged);
    connect(this, &Panel::signal_colorChanged, &drawer, &ScrPurity::slot_colorChanged);
    connect(m_swatches, &SwatchRow::selected, this, &Panel::selectColor);

    connect(ui->spinBoxScale, valueChanged, &drawer, &ScrPurity::slot_AlphaChanged);
    connect(ui->spinBoxAutoScale, valueChanged, &drawer, &ScrPurity::slot_AlphaChanged);
    connect(this, &Panel::signal_switchToMal, &drawer, &ScrPurity::slot_AlphaChanged);
    connect(&drawer, &ScrPurity::signal_puritySelect, this, &Panel::slot_puritySelect);

    connect(ui->radioButtonMual, &QRadioButton::toggled, this, &Panel::slot_MalPushed);
    connect(ui->radioButtonAuto, &QRadioButton::toggled, this, &Panel::slot_AutoPushed);
    connect(ui->buttonPauseResume, &QPushButton::clicked, this, &Panel::slot_PauseResume);

    connect(ui->spinBoxSpeed, valueChanged, this, &Panel::slot_SpeedChanged);

    for (QSpinBox *spinBox : {ui->spinBoxScale, ui->spinBoxSpeed, ui->spinBoxAutoScale})
        connect(spinBox, qOverload<int>(&QSpinBox::valueChanged), &m_saveSoon, &SaveSoon::schedule);
    connect(ui->radioButtonAuto, &QRadioButton::toggled, &m_saveSoon, &SaveSoon::schedule);
}

void ScrPurityCtrlDialog::initCtrls()
{
    const auto hold = m_saveSoon.hold();
    ui->buttonPauseResume->setObjectName(QStringLiteral("beginPushBtn"));
    m_speed.setRange(minimumSpeed, maximumSpeed);
    m_grey.setRange(0, maximumGrey);
    ui->spinBoxAutoScale->setRange(0, maximumGrey);
    SliderSpinBoxPair::prepare(ui->spinBoxAutoScale);
    for (QSpinBox *spinBox : {ui->spinBoxScale, ui->spinBoxSpeed, ui->spinBoxAutoScale})
        spinBox->setFixedHeight(spinBoxHeight);
    auto *modes = new QButtonGroup(this);
    modes->addButton(ui->radioButtonAuto);
    modes->addButton(ui->radioButtonMual);
    enableControls(ui->radioButtonAuto->isChecked());
}

// Restoring is not a change by the operator: it starts no run, writes nothing and leaves
// puritySelected unset.
void ScrPurityCtrlDialog::initPurityStatus()
{
    if (!settings)
        return;
    const auto hold = m_saveSoon.hold();
    const QColor stored = SettingsRules::color(*settings, SharedKey::baseColor);
    slot_changeSelectedPurityColor(stored.isValid() ? stored : QColor(Qt::red));
    restoreControls();
    const bool automatic = ui->radioButtonAuto->isChecked();
    enableControls(automatic);
    autoRunning = automatic;
    drawer.slot_AlphaChanged((automatic ? ui->spinBoxAutoScale : ui->spinBoxScale)->value());
    puritySelected = false;
}

void ScrPurityCtrlDialog::restoreControls()
{
    using SettingsRules::positiveInt;
    m_grey.setValue(positiveInt(*settings, manualGreyKey, maximumGrey));
    m_speed.setValue(positiveInt(*settings, speedKey, defaultSpeed));
    ui->spinBoxAutoScale->setValue(positiveInt(*settings, autoGreyKey, maximumGrey));
    const QSignalBlocker quietAuto(ui->radioButtonAuto);
    const QSignalBlocker quietManual(ui->radioButtonMual);
    const bool automatic = settings->value(autoModeKey).toBool();
    (automatic ? ui->radioButtonAuto : ui->radioButtonMual)->setChecked(true);
}

// Specified: an automatic grey that is not stored counts as 0 here and as 255 on the panel.
QString ScrPurityCtrlDialog::storedGrey() const
{
    if (settings->value(autoModeKey).toBool())
        return QString::number(settings->value(autoGreyKey).toInt());
    return QString::number(SettingsRules::positiveInt(*settings, manualGreyKey, maximumGrey));
}

void ScrPurityCtrlDialog::saveScrPurityInfo()
{
    if (!settings)
        return;
    SettingsRules::store(*settings, autoModeKey, ui->radioButtonAuto->isChecked());
    SettingsRules::store(*settings, manualGreyKey, ui->spinBoxScale->value());
    SettingsRules::store(*settings, speedKey, ui->spinBoxSpeed->value());
    SettingsRules::store(*settings, autoGreyKey, ui->spinBoxAutoScale->value());
}

void ScrPurityCtrlDialog::updateLanguage()
{
    m_swatches->retranslate();
    m_lamps.retranslate();
    CommonHelper::setQRadioButtonText(ui->radioButtonAuto, tr("自动"));
    CommonHelper::setQRadioButtonText(ui->radioButtonMual, tr("手动"));
    CommonHelper::setQLabelText(ui->label, tr("当前灰度"));
    CommonHelper::setQLabelText(ui->label_3, tr("灰度"));
    CommonHelper::setQLabelText(ui->label_4, tr("速度"));
    CommonHelper::setQPushButtonText(ui->buttonPauseResume, autoTimer ? tr("暂停") : tr("开始"));
    m_grey.setAccessibleName(tr("灰度"));
    m_speed.setAccessibleName(tr("速度"));
    ui->spinBoxAutoScale->setAccessibleName(tr("当前灰度"));
}

void ScrPurityCtrlDialog::selectColor(int index)
{
    colorIndex = index;
    const QColor color = PureColor::at(index);
    storeColor(color);
    emit signal_colorChanged(color);
    if (!firstColorPending)
        puritySelected = true;
    firstColorPending = false;
}

void ScrPurityCtrlDialog::slot_changeSelectedPurityColor(const QColor &color)
{
    QAbstractButton *button = m_swatches->button(color);
    if (!button)
        return;
    button->setChecked(true);
    // White is where the page keys come in from above, with its button still checked then: only
    // the click makes it select its colour again.
    if (color == Qt::white)
        button->click();
    storeColor(color); // another panel may have stored its own since this button was checked
}

void ScrPurityCtrlDialog::storeColor(const QColor &color)
{
    if (settings && !m_saveSoon.isHeld())
        SettingsRules::store(*settings, SharedKey::baseColor, color);
}

void ScrPurityCtrlDialog::slot_changeColorByPageUpDown()
{
    if (colorIndex >= 0 && colorIndex < PureColor::pageColorCount)
        slot_changeSelectedPurityColor(PureColor::at(colorIndex));
}

void ScrPurityCtrlDialog::canclePageUpDownSelect()
{
    if (ui->radioButtonWhite->isChecked())
        ui->radioButtonWhite->setChecked(false);
}

void ScrPurityCtrlDialog::stepGrey(int step)
{
    ui->hScrollBarScale->setValue(wrappedGrey(ui->hScrollBarScale->value() + step));
}

// In automatic mode the direction changes; otherwise the run starts, in the direction of before.
void ScrPurityCtrlDialog::stepAutomatically(bool up)
{
    if (!DrawContainer::shows(drawer))
        return;
    if (ui->radioButtonAuto->isChecked()) {
        stepUp = up;
        stepDown = !up;
        return;
    }
    ui->radioButtonAuto->setChecked(true); // which starts the run
}

void ScrPurityCtrlDialog::slot_SpeedChanged(int speed)
{
    if (!ui->radioButtonAuto->isChecked() || !autoRunning)
        return;
    delete autoTimer;
    autoTimer = new QTimer(this);
    autoTimer->setTimerType(Qt::PreciseTimer); // a coarse one gains a step in a hundred
    connect(autoTimer, &QTimer::timeout, this, &ScrPurityCtrlDialog::slot_AutoTimerFinished);
    autoTimer->start(stepIntervalMs(speed));
    CommonHelper::setQPushButtonText(ui->buttonPauseResume, tr("暂停"));
}

void ScrPurityCtrlDialog::slot_PauseResume()
{
    if (autoTimer) {
        slot_stopChangeGrey();
        stepUp = true; // after a pause the levels rise
        stepDown = false;
        return;
    }
    emit signal_purityAutoChange();
    autoRunning = true;
    slot_SpeedChanged(ui->hScrollBarSpeed->value());
}

// May run inside the timer's own timeout, so the timer goes when that is over.
void ScrPurityCtrlDialog::slot_stopChangeGrey()
{
    if (!autoTimer)
        return;
    autoTimer->stop();
    autoTimer->deleteLater();
    autoTimer = nullptr;
    autoRunning = false;
    m_lamps.showGrey();
    CommonHelper::setQPushButtonText(ui->buttonPauseResume, tr("开始"));
}

void ScrPurityCtrlDialog::slot_MalPushed(bool checked)
{
    if (!checked)
        return;
    slot_PauseResume();
    enableControls(false);
    emit signal_switchToMal(ui->spinBoxScale->value()); // which selects the purity test
    slot_AutoScaleChanged(ui->spinBoxScale->value());
}

void ScrPurityCtrlDialog::slot_AutoPushed(bool checked)
{
    if (!checked)
        return;
    slot_PauseResume();
    enableControls(true);
    slot_AutoScaleChanged(ui->spinBoxAutoScale->value());
}

void ScrPurityCtrlDialog::enableControls(bool automatic)
{
    ui->buttonPauseResume->setEnabled(automatic);
    ui->hScrollBarSpeed->setEnabled(automatic);
    ui->spinBoxSpeed->setEnabled(automatic);
    ui->spinBoxAutoScale->setEnabled(automatic);
    ui->hScrollBarScale->setEnabled(!automatic);
    ui->spinBoxScale->setEnabled(!automatic);
}

void ScrPurityCtrlDialog::slot_AutoTimerFinished()
{
    // The run's own steps are not worth a write each.
    const auto hold = m_saveSoon.hold();
    int grey = ui->spinBoxAutoScale->value();
    if (stepUp)
        grey = wrappedGrey(grey + 1);
    if (stepDown)
        grey = wrappedGrey(grey - 1);
    m_lamps.blink();
    CommonHelper::setQPushButtonText(ui->buttonPauseResume, tr("暂停"));
    drawer.slot_AlphaChanged(grey);
    ui->spinBoxAutoScale->setValue(grey);
}
