#include "mixsetting.h"

#include "colordialog.h"
#include "commonhelper.h"
#include "customerqlabel.h"
#include "framelessmessagebox.h"
#include "griddrawer.h"
#include "sliderspinboxpair.h"
#include "swatch.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QVariant>

#include <utility>

namespace {

using UX::Widgets::FramelessMessageBox;

constexpr int thinnest = 1; // of the lines, in pixels
constexpr int thickest = 5;
constexpr int closest = 3; // between the lines, in pixels
constexpr int widest = 700;

constexpr QSize dialogSize(360, 424);
constexpr QSize warningSize(206, 131);
constexpr int buttonWidth = 90;
constexpr int controlWidth = 62;
constexpr int controlHeight = 20;
constexpr int labelWidth = 140;
constexpr QMargins contentMargins(24, 10, 24, 16);
constexpr int sectionSpacing = 12;
constexpr int rowSpacing = 10;
constexpr int buttonSpacing = 20;

// The check boxes, each where it stands; four of them fill a row.
constexpr int boxWidth = 78;
constexpr int boxesPerRow = 4;
using Item = MixSelection::Item;
constexpr int boxRows = 3;
constexpr Item boxPlaces[boxRows][boxesPerRow] = {
    {Item::Red, Item::Green, Item::Blue, Item::White},
    {Item::Yellow, Item::Cyan, Item::Purple, Item::itemCount},
    {Item::Vertical, Item::Horizontal, Item::SlantLeft, Item::SlantRight},
};

// "checkBoxRed" for the box with the key "/setting/checkBoxRed".
QString boxName(QLatin1String key)
{
    const QString path = key;
    return path.section(QLatin1Char('/'), -1);
}

QSpinBox *createSpinBox(const char *name)
{
    auto *spinBox = new QSpinBox;
    spinBox->setObjectName(QLatin1String(name));
    spinBox->setFixedHeight(controlHeight);
    SliderSpinBoxPair::prepare(spinBox);
    return spinBox;
}

} // namespace

MixSetting::MixSetting(GridDrawer *drawer_, QSettings *settings_, QWidget *parent)
    : SettingsDialog("MixSetting", dialogSize, parent)
    , drawer(drawer_)
    , settings(settings_)
{
    setOKButtonVisible(false);
    setCancelButtonVisible(false);
    initLayout();
    initSelected();
    updateLanguage();
    initSlots();
}

MixSetting::~MixSetting() = default;

void MixSetting::initLayout()
{
    createGridControls();
    createMixControls();
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(buttonSpacing);
    buttons->addStretch();
    buttons->addWidget(m_allButton);
    buttons->addWidget(m_clearButton);
    buttons->addStretch();

    auto *column = new QVBoxLayout;
    column->setContentsMargins(contentMargins);
    column->setSpacing(sectionSpacing);
    column->addWidget(m_gridHeader);
    column->addWidget(createSeparator());
    column->addLayout(layOutGridControls());
    column->addStretch();
    column->addWidget(m_mixHeader);
    column->addWidget(createSeparator());
    column->addLayout(layOutMixControls());
    column->addLayout(buttons);
    column->addStretch();
    column->addWidget(createSeparator("ContentSplitLabel"));
    column->addWidget(m_confirmButton, 0, Qt::AlignHCenter);
    setLayout(column);
    m_confirmButton->setDefault(true);
    m_confirmButton->setFocus();
}

void MixSetting::createGridControls()
{
    m_gridHeader = new QLabel;
    m_colorLabel = new QLabel;
    m_pixLabel = new QLabel;
    m_distanceLabel = new QLabel;
    toolButtonColorPick = new CustomerQlabel;
    toolButtonColorPick->setObjectName(QStringLiteral("toolButtonColorPick"));
    toolButtonColorPick->setStyleSheet(QStringLiteral("background-color:rgb(0,0,0)"));
    toolButtonColorPick->setFixedSize(controlWidth, controlHeight);
    Swatch::makeClickable(toolButtonColorPick);
    spinBoxPix = createSpinBox("spinBoxPix");
    spinBoxDistance = createSpinBox("spinBoxDistance");
    // The values come before the ranges: a distance above 99, the most that a spin box takes by
    // itself, is shown as 99 while the drawer keeps it. Wanted.
    spinBoxPix->setValue(drawer->getPix());
    spinBoxDistance->setValue(drawer->getLineDistance());
    spinBoxPix->setRange(thinnest, thickest);
    spinBoxDistance->setRange(closest, widest);
}

QLayout *MixSetting::layOutGridControls()
{
    const std::pair<QLabel *, QWidget *> rows[] = {
        {m_colorLabel, toolButtonColorPick},
        {m_pixLabel, spinBoxPix},
        {m_distanceLabel, spinBoxDistance},
    };
    auto *grid = new QGridLayout;
    grid->setVerticalSpacing(rowSpacing);
    grid->setColumnStretch(2, 1);
    int row = 0;
    for (const auto &[label, control] : rows) {
        label->setFixedWidth(labelWidth);
        control->setFixedWidth(controlWidth);
        label->setBuddy(control);
        grid->addWidget(label, row, 0);
        grid->addWidget(control, row, 1);
        ++row;
    }
    return grid;
}

