#include "panelrig.h"

#include "savesoon.h"

#include <QLabel>
#include <QtTest>

void addColorRows(int count)
{
    static const char *const names[] = {"red",    "green", "blue",  "white",
                                        "yellow", "cyan",  "purple"};
    QTest::addColumn<int>("index");
    for (int index = 0; index < count; ++index)
        QTest::newRow(names[index]) << index;
}

QAbstractButton *AnyPanelRig::colorButton(int index) const
{
    static const char *const names[] = {"radioButtonRed",   "radioButtonGreen",  "radioButtonBlue",
                                        "radioButtonWhite", "radioButtonYellow", "radioButtonCyan",
                                        "radioButtonPurple"};
    return child<QAbstractButton>(names[index]);
}

int AnyPanelRig::checkedColor() const
{
    int checked = -1;
    for (int index = 0; index < colorCount; ++index) {
        if (colorButton(index)->isChecked() && checked >= 0)
            qFatal("more than one colour is checked");
        if (colorButton(index)->isChecked())
            checked = index;
    }
    return checked;
}

void AnyPanelRig::click(QWidget *control) const
{
    // At the left, where a radio button or a check box has its indicator.
    QTest::mouseClick(control, Qt::LeftButton, Qt::NoModifier, QPoint(8, control->height() / 2));
}

void AnyPanelRig::operate(const QString &control, const QVariant &value) const
{
    QWidget *found = widget()->findChild<QWidget *>(control);
    const auto buttons = widget()->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (button->text() == control)
            found = button;
    }
    if (!found && QMetaObject::invokeMethod(widget(), control.toLatin1()))
        return;
    if (!found || !found->isEnabled())
        qFatal("the operator cannot reach %s", qPrintable(control));
    if (!value.isValid())
        click(found);
    else if (!found->setProperty("value", value))
        qFatal("%s has no value", qPrintable(control));
}

QString AnyPanelRig::textOf(const QWidget *control)
{
    const bool hasText =
        qobject_cast<const QLabel *>(control) || qobject_cast<const QAbstractButton *>(control);
    return hasText ? control->property("text").toString() : QString();
}

QStringList AnyPanelRig::texts() const
{
    QStringList all;
    const auto controls = widget()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *control : controls) {
        const QString text = textOf(control);
        all << (text.isEmpty() ? control->accessibleName() : text);
    }
    all.removeAll(QString());
    return all;
}

bool AnyPanelRig::isSaveDue() const
{
    return widget()->findChild<SaveSoon *>()->isDue();
}
