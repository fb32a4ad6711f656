#include "accessiblebutton.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QtTest>

#include <memory>

// Buttons that an assistive technology operates.
class tst_AccessibleButton : public QObject
{
    Q_OBJECT

private slots:
    void checkableButton_looksAsToQt_data();
    void checkableButton_looksAsToQt();
    void action_isAClick();
    void toggle_ofADisabledButtonDoesNothing();
    void toolButton_staysQts();

private:
    static QAccessibleInterface *interface(QObject *object)
    {
        return QAccessible::queryAccessibleInterface(object);
    }
};

namespace {

std::unique_ptr<QAbstractButton> makeButton(const QString &kind, bool checked, const QString &name)
{
    std::unique_ptr<QAbstractButton> button;
    if (kind == QLatin1String("radio button"))
        button = std::make_unique<QRadioButton>();
    else if (kind == QLatin1String("check box"))
        button = std::make_unique<QCheckBox>();
    else
        button = std::make_unique<QPushButton>();
    button->setText(QStringLiteral("Red"));
    button->setCheckable(kind != QLatin1String("plain button"));
    button->setChecked(checked);
    button->setDown(checked);
    if (auto *pushButton = qobject_cast<QPushButton *>(button.get()))
        pushButton->setDefault(checked);
    button->setAccessibleName(name);
    return button;
}

// What assistive technology is told of a button.
QString described(QAbstractButton &button)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&button);
    const QAccessible::State state = interface->state();
    return QStringLiteral("%1 \"%2\" checkable %3 checked %4 disabled %5 focusable %6 "
                          "default %7 pressed %8")
        .arg(interface->role())
        .arg(interface->text(QAccessible::Name))
        .arg(state.checkable)
        .arg(state.checked)
        .arg(state.disabled)
        .arg(state.focusable)
        .arg(state.defaultButton)
        .arg(state.pressed);
}

} // namespace

// Qt's own words are taken before the factory is there.
void tst_AccessibleButton::checkableButton_looksAsToQt_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("description");

    for (const char *kind : {"radio button", "check box", "push button", "plain button"}) {
        for (const bool checked : {false, true}) {
            for (const char *name : {"", "Pure red"}) {
                const auto button = makeButton(QLatin1String(kind), checked, QLatin1String(name));
                QTest::addRow("%s, %d, \"%s\"", kind, checked, name)
                    << QString(QLatin1String(kind)) << checked << QString(QLatin1String(name))
                    << described(*button);
            }
        }
    }
}

void tst_AccessibleButton::checkableButton_looksAsToQt()
{
    QFETCH(QString, kind);
    QFETCH(bool, checked);
    QFETCH(QString, name);
    AccessibleButton::install();
    const auto button = makeButton(kind, checked, name);
    QVERIFY(dynamic_cast<AccessibleButton *>(interface(button.get())));
    QTEST(described(*button), "description");
    const QString action = button->isCheckable() ? QAccessibleActionInterface::toggleAction()
                                                 : QAccessibleActionInterface::pressAction();
    QVERIFY(interface(button.get())->actionInterface()->actionNames().contains(action));
}

void tst_AccessibleButton::action_isAClick()
{
    AccessibleButton::install();
    QPushButton button;
    const QSignalSpy clicked(&button, &QPushButton::clicked);
    interface(&button)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicked.count(), 1);
    button.setCheckable(true);
    interface(&button)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCOMPARE(clicked.count(), 2);
    QVERIFY(button.isChecked());
    button.show();
    QVERIFY(QTest::qWaitForWindowActive(&button));
    button.clearFocus();
    interface(&button)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(button.hasFocus());
}

void tst_AccessibleButton::toggle_ofADisabledButtonDoesNothing()
{
    AccessibleButton::install();
    QPushButton button;
    button.setCheckable(true);
    button.setEnabled(false);
    QVERIFY(interface(&button)->actionInterface()->actionNames().isEmpty());
    interface(&button)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(!button.isChecked());
}

void tst_AccessibleButton::toolButton_staysQts()
{
    AccessibleButton::install();
    QToolButton button;
    QVERIFY(!dynamic_cast<AccessibleButton *>(interface(&button)));
    QVERIFY(interface(&button));
}

QTEST_MAIN(tst_AccessibleButton)
#include "tst_accessiblebutton.moc"
