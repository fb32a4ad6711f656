#include "tarntool.h"

#include "ui_tarntool.h"

#include "advancedsetup.h"
#include "advancedvalue.h"
#include "commonhelper.h"
#include "filedialog.h"
#include "form.h"
#include "picturestore.h"
#include "scrgrid.h"
#include "settingsrules.h"
#include "sliderspinboxpair.h"
#include "swatch.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <QSettings>
#include <QTimer>

#include <tuple>
#include <utility>

namespace {

constexpr int firstId = 0; // of each group: the solid colour, from left to right
constexpr int secondId = 1;

} // namespace

TarnTool::TarnTool(QWidget *drawWidget, QSettings *settings, QWidget *parent)
    : QDialog(parent)
    , m_drawer(std::make_unique<ScrGrid>(drawWidget))
    , ui(makeForm<Ui::TarnTool>(this))
    , m_bgGroup(new QButtonGroup(this))
    , m_orderGroup(new QButtonGroup(this))
    , m_settings(settings)
    , m_saveSoon([this] { saveTarnBaseInfo(); }, this)
{
    for (QPushButton *button : {ui->buttonFixedPosition, ui->buttonSetup})
        button->setObjectName(QStringLiteral("normalContentPushBtn"));
    uiInit();
    updateLanguage();
    drawWidget->installEventFilter(this);
}

TarnTool::~TarnTool()
{
    saveTarnBaseInfo();
    PictureStore::finish();
}

// Restoring is not a change by the operator and writes nothing.
void TarnTool::uiInit()
{
    const auto hold = m_saveSoon.hold();
    dataInit();
    ControlInit();
    initTarnStatus();
}

void TarnTool::dataInit()
{
    constexpr int smallest = ScrGrid::smallestModule;
    constexpr int largest = ScrGrid::largestModule;
    constexpr int most = ScrGrid::mostModules;
    m_counts = {{
        {ui->boxHight, CabinetKey::boxHeight, &ScrGrid::m_moduleHeight, smallest, 16, largest},
        {ui->boxWidth, CabinetKey::boxWidth, &ScrGrid::m_moduleWidth, smallest, 32, largest},
        {ui->boxColumn, CabinetKey::columnCount, &ScrGrid::m_moduleColumnCount, 1, 2, most},
        {ui->boxRow, CabinetKey::rowCount, &ScrGrid::m_moduleRowCount, 1, 2, most},
    }};
    m_colors = {{
        {ui->buttonFont, CabinetKey::fontColor, CabinetKey::fontStyle, &ScrGrid::m_fontColor,
         Qt::yellow},
        {ui->buttonModeLine, CabinetKey::moduleLineColor, CabinetKey::moduleLineStyle,
         &ScrGrid::m_moduleLineColor, Qt::red},
        {ui->buttonScan, CabinetKey::scanLineColor, CabinetKey::scanLineStyle,
         &ScrGrid::m_scanColor, Qt::blue},
        {ui->labelColor, CabinetKey::backgroundColor, CabinetKey::backgroundStyle,
         &ScrGrid::m_bgColor, Qt::black},
    }};
}

void TarnTool::ControlInit()
{
    for (const Count &count : m_counts) {
        count.box->setRange(count.minimum, count.maximum);
        count.box->setValue(count.initial);
        SliderSpinBoxPair::prepare(count.box);
    }
    for (ColorChoice &choice : m_colors)
        choice.reset();
    m_bgGroup->addButton(ui->radioBackground, firstId);
    m_bgGroup->addButton(ui->radioPicture, secondId);
    m_orderGroup->addButton(ui->radioBeginLeft, firstId);
    m_orderGroup->addButton(ui->radioBeginRight, secondId);
    for (QRadioButton *initial : {ui->radioBackground, ui->radioBeginLeft})
        initial->setChecked(true);
    for (CustomerQlabel *label : {ui->labelColor, ui->labelimage})
        Swatch::makeClickable(label);
    slot_forbidControls();
    connect(ui->radioBackground, &QRadioButton::clicked, this,
            &TarnTool::slot_radioBackgroundRefresh);
    connect(ui->labelColor, &CustomerQlabel::clicked, this, &TarnTool::slot_radioBackgroundClicked);
    connect(ui->radioPicture, &QRadioButton::clicked, this, &TarnTool::slot_radioPictureRefresh);
    connect(ui->labelimage, &CustomerQlabel::clicked, this, &TarnTool::slot_radioPictureClicked);
}

void TarnTool::saveTarnBaseInfo()
{
    if (!m_settings)
        return;
    for (const Count &count : m_counts)
        SettingsRules::store(*m_settings, count.key, count.box->value());
    SettingsRules::store(*m_settings, CabinetKey::rightToLeft, ui->radioBeginRight->isChecked());
    SettingsRules::store(*m_settings, CabinetKey::solidBackground,
                         ui->radioBackground->isChecked());
}

