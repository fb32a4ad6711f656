#pragma once

#include <QAccessibleWidget>

class QAbstractButton;

// What assistive technology sees of a button, and does to it: toggling a checkable one is clicking
// it. Qt's own would only change its look, since the panels act on clicks.
class AccessibleButton : public QAccessibleWidget
{
public:
    // For every button from now on, but for tool buttons. A button may become checkable later.
    static void install();

    explicit AccessibleButton(QAbstractButton *button);

    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    QAbstractButton *button() const;
};
