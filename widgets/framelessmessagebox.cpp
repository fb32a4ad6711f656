#include "framelessmessagebox.h"

#include "titlebar.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>
#include <utility>

namespace UX::Widgets {

namespace {

constexpr QMargins contentMargins(12, 4, 12, 8);
constexpr int iconSpacing = 8;
constexpr int buttonSpacing = 4;

// The style's picture for icon; null for NoIcon.
QPixmap iconPixmap(QMessageBox::Icon icon, const QWidget *widget)
{
    QStyle::StandardPixmap picture = QStyle::SP_MessageBoxInformation;
    switch (icon) {
    case QMessageBox::NoIcon:
        return {};
    case QMessageBox::Information:
        break;
    case QMessageBox::Warning:
        picture = QStyle::SP_MessageBoxWarning;
        break;
    case QMessageBox::Critical:
        picture = QStyle::SP_MessageBoxCritical;
        break;
    case QMessageBox::Question:
        picture = QStyle::SP_MessageBoxQuestion;
        break;
    }
    const QStyle *style = widget->style();
    const int side = style->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, widget);
    return style->standardIcon(picture, nullptr, widget).pixmap(side, side);
}

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
    m_titleBar->setTitleButtonVisible(TitleBar::LogoButton, false);
    buildContent(icon, text);
    createButtons(buttons == QMessageBox::NoButton ? QMessageBox::Ok : buttons);
    m_titleBar->setTitleButtonVisible(TitleBar::CloseButton,
                                      escapeButton() != QMessageBox::NoButton);
}

FramelessMessageBox::~FramelessMessageBox() = default;

void FramelessMessageBox::createButtons(QMessageBox::StandardButtons buttons)
{
    // Both enumerations give the same button the same number.
    m_buttonBox->setStandardButtons(QDialogButtonBox::StandardButtons(int(buttons)));
    m_buttonBox->setCenterButtons(true);
    const QList<QAbstractButton *> all = m_buttonBox->buttons();
    for (QAbstractButton *button : all) {
        dressButton(button);
        button->setIcon(QIcon());
    }
    retranslateButtons();
    if (QPushButton *first = defaultButton()) {
        first->setDefault(true);
        first->setFocus();
    }
    connect(m_buttonBox, &QDialogButtonBox::clicked, this, &FramelessMessageBox::answer);
}

void FramelessMessageBox::buildContent(QMessageBox::Icon icon, const QString &text)
{
    auto *iconLabel = new QLabel(this);
    iconLabel->setObjectName(QStringLiteral("messageIcon"));
    const QPixmap pixmap = iconPixmap(icon, this);
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
    column->setSpacing(buttonSpacing);
    column->addLayout(message, 1);
    column->addWidget(m_buttonBox);
    setLayout(column);
}

QPushButton *FramelessMessageBox::button(QMessageBox::StandardButton which) const
{
    return m_buttonBox->button(QDialogButtonBox::StandardButton(which));
}

QMessageBox::StandardButton FramelessMessageBox::clickedButton() const
{
    return QMessageBox::StandardButton(result());
}

void FramelessMessageBox::reject()
{
    const QMessageBox::StandardButton escape = escapeButton();
    if (escape != QMessageBox::NoButton)
        done(escape);
}

void FramelessMessageBox::answer(QAbstractButton *button)
{
    done(m_buttonBox->standardButton(button));
}

bool FramelessMessageBox::event(QEvent *event)
{
    const bool handled = FramelessDialog::event(event);
    // The button box has just given its buttons the toolkit's texts again.
    if (event->type() == QEvent::LanguageChange)
        retranslateButtons();
    return handled;
}

void FramelessMessageBox::setVisible(bool visible)
{
    if (visible && !isVisible() && testAttribute(Qt::WA_Resized))
        growToText();
    FramelessDialog::setVisible(visible);
}

// A size that fits a short text must not cut off its longer translation.
void FramelessMessageBox::growToText()
{
    ensurePolished();
    const int neededHeight = heightForWidth(width());
    if (height() < neededHeight)
        resize(width(), neededHeight);
}

// The toolkit's own texts follow its own translations, which may not be installed.
void FramelessMessageBox::retranslateButtons()
{
    const std::pair<QMessageBox::StandardButton, QString> texts[] = {
        {QMessageBox::Ok, tr("确定")},    {QMessageBox::Cancel, tr("取消")},
        {QMessageBox::Yes, tr("是")},     {QMessageBox::No, tr("否")},
        {QMessageBox::Close, tr("关闭")},
    };
    for (const auto &[which, text] : texts) {
        if (QPushButton *pushButton = button(which))
            pushButton->setText(text);
    }
}

// The first button that agrees, or else any.
QPushButton *FramelessMessageBox::defaultButton() const
{
    const QList<QAbstractButton *> all = m_buttonBox->buttons();
    for (QAbstractButton *candidate : all) {
        const QDialogButtonBox::ButtonRole role = m_buttonBox->buttonRole(candidate);
        if (role == QDialogButtonBox::AcceptRole || role == QDialogButtonBox::YesRole)
            return qobject_cast<QPushButton *>(candidate);
    }
    return all.isEmpty() ? nullptr : qobject_cast<QPushButton *>(all.first());
}

// The only button, Cancel, the only one that rejects, or the only No, in this order.
QMessageBox::StandardButton FramelessMessageBox::escapeButton() const
{
    const QList<QAbstractButton *> all = m_buttonBox->buttons();
    if (all.size() == 1)
        return QMessageBox::StandardButton(m_buttonBox->standardButton(all.first()));
    if (button(QMessageBox::Cancel))
        return QMessageBox::Cancel;
    for (const auto role : {QDialogButtonBox::RejectRole, QDialogButtonBox::NoRole}) {
        QList<QAbstractButton *> candidates;
        std::copy_if(
            all.cbegin(), all.cend(), std::back_inserter(candidates),
            [this, role](QAbstractButton *b) { return m_buttonBox->buttonRole(b) == role; });
        if (candidates.size() == 1)
            return QMessageBox::StandardButton(m_buttonBox->standardButton(candidates.first()));
    }
    return QMessageBox::NoButton;
}

} // namespace UX::Widgets
