#include "titlebar.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QToolButton>
#include <QVariant>

namespace UX::Widgets {

namespace {

constexpr int barHeight = 28;
constexpr int logoSide = 16;
constexpr int titleIndent = 8;

// What the buttons are called by the style sheet and by their images, in the order of ButtonId.
constexpr const char *properties[] = {"isTitleBarLogoButton", "isTitleBarMinButton",
                                      "isTitleBarMaxButton", "isTitleBarRestoreButton",
                                      "isTitleBarCloseButton"};
constexpr const char *images[] = {"", "mix", "max", "return", "close"};

QIcon buttonIcon(int id)
{
    const QString path =
        QStringLiteral(":/Resource/Image/titleBar/btn_%1_%2.png").arg(QLatin1String(images[id]));
    QIcon icon(path.arg(QLatin1String("normal")));
    icon.addFile(path.arg(QLatin1String("hover")), QSize(), QIcon::Active);
    return icon;
}

} // namespace

TitleBar::TitleBar(QWidget *window)
    : QFrame(window)
    , m_window(window)
    , m_dragger(window)
    , m_titleLabel(new QLabel(this))
{
    setProperty("isTitleBar", true);
    setFixedHeight(barHeight);
    m_titleLabel->setProperty("isTitleBarTitle", true);
    m_titleLabel->setTextFormat(Qt::PlainText);
    m_titleLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    createButtons();
    layOut();
    retranslate();
    setTitle(window->windowTitle());
    setTitleButtonIcon(LogoButton, window->windowIcon());
    m_titleLabel->installEventFilter(this);
    window->installEventFilter(this);
}

void TitleBar::createButtons()
{
    for (int id = LogoButton; id < ButtonCount; ++id) {
        auto *button = new QToolButton(this);
        button->setProperty(properties[id], true);
        button->setFocusPolicy(Qt::NoFocus);
        button->setAutoRaise(true);
        button->setFixedSize(barHeight, barHeight);
        button->setIconSize(QSize(barHeight, barHeight));
        button->setIcon(id == LogoButton ? QIcon() : buttonIcon(id));
        m_buttons[id] = button;
    }
    m_buttons[LogoButton]->setIconSize(QSize(logoSide, logoSide));
    // The logo only shows the icon: a press on it is one on the bar, as on the title.
    m_buttons[LogoButton]->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_buttons[MinButton]->setVisible(m_window->windowType() == Qt::Window);
    for (const ButtonId id : {MaxButton, RestoreButton}) // of use where the size is not fixed
        m_buttons[id]->hide();
    connect(m_buttons[MinButton], &QToolButton::clicked, m_window, &QWidget::showMinimized);
    connect(m_buttons[MaxButton], &QToolButton::clicked, m_window, &QWidget::showMaximized);
    connect(m_buttons[RestoreButton], &QToolButton::clicked, m_window, &QWidget::showNormal);
    connect(m_buttons[CloseButton], &QToolButton::clicked, m_window, &QWidget::close);
}

void TitleBar::layOut()
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_buttons[LogoButton]);
    row->addSpacing(titleIndent);
    row->addWidget(m_titleLabel, 1);
    for (int id = MinButton; id < ButtonCount; ++id)
        row->addWidget(m_buttons[id]);
}

void TitleBar::setTitle(const QString &title)
{
    m_title = title;
    m_titleLabel->setAccessibleName(title);
    elideTitle();
}

QToolButton *TitleBar::button(int id) const
{
    return id >= LogoButton && id < ButtonCount ? m_buttons[id] : nullptr;
}

void TitleBar::setTitleButtonIcon(const int &id, const QIcon &icon)
{
    if (!button(id))
        return;
    button(id)->setIcon(icon);
    if (id == LogoButton)
        button(id)->setVisible(m_logoVisible.value_or(!icon.isNull()));
}

void TitleBar::setTitleButtonVisible(const int &id, bool visible)
{
    if (!button(id))
        return;
    button(id)->setVisible(visible);
    if (id == LogoButton)
        m_logoVisible = visible;
}

void TitleBar::addSign(QWidget *sign)
{
    auto *row = static_cast<QHBoxLayout *>(layout());
    row->insertWidget(row->indexOf(m_titleLabel) + 1, sign);
}

bool TitleBar::event(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    return m_dragger.handleEvent(event) || QFrame::event(event);
}

bool TitleBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && event->type() == QEvent::WindowTitleChange)
        setTitle(m_window->windowTitle());
    else if (watched == m_window && event->type() == QEvent::WindowIconChange)
        setTitleButtonIcon(LogoButton, m_window->windowIcon());
    else if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange)
        elideTitle(); // of the label
    return QFrame::eventFilter(watched, event);
}

void TitleBar::retranslate()
{
    const QString names[ButtonCount] = {QString(), tr("最小化"), tr("最大化"), tr("还原"),
                                        tr("关闭")};
    for (int id = MinButton; id < ButtonCount; ++id) {
        m_buttons[id]->setToolTip(names[id]);
        m_buttons[id]->setAccessibleName(names[id]);
    }
}

void TitleBar::elideTitle()
{
    const int width = m_titleLabel->contentsRect().width();
    const QString shown = m_titleLabel->fontMetrics().elidedText(m_title, Qt::ElideRight, width);
    m_titleLabel->setText(shown);
    m_titleLabel->setToolTip(shown == m_title ? QString() : m_title);
}

} // namespace UX::Widgets
