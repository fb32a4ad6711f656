#include "commonhelper.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QStyleOption>
#include <QTabBar>
#include <QTest>
#include <QToolButton>
#include <QVariant>

#include <functional>
#include <memory>

namespace {

constexpr QSize canvasSize(90, 42);
constexpr QStyle::State normal = QStyle::State_Enabled | QStyle::State_Active;
constexpr QStyle::State horizontal = QStyle::State_Horizontal;
constexpr QStyle::State hover = normal | QStyle::State_MouseOver;
constexpr QStyle::State pressed = hover | QStyle::State_Sunken;
constexpr QStyle::State focused = normal | QStyle::State_HasFocus;
constexpr QStyle::State disabled = QStyle::State_None;

QVector<QStyle::State> with(QStyle::State extra, QVector<QStyle::State> states)
{
    for (QStyle::State &state : states)
        state |= extra;
    return states;
}

// Paints a widget in a state that it need not be in.
using Painting = std::function<void(QPainter &, QStyle::State)>;

template<typename Option>
Option optionFor(const QWidget *widget, QStyle::State state)
{
    Option option;
    option.initFrom(widget);
    option.rect = QRect(QPoint(), canvasSize);
    option.state = state;
    return option;
}

} // namespace

Q_DECLARE_METATYPE(Painting)
Q_DECLARE_METATYPE(QVector<QStyle::State>)

// Every control looks different in each of the states that the operator has to tell apart.
class TestStyleSheetStates : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void states_canBeToldApart_data();
    void states_canBeToldApart();

private:
    template<typename Widget>
    Widget *add(const char *objectName = "", const char *property = nullptr);
    void addButtons();
    void addIndicators();
    void addComplexControls();
    void addItems();
    void addRow(const char *name, const Painting &painting, const QVector<QStyle::State> &states);

    QWidget m_window;
};

void TestStyleSheetStates::initTestCase()
{
    m_window.setStyleSheet(CommonHelper::setStyle(QStringLiteral(":/qss/global_style.css")));
}

template<typename Widget>
Widget *TestStyleSheetStates::add(const char *objectName, const char *property)
{
    auto *widget = new Widget(&m_window);
    widget->setObjectName(QLatin1String(objectName));
    if (property)
        widget->setProperty(property, true);
    widget->ensurePolished();
    return widget;
}

void TestStyleSheetStates::addRow(const char *name, const Painting &painting,
                                  const QVector<QStyle::State> &states)
{
    QTest::newRow(name) << painting << states;
}

void TestStyleSheetStates::addButtons()
{
    const auto painting = [](QPushButton *button) -> Painting {
        return [button](QPainter &painter, QStyle::State state) {
            auto option = optionFor<QStyleOptionButton>(button, state);
            option.text = QStringLiteral("T");
            button->style()->drawControl(QStyle::CE_PushButton, &option, &painter, button);
        };
    };
    const QVector<QStyle::State> unchecked{normal, hover, pressed, focused, disabled};
    const QVector<QStyle::State> all{normal,
                                     hover,
                                     pressed,
                                     focused,
                                     disabled,
                                     normal | QStyle::State_On,
                                     focused | QStyle::State_On};
    addRow("push button", painting(add<QPushButton>()), all);
    addRow("dialog button", painting(add<QPushButton>("DialogPushBtn")), unchecked);
    addRow("start button", painting(add<QPushButton>("beginPushBtn")), all);
    addRow("pill", painting(add<QPushButton>("pushButtonOld")),
           all + QVector<QStyle::State>{disabled | QStyle::State_On});
    addRow("swatch", painting(add<QPushButton>("radioButtonRed")), all);
    addRow("lamp", painting(add<QPushButton>("signalGreenButton")), {normal, hover, focused});
    addRow("colour picker", painting(add<QPushButton>("buttonFont")), unchecked);

    const auto toolPainting = [](QToolButton *button) -> Painting {
        return [button](QPainter &painter, QStyle::State state) {
            auto option = optionFor<QStyleOptionToolButton>(button, state | QStyle::State_Raised);
            option.subControls = QStyle::SC_ToolButton;
            option.activeSubControls = QStyle::SC_ToolButton;
            button->style()->drawComplexControl(QStyle::CC_ToolButton, &option, &painter, button);
        };
    };
    addRow("tool button", toolPainting(add<QToolButton>()), all);
    for (const char *name : {"isTitleBarMinButton", "isTitleBarMaxButton",
                             "isTitleBarRestoreButton", "isTitleBarCloseButton"})
        addRow(name, toolPainting(add<QToolButton>("", name)), {normal, hover, pressed});
}

void TestStyleSheetStates::addIndicators()
{
    const auto painting = [](QWidget *box, QStyle::ControlElement element) -> Painting {
        return [box, element](QPainter &painter, QStyle::State state) {
            auto option = optionFor<QStyleOptionButton>(box, state);
            option.text = QStringLiteral("T");
            box->style()->drawControl(element, &option, &painter, box);
        };
    };
    const QVector<QStyle::State> states{normal, hover, pressed, focused, disabled};
    const QVector<QStyle::State> all =
        with(QStyle::State_Off, states) + with(QStyle::State_On, states);
    addRow("check box", painting(add<QCheckBox>(), QStyle::CE_CheckBox), all);
    addRow("radio button", painting(add<QRadioButton>(), QStyle::CE_RadioButton), all);
}