void TarnTool::initTarnStatus()
{
    if (!m_settings)
        return;
    const auto hold = m_saveSoon.hold();
    // A value beyond the limits is shown as the limit.
    for (const Count &count : m_counts)
        count.box->setValue(SettingsRules::nonZeroInt(*m_settings, count.key, count.initial));
    for (const AdvancedValue &value : advancedValues)
        *m_drawer.*value.field = value.stored(*m_settings).value_or(*m_drawer.*value.field);
    for (ColorChoice &choice : m_colors)
        choice.restore(*m_settings);
    restorePicture();
    const bool fromRight = m_settings->value(CabinetKey::rightToLeft).toBool();
    (fromRight ? ui->radioBeginRight : ui->radioBeginLeft)->setChecked(true);
}

DrawerBase *TarnTool::getDrawer()
{
    m_drawer->active = false;
    return m_drawer.get();
}

void TarnTool::getData()
{
    const bool solid = m_bgGroup->checkedId() == firstId;
    m_drawer->m_bgPicturePath = solid ? QString() : m_bgPicturePath;
    for (const Count &count : m_counts)
        *m_drawer.*count.field = count.box->value();
    for (const ColorChoice &choice : m_colors)
        *m_drawer.*choice.field = choice.color;
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
    if (m_saveSoon.isHeld())
        return;
    m_userChanged = true;
    m_saveSoon.schedule();
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
    if (event->type() == QEvent::Resize)
        m_drawer->updateBackgroundImage();
    return QDialog::eventFilter(watched, event);
}

// After the first time, so that a picture that takes long does not keep the window from showing.
void TarnTool::paintEvent(QPaintEvent * /*event*/)
{
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

void TarnTool::changeCount(CountItem item, int value)
{
    *m_drawer.*m_counts.at(item).field = value;
    showChange();
}

void TarnTool::changeColor(ColorItem item)
{
    ColorChoice &choice = m_colors.at(item);
    if (!choice.ask(m_settings))
        return;
    *m_drawer.*choice.field = choice.color;
    showChange();
}

void TarnTool::changeOrder(bool leftToRight)
{
    m_drawer->m_leftToRight = leftToRight;
    showChange();
}

// Without a kept picture the stored choice of one does not count.
void TarnTool::restorePicture()
{
    m_thumbnailDue = PictureLoader::isPicture(PictureStore::path());
    if (!m_thumbnailDue) {
        ui->radioBackground->setChecked(true);
        return;
    }
    usePicture(PictureStore::path());
    const bool solid = m_settings->value(CabinetKey::solidBackground).toBool();
    (solid ? ui->radioBackground : ui->radioPicture)->setChecked(true);
}

// A kept picture that turns out to be damaged counts as none from here on.
void TarnTool::restoreThumbnail()
{
    if (!std::exchange(m_thumbnailDue, false))
        return;
    const QImage picture = m_drawer->picture(PictureStore::path());
    if (!picture.isNull()) {
        showThumbnail(picture);
        return;
    }
    ui->radioBackground->setChecked(true);
    takePictureAway();
}

void TarnTool::usePicture(const QString &path)
{
    m_bgPicturePath = path;
    m_drawer->setBackgroundImage(path);
    showChange();
}

void TarnTool::showThumbnail(const QImage &picture)
{
    m_thumbnailDue = false;
    const QImage small =
        picture.scaled(ui->labelimage->size(), Qt::KeepAspectRatio, Qt::FastTransformation);
    ui->labelimage->setPixmap(QPixmap::fromImage(small));
}

void TarnTool::takePictureAway()
{
    m_drawer->m_bgColor = m_colors[BackgroundColor].color;
    m_drawer->m_bgPicturePath.clear();
    m_drawer->m_bgPixmap = QPixmap();
    m_bgPicturePath.clear();
}

void TarnTool::slot_radioBackgroundRefresh()
{
    takePictureAway();
    showChange();
}

void TarnTool::slot_radioBackgroundClicked()
{
    if (ui->radioBackground->isChecked() && m_colors[BackgroundColor].ask(m_settings))
        slot_radioBackgroundRefresh();
}

void TarnTool::slot_radioPictureRefresh()
{
    saveSoon(); // the choice itself, whether a picture comes of it or not
    const QString kept = PictureStore::current();
    if (m_drawer->picture(kept).isNull())
        slot_radioPictureClicked();
    else
        usePicture(kept);
}

// What is chosen and is no picture is ignored: the picture before it stays in use and kept.
void TarnTool::slot_radioPictureClicked()
{
    if (!ui->radioPicture->isChecked())
        return;
    const QString path = FileDialog::getOpenFileName(this, tr("选择背景图"), m_lastPictureDir,
                                                     tr("图片文件 (*.jpg *.png *.bmp)"));
    if (path.isEmpty())
        return;
    const QImage picture = m_drawer->picture(path);
    if (picture.isNull())
        return;
    PictureStore::keep(path);
    m_lastPictureDir = path;
    showThumbnail(picture);
    usePicture(path);
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
