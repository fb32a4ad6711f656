#include "mixsetting.h"

#include "colordialog.h"
#include "commonhelper.h"
#include "customerqlabel.h"
#include "framelessmessagebox.h"
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

namespace {

using UX::Widgets::FramelessMessageBox;

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

constexpr int boxWidth = 78;
constexpr int boxesPerRow = 4;

QSpinBox *createSpinBox(const char *name, int value, int minimum, int maximum)
{
    auto *spinBox = new QSpinBox;
    spinBox->setObjectName(QLatin1String(name));
    SliderSpinBoxPair::prepare(spinBox);
    // Specified: the value comes before the range. A distance above 99, the most that a spin box
    // takes by itself, is shown as 99 while the drawer keeps it.
    spinBox->setValue(value);
    spinBox->setRange(minimum, maximum);
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
    scaleToDesktop();
    initSelected();
    updateLanguage();
}

void MixSetting::initLayout()
{
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(buttonSpacing);
    buttons->addStretch();
    buttons->addWidget(createButton(QT_TR_NOOP("全选"), &MixSetting::slot_pushButtonAll));
    buttons->addWidget(createButton(QT_TR_NOOP("清空"), &MixSetting::slot_pushButtonClear));
    buttons->addStretch();
    QPushButton *confirm = createButton(QT_TR_NOOP("确定"), &MixSetting::slot_pushButtonOK);

    auto *column = new QVBoxLayout;
    column->setContentsMargins(contentMargins);
    column->setSpacing(sectionSpacing);
    column->addWidget(createLabel(QT_TR_NOOP("网格设置")));
    column->addWidget(createSeparator());
    column->addLayout(createGridRows());
    column->addStretch();
    column->addWidget(createLabel(QT_TR_NOOP("混测设置")));
    column->addWidget(createSeparator());
    column->addLayout(createBoxes());
    column->addLayout(buttons);
    column->addStretch();
    column->addWidget(createSeparator("ContentSplitLabel"));
    column->addWidget(confirm, 0, Qt::AlignHCenter);
    setLayout(column);
    confirm->setDefault(true);
    confirm->setFocus();
}

QLayout *MixSetting::createGridRows()
{
    toolButtonColorPick = new CustomerQlabel;
    toolButtonColorPick->setObjectName(QStringLiteral("toolButtonColorPick"));
    toolButtonColorPick->setStyleSheet(QStringLiteral("background-color:rgb(0,0,0)"));
    Swatch::makeClickable(toolButtonColorPick);
    connect(toolButtonColorPick, &CustomerQlabel::clicked, this, &MixSetting::pickColor);
    QSpinBox *pix =
        createSpinBox("spinBoxPix", drawer->getPix(), GridPattern::thinnest, GridPattern::thickest);
    connect(pix, qOverload<int>(&QSpinBox::valueChanged), this,
            &MixSetting::slot_spinBoxPixValueChanged);
    QSpinBox *distance = createSpinBox("spinBoxDistance", drawer->getLineDistance(),
                                       GridPattern::closest, GridPattern::farthest);
    connect(distance, qOverload<int>(&QSpinBox::valueChanged), this,
            &MixSetting::slot_spinBoxDistanceValueChanged);

    auto *grid = new QGridLayout;
    grid->setVerticalSpacing(rowSpacing);
    grid->setColumnStretch(2, 1);
    addRow(grid, 0, QT_TR_NOOP("背景色"), toolButtonColorPick);
    addRow(grid, 1, QT_TR_NOOP("线条宽度"), pix);
    addRow(grid, 2, QT_TR_NOOP("线条间距"), distance);
    return grid;
}

void MixSetting::addRow(QGridLayout *grid, int row, const char *text, QWidget *control)
{
    QLabel *label = createLabel(text);
    label->setFixedWidth(labelWidth);
    label->setBuddy(control);
    control->setFixedSize(controlWidth, controlHeight);
    grid->addWidget(label, row, 0);
    grid->addWidget(control, row, 1);
}

QLayout *MixSetting::createBoxes()
{
    for (const MixSelection::Entry &entry : MixSelection::entries) {
        auto *box = new QCheckBox;
        box->setObjectName(QString(entry.key).section(QLatin1Char('/'), -1)); // "checkBoxRed"
        box->setFixedWidth(boxWidth);
        m_boxes.at(entry.item) = box;
    }
    auto *grid = new QGridLayout;
    grid->setSpacing(0);
    grid->setVerticalSpacing(rowSpacing);
    for (int item = 0; item < MixSelection::itemCount; ++item) {
        const int place = item < MixSelection::Vertical ? item : item + 1; // which begins a row
        grid->addWidget(m_boxes.at(item), place / boxesPerRow, place % boxesPerRow);
    }
    return grid;
}

QLabel *MixSetting::createLabel(const char *text)
{
    auto *label = new QLabel;
    m_labels.emplace_back(label, text);
    return label;
}

QPushButton *MixSetting::createButton(const char *text, void (MixSetting::*slot)())
{
    auto *button = new QPushButton;
    styleButton(button);
    button->setFixedWidth(buttonWidth);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, slot);
    m_buttons.emplace_back(button, text);
    return button;
}

MixSelection MixSetting::selection() const
{
    MixSelection selected;
    for (const MixSelection::Entry &entry : MixSelection::entries)
        selected.set(entry.item, m_boxes.at(entry.item)->isChecked());
    return selected;
}

void MixSetting::check(const MixSelection &selected)
{
    for (const MixSelection::Entry &entry : MixSelection::entries)
        m_boxes.at(entry.item)->setChecked(selected.contains(entry.item));
}

void MixSetting::saveMixStatus()
{
    if (settings)
        selection().store(*settings);
}

void MixSetting::updateLanguage()
{
    setWindowTitle(tr("高级设置"));
    for (const auto &[label, text] : m_labels) {
        CommonHelper::setQLabelText(label, tr(text));
        if (QWidget *control = label->buddy())
            control->setAccessibleName(tr(text));
    }
    for (const MixSelection::Entry &entry : MixSelection::entries)
        CommonHelper::setQCheckBoxText(m_boxes.at(entry.item), tr(entry.text));
    for (const auto &[button, text] : m_buttons)
        CommonHelper::setQPushButtonText(button, tr(text));
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

// Specified: a cancelled dialog's invalid colour is applied as well.
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
    if (m_warning) {
        m_warning->raise();
        m_warning->activateWindow();
        return;
    }
    m_warning = new FramelessMessageBox(QMessageBox::Warning, tr("提示"),
                                        tr("混测设置：请至少选中一项！"), QMessageBox::Ok, this);
    m_warning->setAttribute(Qt::WA_DeleteOnClose);
    m_warning->setModal(false);
    QPushButton *ok = m_warning->button(QMessageBox::Ok);
    ok->setStyleSheet(styleSheet()); // it was polished before it had the name of such buttons
    ok->setText(tr("确定"));
    m_warning->resize(warningSize);
    m_warning->show();
}
