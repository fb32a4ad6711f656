#include "tarntool.h"

#include "ui_tarntool.h"

#include "advancedsetup.h"
#include "advancedvalue.h"
#include "colordialog.h"
#include "commonhelper.h"
#include "form.h"
#include "savesoon.h"
#include "scrgrid.h"
#include "settingsrules.h"
#include "sliderspinboxpair.h"
#include "swatch.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <QSettings>
#include <QTimer>

#include <tuple>

namespace {

constexpr int firstId = 0; // of each group: the solid colour, from left to right
constexpr int secondId = 1;

} // namespace

TarnTool::TarnTool(QWidget *drawWidget, QSettings *settings, QWidget *parent)
    : QDialog(parent)
    , m_testWindow(drawWidget)
    , m_drawer(std::make_unique<ScrGrid>(drawWidget))
    , ui(makeForm<Ui::TarnTool>(this))
    , m_bgGroup(new QButtonGroup(this))
    , m_orderGroup(new QButtonGroup(this))
    , m_colors(makeColors())
    , m_settings(settings)
    , m_saveSoon(new SaveSoon([this] { saveTarnBaseInfo(); }, this))
{
    for (QPushButton *button : {ui->buttonFixedPosition, ui->buttonSetup})
        button->setObjectName(QStringLiteral("normalContentPushBtn"));
    uiInit();
    updateLanguage();
    m_testWindow->installEventFilter(this);
}

TarnTool::~TarnTool()
{
    saveTarnBaseInfo();
}

std::array<TarnTool::ColorChoice, TarnTool::colorCount> TarnTool::makeColors() const
{
    return {{
        {ui->buttonFont, CabinetKey::fontColor, CabinetKey::fontStyle, &TarnTool::m_fontColor,
         &ScrGrid::m_fontColor, Qt::yellow},
        {ui->buttonModeLine, CabinetKey::moduleLineColor, CabinetKey::moduleLineStyle,
         &TarnTool::m_moduleLineColor, &ScrGrid::m_moduleLineColor, Qt::red},
        {ui->buttonScan, CabinetKey::scanLineColor, CabinetKey::scanLineStyle,
         &TarnTool::m_scanColor, &ScrGrid::m_scanColor, Qt::blue},
        {ui->labelColor, CabinetKey::backgroundColor, CabinetKey::backgroundStyle,
         &TarnTool::m_bgColor, &ScrGrid::m_bgColor, Qt::black},
    }};
}

// Restoring is not a change by the operator and writes nothing.
void TarnTool::uiInit()
{
    const auto hold = m_saveSoon->hold();
    dataInit();
    ControlInit();
    initTarnStatus();
}

void TarnTool::dataInit()
{
    m_counts = {{
        {ui->boxHight, CabinetKey::boxHeight, 16, 16, 100},
        {ui->boxWidth, CabinetKey::boxWidth, 16, 32, 100},
        {ui->boxColumn, CabinetKey::columnCount, 1, 2, 100},
        {ui->boxRow, CabinetKey::rowCount, 1, 2, 100},
    }};
    m_bgSolid = true;
    m_leftToRight = true;
}

void TarnTool::ControlInit()
{
    for (const Count &count : m_counts) {
        count.box->setRange(count.minimum, count.maximum);
        count.box->setValue(count.initial);
        SliderSpinBoxPair::prepare(count.box);
    }
    m_bgGroup->addButton(ui->radioBackground, firstId);
    m_bgGroup->addButton(ui->radioPicture, secondId);
    m_orderGroup->addButton(ui->radioBeginLeft, firstId);
    m_orderGroup->addButton(ui->radioBeginRight, secondId);
    m_bgGroup->button(m_bgSolid ? firstId : secondId)->setChecked(true);
    m_orderGroup->button(m_leftToRight ? firstId : secondId)->setChecked(true);
    for (int item = 0; item < colorCount; ++item) {
        const QColor initial = m_colors.at(item).initial;
        setSwatch(static_cast<ColorItem>(item), initial, Swatch::style(initial));
    }
    for (CustomerQlabel *label : {ui->labelColor, ui->labelimage})
        Swatch::makeClickable(label);
    slot_forbidControls();
    connect(ui->radioBackground, &QRadioButton::clicked, this,
            &TarnTool::slot_radioBackgroundRefresh);
    connect(ui->labelColor, &CustomerQlabel::clicked, this, &TarnTool::slot_radioBackgroundClicked);
    connect(ui->radioPicture, &QRadioButton::clicked, this, &TarnTool::slot_radioPictureRefresh);
    connect(ui->labelimage, &CustomerQlabel::clicked, this, &TarnTool::slot_radioPictureClicked);
}

DrawerBase *TarnTool::getDrawer()
{
    m_drawer->active = false;
    return m_drawer.get();
}

void TarnTool::getData()
{
    const bool solid = m_bgGroup->checkedId() == firstId;
    if (solid)
        m_drawer->m_bgColor = m_bgColor;
    m_drawer->m_bgPicturePath = solid ? QString() : m_bgPicturePath;
    m_drawer->m_moduleWidth = ui->boxWidth->value();
    m_drawer->m_moduleHeight = ui->boxHight->value();
    m_drawer->m_moduleRowCount = ui->boxRow->value();
    m_drawer->m_moduleColumnCount = ui->boxColumn->value();
    m_drawer->m_fontColor = m_fontColor;
    m_drawer->m_moduleLineColor = m_moduleLineColor;
    m_drawer->m_scanColor = m_scanColor;
    m_drawer->m_leftToRight = m_orderGroup->checkedId() == firstId;
    if (m_settings) {
        for (const AdvancedValue &value : advancedValues)
            *m_drawer.*value.field = value.stored(*m_settings).value_or(value.initial);
    }
    m_drawer->active = true;
}

