#include "mainwindowrig.h"
#include "rows.h"
#include "titlebar.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QLabel>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

// What people who do not see the controls are told of them, and the way the focus takes.
class TestAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyControlWithoutAText_hasAnAccessibleName();
    void titleBarButtons_haveAccessibleNames();
    void buttonToggledByItsAction_isClicked();
    void scrollButtonsOfTheTabs_haveNoNames();
    void focusOrder_followsTheEye_data();
    void focusOrder_followsTheEye();

private:
    static bool needsName(const QWidget *widget);
    static QVector<QWidget *> focusOrder(QWidget *panel);

    MainWindowRig m_rig;
};

void TestAccessibility::initTestCase()
{
    m_rig.start();
    m_rig.window().updateLanguage();
}

// A control whose own text, if it has one, does not say what it is.
bool TestAccessibility::needsName(const QWidget *widget)
{
    if (qobject_cast<const QAbstractSlider *>(widget))
        return widget->parentWidget()->inherits("QWidget")
               && !widget->parentWidget()->inherits("QAbstractScrollArea")
               && !widget->inherits("QScrollBar");
    if (qobject_cast<const QAbstractSpinBox *>(widget))
        return true;
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    if (!button || widget->parentWidget()->inherits("QTabBar"))
        return false;
    return button->text().isEmpty()
           || widget->objectName().startsWith(QLatin1String("radioButton"));
}

void TestAccessibility::everyControlWithoutAText_hasAnAccessibleName()
{
    int checked = 0;
    const QList<QWidget *> widgets = m_rig.tabs()->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!needsName(widget))
            continue;
        ++checked;
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        const bool namedByText = button && !button->text().isEmpty()
                                 && !button->text().contains(QChar(0x2026))
                                 && !button->inherits("SwatchButton");
        QVERIFY2(namedByText || !widget->accessibleName().isEmpty(),
                 qPrintable(widget->objectName()));
    }
    QVERIFY(checked > 40);
}

void TestAccessibility::titleBarButtons_haveAccessibleNames()
{
    const UX::Widgets::TitleBar *bar = m_rig.window().titleBar();
    for (const int id : {UX::Widgets::TitleBar::MinButton, UX::Widgets::TitleBar::CloseButton})
        QVERIFY(!bar->titleButton(id)->accessibleName().isEmpty());
}

void TestAccessibility::buttonToggledByItsAction_isClicked()
{
    auto *button = m_rig.find<QAbstractButton>("radioButtonRed");
    const QSignalSpy clicked(button, &QAbstractButton::clicked);
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(button);
    interface->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCOMPARE(clicked.size(), 1);
}

void TestAccessibility::scrollButtonsOfTheTabs_haveNoNames()
{
    const auto buttons = m_rig.tabs()->tabBar()->findChildren<QAbstractButton *>();
    QCOMPARE(buttons.size(), 2);
    for (const QAbstractButton *button : buttons)
        QCOMPARE(button->accessibleName(), QString());
}

// The widgets of the panel that take the focus by the Tab key, in that order.
QVector<QWidget *> TestAccessibility::focusOrder(QWidget *panel)
{
    QVector<QWidget *> order;
    for (QWidget *widget = panel->nextInFocusChain(); widget != panel;
         widget = widget->nextInFocusChain()) {
        const bool isOfPanel = panel->isAncestorOf(widget) && widget->parentWidget() == panel;
        if (isOfPanel && (widget->focusPolicy() & Qt::TabFocus) && !widget->isHidden())
            order.append(widget);
    }
    return order;
}

void TestAccessibility::focusOrder_followsTheEye_data()
{
    const Table<int, int> row("tab", "controls");
    row("placement", 0, 10);
    row("purity", 1, 15);
    row("gradient", 2, 11);
    row("grid", 3, 20);
    row("cabinet", 4, 15);
}

// In rows from the top, each from the left. Controls of one row overlap in height.
void TestAccessibility::focusOrder_followsTheEye()
{
    QFETCH(int, tab);
    const QVector<QWidget *> order = focusOrder(m_rig.tabs()->widget(tab));
    QTEST(order.size(), "controls");
    for (int index = 1; index < order.size(); ++index) {
        const QRect before = order.at(index - 1)->geometry();
        const QRect now = order.at(index)->geometry();
        const bool sameRow =
            before.top() <= now.center().y() && now.center().y() <= before.bottom();
        const bool follows = sameRow ? now.left() > before.left() : now.top() > before.top();
        QVERIFY2(follows, qPrintable(order.at(index - 1)->objectName() + QStringLiteral(" before ")
                                     + order.at(index)->objectName()));
    }
}

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
