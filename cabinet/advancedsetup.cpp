#include "advancedsetup.h"

#include "commonhelper.h"
#include "sliderspinboxpair.h"
#include "titlebar.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

using Item = AdvancedValue::Item;

constexpr QSize dialogSize(360, 220);
constexpr int contentMargin = 20;
constexpr int rowSpacing = 5;
constexpr int pairSpacing = 8; // between a control and the next caption
constexpr int headerWidth = 75;
constexpr int captionWidth = 84;
constexpr int controlWidth = 60;
constexpr int controlHeight = 22;

// In the order of the shapes that the drawer knows.
constexpr const char *shapes[] = {QT_TRANSLATE_NOOP("AdvancedSetup", "常规"),
                                  QT_TRANSLATE_NOOP("AdvancedSetup", "加粗"),
                                  QT_TRANSLATE_NOOP("AdvancedSetup", "斜体")};

// In the order of the items.
struct Control
{
    const char *name;
    const char *caption;
};

constexpr Control controls[] = {
    {"boxFontSize", QT_TRANSLATE_NOOP("AdvancedSetup", "大小")},
    {"boxBeginRow", QT_TRANSLATE_NOOP("AdvancedSetup", "行起始数")},
    {"boxBeginColumn", QT_TRANSLATE_NOOP("AdvancedSetup", "列起始数")},
    {"boxModeWidth", QT_TRANSLATE_NOOP("AdvancedSetup", "模块线宽")},
    {"boxScanWidth", QT_TRANSLATE_NOOP("AdvancedSetup", "扫描版线宽")},
    {"comboFontShape", QT_TRANSLATE_NOOP("AdvancedSetup", "字形")},
};

} // namespace

AdvancedSetup::AdvancedSetup(QSettings *settings, ScrGrid *drawer, QWidget *parent)
    : SettingsDialog("AdvancedSetup", dialogSize, parent)
    , m_settings(settings)
    , m_drawer(drawer)
{
    m_titleBar->setStyleSheet(QStringLiteral("background-color:rgb(48,50,56)"));
    setWindowModality(Qt::WindowModal);
    setCancelButtonVisible(false);
    m_okButton->setAutoDefault(false);
    initLayout();
    scaleToDesktop();
    dataInit();
    ControlInit();
    updateLanguage();
    uiInit();
}

void AdvancedSetup::initLayout()
{
    for (QSpinBox *&box : m_boxes) {
        box = new QSpinBox;
        SliderSpinBoxPair::prepare(box);
    }
    m_fontHeader->setMaximumWidth(headerWidth);
    auto *column = new QVBoxLayout;
    column->setContentsMargins(contentMargin, contentMargin, contentMargin, contentMargin);
    column->setSpacing(rowSpacing);
    column->addWidget(m_fontHeader);
    column->addLayout(layOut({Item::FontSize, Item::FontShape}));
    column->addWidget(createSeparator());
    column->addLayout(
        layOut({Item::BeginRow, Item::BeginColumn, Item::ModuleLine, Item::ScanLine}));
    column->addWidget(createSeparator("ContentSplitLabel"));
    setLayout(column);
}

// Two pairs of a caption and a control in each row.
QLayout *AdvancedSetup::layOut(const QVector<AdvancedValue::Item> &items)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(0);
    grid->setVerticalSpacing(rowSpacing);
    grid->setColumnMinimumWidth(2, pairSpacing);
    grid->setColumnStretch(4, 1);
    for (int place = 0; place < items.size(); ++place) {
        const Item item = items.at(place);
        QWidget *control = m_shapeCombo;
        if (item != Item::FontShape)
            control = m_boxes.at(item);
        control->setObjectName(QLatin1String(controls[item].name));
        control->setFixedHeight(controlHeight);
        const bool isFirst = place % 2 == 0;
        if (isFirst)
            control->setFixedWidth(controlWidth);
        auto *caption = m_captions.at(item) = new QLabel;
        caption->setFixedWidth(captionWidth);
        caption->setBuddy(control);
        grid->addWidget(caption, place / 2, isFirst ? 0 : 3);
        grid->addWidget(control, place / 2, isFirst ? 1 : 4);
    }
    return grid;
}

void AdvancedSetup::dataInit()
{
    for (int item = 0; item < AdvancedValue::itemCount; ++item) {
        const AdvancedValue &value = advancedValues.at(item);
        m_values.at(item) =
            m_settings ? value.stored(*m_settings).value_or(value.initial) : value.initial;
    }
    int &shape = m_values.at(Item::FontShape);
    if (shape < 0 || shape >= int(std::size(shapes)))
        shape = 0;
}

// What is stored shows on the test window again. Specified: the drawer takes it as it is, the
// boxes within their limits.
void AdvancedSetup::ControlInit()
{
    if (!m_drawer)
        return;
    for (int item = 0; item < AdvancedValue::itemCount; ++item) {
        const AdvancedValue &value = advancedValues.at(item);
        if (item < boxCount) {
            m_boxes.at(item)->setRange(value.minimum, value.maximum);
            m_boxes.at(item)->setValue(m_values.at(item));
        }
        m_drawer->*value.field = m_values.at(item);
    }
    for (const char *shape : shapes)
        m_shapeCombo->addItem(tr(shape));
    m_shapeCombo->setCurrentIndex(m_values.at(Item::FontShape));
    m_drawer->active = true;
    m_drawer->update();
}

// After the controls have their values, so that this stores nothing.
void AdvancedSetup::uiInit()
{
    using Slot = void (AdvancedSetup::*)(int);
    const Slot slotsOfBoxes[boxCount] = {&AdvancedSetup::slot_boxFontSizeValueChanged,
                                         &AdvancedSetup::slot_boxBeginRowValueChanged,
                                         &AdvancedSetup::slot_boxBeginColumnValueChanged,
                                         &AdvancedSetup::slot_boxModeWidthValueChanged,
                                         &AdvancedSetup::slot_boxScanWidthValueChanged};
    for (int item = 0; item < boxCount; ++item)
        connect(m_boxes.at(item), qOverload<int>(&QSpinBox::valueChanged), this,
                slotsOfBoxes[item]);
    connect(m_shapeCombo, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &AdvancedSetup::slot_comboFontShapeCurrentIndexChanged);
    connect(m_okButton, &QPushButton::clicked, this, &AdvancedSetup::slot_closeWindow);
}

void AdvancedSetup::updateLanguage()
{
    setWindowTitle(tr("高级设置"));
    m_fontHeader->setText(tr("字体"));
    for (int item = 0; item < AdvancedValue::itemCount; ++item) {
        QLabel *caption = m_captions.at(item);
        const QString text = tr(controls[item].caption);
        CommonHelper::setQLabelText(caption, text);
        caption->buddy()->setAccessibleName(text);
    }
    for (int shape = 0; shape < m_shapeCombo->count(); ++shape)
        m_shapeCombo->setItemText(shape, tr(shapes[shape]));
}

void AdvancedSetup::change(AdvancedValue::Item item, int value)
{
    if (!m_drawer)
        return;
    if (m_settings)
        m_settings->setValue(advancedValues.at(item).key, value);
    m_drawer->*advancedValues.at(item).field = value;
    m_drawer->active = true;
    m_drawer->update();
}