void TestStyleSheetStates::addComplexControls()
{
    auto *spinBox = add<QSpinBox>();
    for (const QStyle::SubControl arrow : {QStyle::SC_SpinBoxUp, QStyle::SC_SpinBoxDown}) {
        const Painting painting = [spinBox, arrow](QPainter &painter, QStyle::State state) {
            auto option = optionFor<QStyleOptionSpinBox>(spinBox, state);
            option.frame = true;
            option.subControls = QStyle::SC_All;
            option.stepEnabled =
                QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
            option.activeSubControls = arrow;
            spinBox->style()->drawComplexControl(QStyle::CC_SpinBox, &option, &painter, spinBox);
        };
        addRow(arrow == QStyle::SC_SpinBoxUp ? "spin box, up" : "spin box, down", painting,
               {normal, hover, pressed, focused, disabled});
    }

    auto *combo = add<QComboBox>();
    addRow("combo box",
           [combo](QPainter &painter, QStyle::State state) {
               auto option = optionFor<QStyleOptionComboBox>(combo, state);
               option.subControls = QStyle::SC_All;
               combo->style()->drawComplexControl(QStyle::CC_ComboBox, &option, &painter, combo);
           },
           {normal, hover, normal | QStyle::State_On, focused, disabled});

    auto *slider = new QSlider(Qt::Horizontal, &m_window);
    slider->ensurePolished();
    auto *bar = add<QScrollBar>();
    const auto painting = [](QWidget *widget, QStyle::ComplexControl control,
                             QStyle::SubControl part, bool isFlat) -> Painting {
        return [=](QPainter &painter, QStyle::State state) {
            auto option = optionFor<QStyleOptionSlider>(widget, state);
            if (!isFlat)
                option.rect = QRect(0, 0, 12, 90);
            option.orientation = isFlat ? Qt::Horizontal : Qt::Vertical;
            option.maximum = 10;
            option.pageStep = 5;
            option.sliderPosition = option.sliderValue = 5;
            option.subControls = QStyle::SC_All;
            option.activeSubControls = part;
            widget->style()->drawComplexControl(control, &option, &painter, widget);
        };
    };
    addRow("slider", painting(slider, QStyle::CC_Slider, QStyle::SC_SliderHandle, true),
           with(horizontal, {normal, hover, pressed, focused, disabled}));
    addRow("scroll bar", painting(bar, QStyle::CC_ScrollBar, QStyle::SC_ScrollBarSlider, false),
           {normal, hover, pressed, disabled});
    addRow("scroll bar, arrow",
           painting(bar, QStyle::CC_ScrollBar, QStyle::SC_ScrollBarAddLine, false),
           {normal, hover, pressed, disabled});
}

void TestStyleSheetStates::addItems()
{
    auto *tabs = add<QTabBar>();
    addRow("tab",
           [tabs](QPainter &painter, QStyle::State state) {
               auto option = optionFor<QStyleOptionTab>(tabs, state);
               option.text = QStringLiteral("T");
               tabs->style()->drawControl(QStyle::CE_TabBarTab, &option, &painter, tabs);
           },
           {normal, hover, normal | QStyle::State_Selected, focused | QStyle::State_Selected,
            disabled});
    auto *menu = add<QMenu>();
    addRow("menu item",
           [menu](QPainter &painter, QStyle::State state) {
               auto option = optionFor<QStyleOptionMenuItem>(menu, state);
               option.text = QStringLiteral("T");
               option.checkType = QStyleOptionMenuItem::NonExclusive;
               option.checked = state & QStyle::State_On;
               menu->style()->drawControl(QStyle::CE_MenuItem, &option, &painter, menu);
           },
           {normal, normal | QStyle::State_Selected,
            normal | QStyle::State_Selected | QStyle::State_Sunken, normal | QStyle::State_On,
            disabled, disabled | QStyle::State_On});
}

void TestStyleSheetStates::states_canBeToldApart_data()
{
    QTest::addColumn<Painting>("painting");
    QTest::addColumn<QVector<QStyle::State>>("states");
    addButtons();
    addIndicators();
    addComplexControls();
    addItems();
}

void TestStyleSheetStates::states_canBeToldApart()
{
    QFETCH(const Painting, painting);
    QFETCH(const QVector<QStyle::State>, states);
    QVector<QImage> pictures;
    for (const QStyle::State state : states) {
        QImage picture(canvasSize.expandedTo(QSize(12, 90)), QImage::Format_RGB32);
        picture.fill(qRgb(48, 50, 56));
        QPainter painter(&picture);
        painting(painter, state);
        painter.end();
        for (int before = 0; before < pictures.size(); ++before)
            QVERIFY2(pictures.at(before) != picture,
                     qPrintable(QStringLiteral("state %1 looks like state %2")
                                    .arg(pictures.size())
                                    .arg(before)));
        pictures << picture;
    }
}

QTEST_MAIN(TestStyleSheetStates)
#include "tst_stylesheet_states.moc"
