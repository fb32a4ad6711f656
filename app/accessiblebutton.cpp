#include "accessiblebutton.h"

#include <QPushButton>
#include <QToolButton>

namespace {

QAccessibleInterface *create(const QString & /*className*/, QObject *object)
{
    auto *button = qobject_cast<QAbstractButton *>(object);
    return button && !qobject_cast<QToolButton *>(object) ? new AccessibleButton(button) : nullptr;
}

} // namespace

void AccessibleButton::install()
{
    QAccessible::installFactory(create);
}

AccessibleButton::AccessibleButton(QAbstractButton *button)
    : QAccessibleWidget(button)
{ }

QAbstractButton *AccessibleButton::button() const
{
    return static_cast<QAbstractButton *>(object());
}

QAccessible::Role AccessibleButton::role() const
{
    if (!button()->isCheckable())
        return QAccessible::PushButton;
    return button()->autoExclusive() ? QAccessible::RadioButton : QAccessible::CheckBox;
}

QAccessible::State AccessibleButton::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    const auto *pushButton = qobject_cast<QPushButton *>(object());
    state.defaultButton = pushButton && pushButton->isDefault();
    state.checkable = button()->isCheckable();
    state.checked = button()->isChecked();
    state.pressed = button()->isDown();
    return state;
}

QString AccessibleButton::text(QAccessible::Text kind) const
{
    const QString text = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && text.isEmpty() ? button()->text() : text;
}

QStringList AccessibleButton::actionNames() const
{
    if (!button()->isEnabled())
        return {};
    return {button()->isCheckable() ? toggleAction() : pressAction(), setFocusAction()};
}

void AccessibleButton::doAction(const QString &name)
{
    if (name == toggleAction() || name == pressAction())
        button()->click(); // which a disabled one ignores
    else
        QAccessibleWidget::doAction(name);
}