void MixSetting::createMixControls()
{
    m_mixHeader = new QLabel;
    for (const MixSelection::Entry &entry : MixSelection::entries()) {
        auto *box = new QCheckBox;
        box->setObjectName(boxName(entry.key));
        box->setFixedWidth(boxWidth);
        m_boxes.at(entry.item) = box;
    }
    m_allButton = createButton();
    m_clearButton = createButton();
    m_confirmButton = createButton();
}

QLayout *MixSetting::layOutMixControls()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(0);
    grid->setVerticalSpacing(rowSpacing);
    for (int row = 0; row < boxRows; ++row) {
        for (int column = 0; column < boxesPerRow; ++column) {
            const Item item = boxPlaces[row][column];
            if (item != Item::itemCount)
                grid->addWidget(m_boxes.at(item), row, column);
        }
    }
    return grid;
}

QPushButton *MixSetting::createButton()
{
    auto *button = new QPushButton;
    dressButton(button);
    button->setFixedWidth(buttonWidth);
    button->setAutoDefault(false);
    return button;
}

void MixSetting::initSlots()
{
    connect(spinBoxPix, qOverload<int>(&QSpinBox::valueChanged), this,
            &MixSetting::slot_spinBoxPixValueChanged);
    connect(spinBoxDistance, qOverload<int>(&QSpinBox::valueChanged), this,
            &MixSetting::slot_spinBoxDistanceValueChanged);
    connect(m_allButton, &QPushButton::clicked, this, &MixSetting::slot_pushButtonAll);
    connect(m_confirmButton, &QPushButton::clicked, this, &MixSetting::slot_pushButtonOK);
    connect(m_clearButton, &QPushButton::clicked, this, &MixSetting::slot_pushButtonClear);
    connect(toolButtonColorPick, &CustomerQlabel::clicked, this, &MixSetting::pickColor);
}

void MixSetting::initSelected()
{
    const MixSelection selected = MixSelection::stored(settings);
    for (const MixSelection::Entry &entry : MixSelection::entries())
        m_boxes.at(entry.item)->setChecked(selected.contains(entry.item));
}

MixSelection MixSetting::selection() const
{
    MixSelection selected;
    for (const MixSelection::Entry &entry : MixSelection::entries())
        selected.set(entry.item, isChecked(entry.item));
    return selected;
}

void MixSetting::saveMixStatus()
{
    if (settings)
        selection().store(*settings);
}

bool MixSetting::isChecked(MixSelection::Item item) const
{
    return m_boxes.at(item)->isChecked();
}

void MixSetting::checkAll(bool checked)
{
    for (QCheckBox *box : m_boxes)
        box->setChecked(checked);
}

void MixSetting::updateLanguage()
{
    setWindowTitle(tr("高级设置"));
    m_gridHeader->setText(tr("网格设置"));
    m_mixHeader->setText(tr("混测设置"));
    CommonHelper::setQLabelText(m_colorLabel, tr("背景色"));
    CommonHelper::setQLabelText(m_pixLabel, tr("线条宽度"));
    CommonHelper::setQLabelText(m_distanceLabel, tr("线条间距"));
    toolButtonColorPick->setAccessibleName(tr("背景色"));
    spinBoxPix->setAccessibleName(tr("线条宽度"));
    spinBoxDistance->setAccessibleName(tr("线条间距"));
    for (const MixSelection::Entry &entry : MixSelection::entries())
        CommonHelper::setQCheckBoxText(m_boxes.at(entry.item), tr(entry.text));
    CommonHelper::setQPushButtonText(m_allButton, tr("全选"));
    CommonHelper::setQPushButtonText(m_clearButton, tr("清空"));
    CommonHelper::setQPushButtonText(m_confirmButton, tr("确定"));
}

void MixSetting::slot_pushButtonAll()
{
    checkAll(true);
}

void MixSetting::slot_pushButtonClear()
{
    checkAll(false);
}

void MixSetting::slot_pushButtonOK()
{
    if (!isSelectedCheckBox()) {
        warnOfEmptySelection();
        return;
    }
    saveMixStatus();
    accept();
}

void MixSetting::slot_spinBoxPixValueChanged(int width)
{
    drawer->slot_changePix(width);
}

void MixSetting::slot_spinBoxDistanceValueChanged(int distance)
{
    drawer->slot_changeDistance(distance);
}

// A cancelled dialog's invalid colour is applied as well; wanted.
void MixSetting::pickColor()
{
    const QColor color = ColorDialog::getColor(Qt::green);
    drawer->slot_changeBgColor(color);
    drawer->slot_setBgColor(color);
    toolButtonColorPick->setStyleSheet(QStringLiteral("background:") + QVariant(color).toString());
}

// The box does not block; a second confirmation brings it forward again.
void MixSetting::warnOfEmptySelection()
{
    if (m_warning && m_warning->isVisible()) {
        m_warning->raise();
        m_warning->activateWindow();
        return;
    }
    m_warning = new FramelessMessageBox(QMessageBox::Warning, tr("提示"),
                                        tr("混测设置：请至少选中一项！"), QMessageBox::Ok, this);
    m_warning->setAttribute(Qt::WA_DeleteOnClose);
    m_warning->setModal(false);
    QPushButton *ok = m_warning->button(QMessageBox::Ok);
    ok->setStyleSheet(styleSheet());
    ok->setText(tr("确定"));
    m_warning->resize(warningSize);
    m_warning->show();
}
