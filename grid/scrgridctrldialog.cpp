#include "scrgridctrldialog.h"

#include "ui_scrtestdialog.h"

#include "commonhelper.h"
#include "form.h"
#include "savesoon.h"
#include "settingsrules.h"
#include "swatchrow.h"
#include "testcolor.h"

#include <QKeyEvent>
#include <QTimer>

#include <initializer_list>

namespace {

constexpr int maximumGrey = 255;
constexpr int firstGrey = 128;
constexpr int minimumSpeed = 1;
constexpr int maximumSpeed = 100;

QVector<QColor> testColors()
{
    QVector<QColor> colors;
    for (int index = 0; index < TestColor::count; ++index)
        colors.append(TestColor::at(index));
    return colors;
}

} // namespace

ScrGridCtrlDialog::ScrGridCtrlDialog(QWidget *testWindow, QSettings *settings_, QWidget *parent)
    : QDialog(parent)
    , ui(makeForm<Ui::ScrTestDialog>(this))
    , drawer(testWindow)
    , oldColors(testColors())
    , mixColors(oldColors)
    , settings(settings_)
    , m_families(makeFamilies())
    , m_grey(ui->hScrollBarGrayLevel, ui->labelGrayLevel)
    , m_speed(ui->hScrollBarSpeed, ui->labelSpeed)
    , m_lamps(ui->signalGreenButton, ui->signalGreyButton)
    , m_swatches(new SwatchRow(*ui, this))
    , m_saveSoon(new SaveSoon([this] { saveWhileRunning(); }, this))
{
    for (QPushButton *button : {ui->pushButtonPause, ui->pushButtonSettings})
        button->setObjectName(QStringLiteral("beginPushBtn"));
    initSlots();
    initSaving();
    initCtrls();
    initGridStatus();
    initTimer(currentSpeed());
}

ScrGridCtrlDialog::~ScrGridCtrlDialog()
{
    saveGridBaseInfo();
}

void ScrGridCtrlDialog::initSlots()
{
    connect(this, &ScrGridCtrlDialog::signal_colorChanged, &drawer, &GridDrawer::slot_colorChanged);
    initGrayScaleSlots();
    initColorRadioSlots();
    initLinesSlots();
    initSpeedCtrlSlots();
    initOldTestSlots();
}

void ScrGridCtrlDialog::initGrayScaleSlots()
{
    connect(ui->hScrollBarGrayLevel, &QSlider::valueChanged, this,
            [this](int grey) { emit signal_greyChanged(QString::number(grey)); });
    connect(ui->hScrollBarGrayLevel, &QSlider::valueChanged, &drawer,
            &GridDrawer::slot_changeGrayScale);
}

void ScrGridCtrlDialog::initColorRadioSlots()
{
    connect(m_swatches, &SwatchRow::selected, this, &ScrGridCtrlDialog::selectColor);
    connect(this, &ScrGridCtrlDialog::signal_colorChanged, this,
            &ScrGridCtrlDialog::slot_colorChanged);
}

void ScrGridCtrlDialog::initLinesSlots()
{
    for (const Family &family : m_families) {
        connect(family.button, &QPushButton::toggled, &drawer, family.toggle);
        connect(family.button, &QPushButton::clicked, this, family.clicked);
    }
    connect(ui->netGridCheckBox, &QCheckBox::toggled, this,
            &ScrGridCtrlDialog::slot_changeGridStatus);
    connect(ui->pushButtonMerged, &QPushButton::clicked, this, &ScrGridCtrlDialog::slot_mixTest);
    connect(ui->pushButtonMerged, &QPushButton::clicked, this,
            &ScrGridCtrlDialog::enableAdvanceSettings);
}

void ScrGridCtrlDialog::initSpeedCtrlSlots()
{
    connect(ui->hScrollBarSpeed, &QSlider::valueChanged, this, &ScrGridCtrlDialog::initTimer);
    connect(ui->pushButtonPause, &QPushButton::clicked, this, &ScrGridCtrlDialog::startOrPause,
            Qt::DirectConnection);
}

