#include "framelessmessagebox.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace UX::Widgets {

namespace {

constexpr QMargins contentMargins(12, 4, 12, 8);
constexpr int iconSpacing = 8;
constexpr int rowSpacing = 4;

} // namespace

FramelessMessageBox::FramelessMessageBox(QMessageBox::Icon icon, const QString &title,
                                         const QString &text, QMessageBox::StandardButtons buttons,
                                         QWidget *parent, Qt::WindowFlags f)
    : FramelessDialog(parent, f)
    , m_buttonBox(new QDialogButtonBox(this))
{
    setWindowTitle(title);
    setModal(true);
    setOKButtonVisible(false);
    setCancelButtonVisible(false);
    buildContent(icon, text);
    createButtons(buttons == QMessageBox::NoButton ? QMessageBox::Ok : buttons);
}

void FramelessMessageBox::createButtons(QMessageBox::StandardButtons buttons)
{
    // Both enumerations give the same button the same number.
    m_buttonBox->setStandardButtons(QDialogButtonBox::StandardButtons(int(buttons)));
    m_buttonBox->setCenterButtons(true);
    const QList<QAbstractButton *> all = m_buttonBox->buttons();
    for (QAbstractButton *button : all) {
        styleButton(button);
        button->setIcon(QIcon());
    }
    connect(m_buttonBox, &QDialogButtonBox::clicked, this,
            [this](QAbstractButton *button) { done(m_buttonBox->standardButton(button)); });
}

void FramelessMessageBox::buildContent(QMessageBox::Icon icon, const QString &text)
{
    auto *iconLabel = new QLabel(this);
    iconLabel->setObjectName(QStringLiteral("messageIcon"));
    const QPixmap pixmap = QMessageBox(icon, QString(), QString()).iconPixmap();
    iconLabel->setPixmap(pixmap);
    iconLabel->setVisible(!pixmap.isNull());

    auto *textLabel = new QLabel(text, this);
    textLabel->setObjectName(QStringLiteral("messageText"));
    textLabel->setWordWrap(true);

    auto *message = new QHBoxLayout;
    message->setSpacing(iconSpacing);
    message->addWidget(iconLabel);
    message->addWidget(textLabel, 1);

    auto *column = new QVBoxLayout;
    column->setContentsMargins(contentMargins);
    column->setSpacing(rowSpacing);
    column->addLayout(message, 1);
    column->addWidget(m_buttonBox);
    setLayout(column);
}

QPushButton *FramelessMessageBox::button(QMessageBox::StandardButton which) const
{
    return m_buttonBox->button(QDialogButtonBox::StandardButton(which));
}

// A size that fits a short text must not cut off its longer translation.
void FramelessMessageBox::setVisible(bool visible)
{
    if (visible)
        scaleToDesktop();
    if (visible && !isVisible() && testAttribute(Qt::WA_Resized)) {
        ensurePolished();
        resize(width(), qMax(height(), heightForWidth(width())));
    }
    FramelessDialog::setVisible(visible);
}

} // namespace UX::Widgets
