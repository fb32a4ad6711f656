#include "titlebar.h"

#include <QEvent>
#include <QFile>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QStyle>
#include <QToolButton>
#include <QVariant>

namespace UX::Widgets {

namespace {

constexpr int barHeight = 28;
constexpr int logoSide = 16;
constexpr int titleIndent = 8;

// What one button is called by the style sheet and shows on its face, in the order of ButtonId.
struct ButtonLook
{
    const char *property;
    const char *imageName;
    QStyle::StandardPixmap fallback;
};

constexpr ButtonLook buttonLooks[] = {
    {"isTitleBarLogoButton", nullptr, QStyle::SP_TitleBarMenuButton},
    {"isTitleBarMinButton", "mix", QStyle::SP_TitleBarMinButton},
    {"isTitleBarMaxButton", "max", QStyle::SP_TitleBarMaxButton},
    {"isTitleBarRestoreButton", "return", QStyle::SP_TitleBarNormalButton},
    {"isTitleBarCloseButton", "close", QStyle::SP_TitleBarCloseButton},
};

// The images that go with the style sheet, or the style's own where they are not compiled in.
QIcon buttonIcon(const ButtonLook &look, const QStyle *style)
{
    const QString path = QStringLiteral(":/Resource/Image/titleBar/btn_%1_%2.png")
                             .arg(QLatin1String(look.imageName));
    const QString normal = path.arg(QLatin1String("normal"));
    if (!QFile::exists(normal))
        return style->standardIcon(look.fallback);
    QIcon icon(normal);
    icon.addFile(path.arg(QLatin1String("hover")), QSize(), QIcon::Active);
    return icon;
}

} // namespace

TitleBar::TitleBar(QWidget *window)
    : QFrame(window)
    , m_window(window)
    , m_titleLabel(new QLabel(this))
{
    setProperty("isTitleBar", true);
    setFixedHeight(barHeight);
    m_titleLabel->setProperty("isTitleBarTitle", true);
    m_titleLabel->setTextFormat(Qt::PlainText);
    m_titleLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    createButtons();
    layOut();
    connectButtons();
    retranslate();
    setTitle(window->windowTitle());
    updateButtons();
    m_titleLabel->installEventFilter(this);
    window->installEventFilter(this);
}

void TitleBar::createButtons()
{
    for (int id = LogoButton; id < ButtonCount; ++id) {
        const ButtonLook &look = buttonLooks[id];
        auto *button = new QToolButton(this);
        button->setProperty(look.property, true);
        button->setFocusPolicy(Qt::NoFocus);
        button->setAutoRaise(true);
        button->setFixedSize(barHeight, barHeight);
        button->setIconSize(QSize(barHeight, barHeight));
        button->setIcon(id == LogoButton ? m_window->windowIcon() : buttonIcon(look, style()));
        m_buttons[id] = button;
    }
    m_buttons[LogoButton]->setIconSize(QSize(logoSide, logoSide));
    // The logo only shows the icon: a press on it takes hold of the bar like one on the title.
    m_buttons[LogoButton]->setAttribute(Qt::WA_TransparentForMouseEvents);
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

void TitleBar::connectButtons()
{
    connect(m_buttons[MinButton], &QToolButton::clicked, m_window, &QWidget::showMinimized);
    connect(m_buttons[MaxButton], &QToolButton::clicked, m_window, &QWidget::showMaximized);
    connect(m_buttons[RestoreButton], &QToolButton::clicked, m_window, &QWidget::showNormal);
    connect(m_buttons[CloseButton], &QToolButton::clicked, m_window, &QWidget::close);
}

QString TitleBar::title() const
{
    return m_title;
}

void TitleBar::setTitle(const QString &title)
{
    m_title = title;
    m_titleLabel->setAccessibleName(title);
    elideTitle();
}

QWidget *TitleBar::titleButton(const int &id) const
{
    return findButton(id);
}

void TitleBar::setTitleButtonIcon(const int &id, const QIcon &icon)
{
    QToolButton *button = findButton(id);
    if (!button)
        return;
    button->setIcon(icon);
    updateButtons();
}

void TitleBar::setTitleButtonVisible(const int &id, bool visible)
{
    if (!findButton(id))
        return;
    m_requestedVisibility[id] = visible;
    updateButtons();
}

bool TitleBar::canMaximize(const QWidget *window)
{
    return window->windowType() == Qt::Window && window->minimumWidth() < window->maximumWidth()
           && window->minimumHeight() < window->maximumHeight();
}

void TitleBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QFrame::changeEvent(event);
}

bool TitleBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window)
        followWindow(event);
    else if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange)
        elideTitle();
    return QFrame::eventFilter(watched, event);
}

void TitleBar::followWindow(const QEvent *event)
{
    switch (event->type()) {
    case QEvent::WindowTitleChange:
        setTitle(m_window->windowTitle());
        break;
    case QEvent::WindowIconChange:
        setTitleButtonIcon(LogoButton, m_window->windowIcon());
        break;
    // A change of the size limits has no event of its own, but comes before one of these.
    case QEvent::Show:
    case QEvent::Resize:
    case QEvent::WindowStateChange:
        updateButtons();
        break;
    default:
        break;
    }
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

void TitleBar::updateButtons()
{
    for (int id = LogoButton; id < ButtonCount; ++id)
        m_buttons[id]->setVisible(m_requestedVisibility[id].value_or(isButtonUseful(id)));
}

bool TitleBar::isButtonUseful(int id) const
{
    switch (id) {
    case LogoButton:
        return !m_buttons[LogoButton]->icon().isNull();
    case MinButton:
        return m_window->windowType() == Qt::Window;
    case MaxButton:
        return canMaximize(m_window) && !m_window->isMaximized();
    case RestoreButton:
        return canMaximize(m_window) && m_window->isMaximized();
    default:
        return true;
    }
}

QToolButton *TitleBar::findButton(int id) const
{
    return id >= LogoButton && id < ButtonCount ? m_buttons[id] : nullptr;
}

} // namespace UX::Widgets