void ScrGridCtrlDialog::initOldTestSlots()
{
    connect(ui->pushButtonOld, &QPushButton::clicked, this, &ScrGridCtrlDialog::slot_OldTest);
    connect(ui->pushButtonOld, &QPushButton::clicked, this,
            &ScrGridCtrlDialog::enableAdvanceSettings);
}

void ScrGridCtrlDialog::initCtrls()
{
    const auto hold = m_saveSoon->hold();
    m_speed.setRange(minimumSpeed, maximumSpeed);
    m_grey.setRange(0, maximumGrey);
    ui->radioButtonRed->setChecked(true);
    ui->hScrollBarGrayLevel->setValue(firstGrey);
}

DrawerBase *ScrGridCtrlDialog::getDrawer()
{
    disableAdvanceSettings();
    drawer.active = false;
    return &drawer;
}

void ScrGridCtrlDialog::setScrollEnabled(bool on)
{
    isScroll = on;
    if (on)
        ui->pushButtonPause->setEnabled(true);
    advanceEnabled = on;
}

void ScrGridCtrlDialog::enableAdvanceSettings()
{
    for (QWidget *control : std::initializer_list<QWidget *>{
             ui->hScrollBarSpeed, ui->hScrollBarGrayLevel, ui->labelSpeed, ui->labelGrayLevel,
             ui->pushButtonPause, ui->pushButtonSettings})
        control->setEnabled(true);
    advanceEnabled = true;
    isScroll = true;
}

// All but the mix settings, which stay open. Wanted.
void ScrGridCtrlDialog::disableAdvanceSettings()
{
    for (QWidget *control :
         std::initializer_list<QWidget *>{ui->hScrollBarSpeed, ui->hScrollBarGrayLevel,
                                          ui->labelSpeed, ui->labelGrayLevel, ui->pushButtonPause})
        control->setEnabled(false);
    advanceEnabled = false;
}

// The colour is told while the run still stands as it was: a paused aging test takes it for
// its background at once.
void ScrGridCtrlDialog::selectColor(int index)
{
    colorIndex = static_cast<qint16>(index);
    const QColor color = TestColor::at(index);
    if (settings && !m_saveSoon->isHeld())
        SettingsRules::store(*settings, SharedKey::baseColor, color);
    emit signal_colorChanged(color);
    enableAdvanceSettings();
}

void ScrGridCtrlDialog::slot_changeSelectedGridColor(const QColor &color)
{
    QAbstractButton *button = m_swatches->button(color);
    if (!button)
        return;
    button->setChecked(true);
    if (settings && !m_saveSoon->isHeld())
        SettingsRules::store(*settings, SharedKey::baseColor, color);
}

void ScrGridCtrlDialog::slot_keyUpPressed()
{
    stepGrey(1);
}

void ScrGridCtrlDialog::slot_keyDownPressed()
{
    stepGrey(-1);
}

void ScrGridCtrlDialog::slot_keyLeftPressed()
{
    stepGrey(-1);
}

void ScrGridCtrlDialog::slot_keyRightPressed()
{
    stepGrey(1);
}

// Round and round within 0 to 255.
void ScrGridCtrlDialog::stepGrey(int step)
{
    constexpr int levels = maximumGrey + 1;
    if (ui->hScrollBarGrayLevel->isEnabled())
        ui->hScrollBarGrayLevel->setValue((ui->hScrollBarGrayLevel->value() + step + levels)
                                          % levels);
}

void ScrGridCtrlDialog::updateLanguage()
{
    setWindowTitle(tr("显示屏测试工具-网格"));
    m_swatches->retranslate();
    m_lamps.retranslate();
    for (const Family &family : m_families)
        CommonHelper::setQPushButtonText(family.button, tr(family.text));
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
