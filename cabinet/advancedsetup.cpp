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

#include <utility>

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
constexpr int shapeCount = 3;

constexpr const char *boxNames[] = {"boxFontSize", "boxBeginRow", "boxBeginColumn", "boxModeWidth",
                                    "boxScanWidth"};

// Two pairs of a caption and a control in each row.
QGridLayout *createGrid()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(0);
    grid->setVerticalSpacing(rowSpacing);
    grid->setColumnMinimumWidth(2, pairSpacing);
    grid->setColumnStretch(4, 1);
    return grid;
}

void addPair(QGridLayout *grid, int row, int pair, QLabel *caption, QWidget *control)
{
    caption->setFixedWidth(captionWidth);
    caption->setBuddy(control);
    control->setFixedHeight(controlHeight);
    if (pair == 0)
        control->setFixedWidth(controlWidth);
    grid->addWidget(caption, row, 3 * pair);
    grid->addWidget(control, row, 3 * pair + 1);
}

} // namespace

AdvancedSetup::AdvancedSetup(QSettings *settings, ScrGrid *drawer, QWidget *parent)
    : SettingsDialog("AdvancedSetup", dialogSize, parent)
    , m_settings(settings)
    , m_drawer(drawer)
{
    initFrame();
    initLayout();
    dataInit();
    ControlInit();
    updateLanguage();
    uiInit();
}

AdvancedSetup::~AdvancedSetup() = default;

void AdvancedSetup::initFrame()
{
    m_titleBar->setStyleSheet(QStringLiteral("background-color:rgb(48,50,56)"));
    setWindowModality(Qt::WindowModal);
    setCancelButtonVisible(false);
    m_okButton->setAutoDefault(false);
}

void AdvancedSetup::initLayout()
{
    m_fontHeader = new QLabel;
    m_fontHeader->setMaximumWidth(headerWidth);
    for (QLabel *&caption : m_captions)
        caption = new QLabel;
    for (int item = 0; item < boxCount; ++item) {
        auto *box = new QSpinBox;
        box->setObjectName(QLatin1String(boxNames[item]));
        SliderSpinBoxPair::prepare(box);
        m_boxes.at(item) = box;
    }
    m_shapeCombo = new QComboBox;
    m_shapeCombo->setObjectName(QStringLiteral("comboFontShape"));

    auto *column = new QVBoxLayout;
    column->setContentsMargins(contentMargin, contentMargin, contentMargin, contentMargin);
    column->setSpacing(rowSpacing);
    column->addWidget(m_fontHeader);
    column->addLayout(layOutFont());
    column->addWidget(createSeparator());
    column->addLayout(layOutNumbersAndLines());
    column->addWidget(createSeparator("ContentSplitLabel"));
    setLayout(column);
}

QLayout *AdvancedSetup::layOutFont()
{
    QGridLayout *grid = createGrid();
    addPair(grid, 0, 0, m_captions.at(Item::FontSize), m_boxes.at(Item::FontSize));
    addPair(grid, 0, 1, m_captions.at(Item::FontShape), m_shapeCombo);
    return grid;
}

QLayout *AdvancedSetup::layOutNumbersAndLines()
{
    QGridLayout *grid = createGrid();
    const Item places[2][2] = {{Item::BeginRow, Item::BeginColumn},
                               {Item::ModuleLineWidth, Item::ScanLineWidth}};
    for (int row = 0; row < 2; ++row) {
        for (int pair = 0; pair < 2; ++pair) {
            const Item item = places[row][pair];
            addPair(grid, row, pair, m_captions.at(item), m_boxes.at(item));
        }
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
    if (shape < 0 || shape >= shapeCount)
        shape = 0;
}

// What is stored shows on the test window again. The drawer takes it as it is, the boxes within
// their limits; wanted.
void AdvancedSetup::ControlInit()
{
    if (!m_drawer)
        return;
    for (int item = 0; item < boxCount; ++item) {
        const AdvancedValue &value = advancedValues.at(item);
        m_boxes.at(item)->setRange(value.minimum, value.maximum);
        m_boxes.at(item)->setValue(m_values.at(item));
    }
    for (int shape = 0; shape < shapeCount; ++shape)
        m_shapeCombo->addItem(QString());
    m_shapeCombo->setCurrentIndex(m_values.at(Item::FontShape));
    for (int item = 0; item < AdvancedValue::itemCount; ++item)
        m_drawer->*advancedValues.at(item).field = m_values.at(item);
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
    m_okButton->disconnect(this);
    connect(m_okButton, &QPushButton::clicked, this, &AdvancedSetup::slot_closeWindow);
}

void AdvancedSetup::updateLanguage()
{
    setWindowTitle(tr("高级设置"));
    m_fontHeader->setText(tr("字体"));
    const std::pair<Item, QString> captions[] = {
        {Item::FontSize, tr("大小")},
        {Item::FontShape, tr("字形")},
        {Item::BeginRow, tr("行起始数")},
        {Item::BeginColumn, tr("列起始数")},
        {Item::ModuleLineWidth, tr("模块线宽")},
        {Item::ScanLineWidth, tr("扫描版线宽")},
    };
    for (const auto &[item, text] : captions) {
        QLabel *caption = m_captions.at(item);
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

void AdvancedSetup::slot_closeWindow()
{
    close();
}

void AdvancedSetup::slot_boxFontSizeValueChanged(int size)
{
    change(Item::FontSize, size);
}

void AdvancedSetup::slot_boxBeginRowValueChanged(int row)
{
    change(Item::BeginRow, row);
}

void AdvancedSetup::slot_boxBeginColumnValueChanged(int column)
{
    change(Item::BeginColumn, column);
}

void AdvancedSetup::slot_boxModeWidthValueChanged(int width)
{
    change(Item::ModuleLineWidth, width);
}

void AdvancedSetup::slot_boxScanWidthValueChanged(int width)
{
    change(Item::ScanLineWidth, width);
}

void AdvancedSetup::slot_comboFontShapeCurrentIndexChanged(int shape)
{
    change(Item::FontShape, shape);
}