// What the operator changes here shows at once.
void TarnTool::showChange()
{
    m_drawer->active = true;
    m_drawer->update();
    saveSoon();
}

void TarnTool::saveSoon()
{
    if (m_saveSoon->isHeld())
        return;
    m_userChanged = true;
    m_saveSoon->schedule();
}

void TarnTool::setAllCtrolDisabled(bool disabled)
{
    const auto children = findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        // A page key changes the tab behind the advanced settings too, and they have to close.
        if (!child->isWindow())
            child->setDisabled(disabled);
    }
}

void TarnTool::slot_forbidControls()
{
    setAllCtrolDisabled(true);
    ui->buttonFixedPosition->setEnabled(true);
}

void TarnTool::slot_drawerSizeChanged(int /*width*/, int /*height*/)
{
    m_drawer->updateBackgroundImage();
}

// The mouse reports its changes of the size by itself; keys, the placement panel and the full
// screen do not.
bool TarnTool::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_testWindow && event->type() == QEvent::Resize)
        m_drawer->updateBackgroundImage();
    return QDialog::eventFilter(watched, event);
}

// After the first time, so that a picture that takes long does not keep the window from showing.
void TarnTool::paintEvent(QPaintEvent *event)
{
    QDialog::paintEvent(event);
    if (m_thumbnailDue)
        QTimer::singleShot(0, this, &TarnTool::restoreThumbnail);
}

void TarnTool::on_buttonFixedPosition_clicked()
{
    setAllCtrolDisabled(false);
    m_drawer->m_layoutOn = true;
    getData();
    m_drawer->update();
    m_started = true;
    m_userChanged = true;
}

void TarnTool::on_buttonSetup_clicked()
{
    if (m_setup)
        return;
    m_setup = new AdvancedSetup(m_settings, m_drawer.get(), this);
    m_setup->setAttribute(Qt::WA_DeleteOnClose);
    m_setup->show();
}

void TarnTool::on_boxWidth_valueChanged(int width)
{
    m_drawer->m_moduleWidth = width;
    showChange();
}

void TarnTool::on_boxHight_valueChanged(int height)
{
    m_drawer->m_moduleHeight = height;
    showChange();
}

void TarnTool::on_boxColumn_valueChanged(int columns)
{
    m_drawer->m_moduleColumnCount = columns;
    showChange();
}

void TarnTool::on_boxRow_valueChanged(int rows)
{
    m_drawer->m_moduleRowCount = rows;
    showChange();
}

void TarnTool::on_radioBeginLeft_clicked()
{
    m_drawer->m_leftToRight = true;
    showChange();
}

void TarnTool::on_radioBeginRight_clicked()
{
    m_drawer->m_leftToRight = false;
    showChange();
}

void TarnTool::on_buttonFont_clicked()
{
    if (chooseColor(FontColor))
        showChange();
}

void TarnTool::on_buttonModeLine_clicked()
{
    if (chooseColor(ModuleLineColor))
        showChange();
}

void TarnTool::on_buttonScan_clicked()
{
    if (chooseColor(ScanColor))
        showChange();
}

// Beginning with green, whatever the colour is; wanted. False when the operator chose none.
bool TarnTool::chooseColor(ColorItem item)
{
    const QColor color = ColorDialog::getColor(Qt::green);
    if (!color.isValid())
        return false;
    const QString style = Swatch::style(color);
    setSwatch(item, color, style);
    const ColorChoice &choice = m_colors.at(item);
    if (m_settings) {
        SettingsRules::store(*m_settings, choice.colorKey, color);
        SettingsRules::store(*m_settings, choice.styleKey, style);
    }
    *m_drawer.*choice.field = color;
    return true;
}

void TarnTool::setSwatch(ColorItem item, const QColor &color, const QString &style)
{
    const ColorChoice &choice = m_colors.at(item);
    this->*choice.color = color;
    choice.swatch->setStyleSheet(style);
}

void TarnTool::updateLanguage()
{
    // Each caption with the control that it names.
    const std::tuple<QLabel *, QWidget *, QString> captions[] = {
        {ui->labelBoxWidth, ui->boxWidth, tr("模块宽度")},
        {ui->labelBoxHeight, ui->boxHight, tr("模块高度")},
        {ui->labelModelRow, ui->boxRow, tr("模块行数")},
        {ui->labelMoldelCol, ui->boxColumn, tr("模块列数")},
        {ui->labelFontColor, ui->buttonFont, tr("字体颜色")},
        {ui->labelModelColor, ui->buttonModeLine, tr("模块线颜色")},
        {ui->labelScanColor, ui->buttonScan, tr("扫描板颜色")},
    };
    for (const auto &[label, control, text] : captions) {
        CommonHelper::setQLabelText(label, text);
        control->setAccessibleName(text);
    }
    CommonHelper::setQRadioButtonText(ui->radioBeginLeft, tr("从左到右"));
    CommonHelper::setQRadioButtonText(ui->radioBeginRight, tr("从右到左"));
    CommonHelper::setQRadioButtonText(ui->radioBackground, tr("纯色背景"));
    CommonHelper::setQRadioButtonText(ui->radioPicture, tr("背景图"));
    ui->labelColor->setAccessibleName(tr("纯色背景"));
    ui->labelimage->setAccessibleName(tr("背景图"));
    CommonHelper::setQPushButtonText(ui->buttonSetup, tr("高级设置"));
    CommonHelper::setQPushButtonText(ui->buttonFixedPosition, tr("定位"));
    if (m_setup)
        m_setup->updateLanguage();
}

// A page of the tabs, not a window: Escape does not close it, and Enter does not press the
// button that was used last.
void TarnTool::keyPressEvent(QKeyEvent *event)
{
    event->ignore();
}
