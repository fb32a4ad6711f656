#include "framelessdialog.h"

#include "desktopscale.h"
#include "screenarea.h"
#include "titlebar.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPaintEvent>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>

namespace UX::Widgets {

namespace {

constexpr int buttonMinimumWidth = 70;
constexpr int buttonSpacing = 20;
constexpr QMargins buttonRowMargins(20, 4, 20, 12);
constexpr QRgb backgroundColor = qRgb(48, 50, 56);
constexpr QRgb textColor = 0xffe6e6e6;

bool isStaysOnTop(const QWidget *window)
{
    return window->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
}

} // namespace

QColor FramelessDialog::m_defaultBackgroundColor(backgroundColor);

FramelessDialog::FramelessDialog(QWidget *parent, Qt::WindowFlags f)
    : QDialog(parent, f | Qt::FramelessWindowHint)
{
    // Legible on the dark background without a style sheet as well.
    QPalette dark = palette();
    dark.setColor(QPalette::Window, m_defaultBackgroundColor);
    dark.setColor(QPalette::WindowText, QColor(textColor));
    setPalette(dark);
    buildFrame();
    retranslate();
}

FramelessDialog::~FramelessDialog()
{
    lowerOwner();
}

void FramelessDialog::buildFrame()
{
    m_titleBar = new TitleBar(this);
    m_titleBar->setTitleButtonVisible(TitleBar::LogoButton, false);

    auto *frame = new QFrame(this);
    frame->setProperty("isFramelessCentralWidget", true);
    m_content = new QWidget(frame);
    m_buttonRow = createButtonRow();
    auto *body = new QVBoxLayout(frame);
    body->setContentsMargins(0, 0, 0, 0);
    body->setSpacing(0);
    body->addWidget(m_content, 1);
    body->addWidget(m_buttonRow);

    auto *column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setMenuBar(m_titleBar);
    column->addWidget(frame);
    QDialog::setLayout(column);

    m_edge = new QWidget(this);
    m_edge->setObjectName(QStringLiteral("DialogEdge"));
    m_edge->setAttribute(Qt::WA_TransparentForMouseEvents);
}

QWidget *FramelessDialog::createButtonRow()
{
    auto *row = new QWidget(this);
    m_okButton = new QPushButton(row);
    m_cancelButton = new QPushButton(row);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(buttonRowMargins);
    layout->setSpacing(buttonSpacing);
    layout->addStretch();
    for (QPushButton *button : {m_okButton, m_cancelButton}) {
        styleButton(button);
        button->show();
        layout->addWidget(button);
    }
    layout->addStretch();
    m_okButton->setDefault(true);
    connect(m_okButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    return row;
}

void FramelessDialog::styleButton(QAbstractButton *button)
{
    button->setObjectName(QStringLiteral("DialogPushBtn"));
    button->setMinimumWidth(buttonMinimumWidth);
}

void FramelessDialog::setLayout(QLayout *layout)
{
    m_content->setLayout(layout);
}

void FramelessDialog::setOKButtonVisible(bool visible)
{
    m_okButton->setVisible(visible);
    m_okButton->setDefault(visible);
    updateButtonRow();
}

void FramelessDialog::setCancelButtonVisible(bool visible)
{
    m_cancelButton->setVisible(visible);
    updateButtonRow();
}

void FramelessDialog::updateButtonRow()
{
    m_buttonRow->setVisible(!m_okButton->isHidden() || !m_cancelButton->isHidden());
}

void FramelessDialog::setVisible(bool visible)
{
    if (visible && !isVisible())
        prepareToShow();
    if (!visible)
        lowerOwner();
    QDialog::setVisible(visible);
}

void FramelessDialog::scaleToDesktop()
{
    if (!m_scaled)
        DesktopScale::apply(this);
    m_scaled = true;
}

void FramelessDialog::prepareToShow()
{
    scaleToDesktop();
    const bool isParentOnTop = parentWidget() && isStaysOnTop(parentWidget()->window());
    m_windowBelow = isParentOnTop ? nullptr : findWindowOnTop();
    // A change of the flags hides a window that is already shown.
    if (m_windowBelow || isParentOnTop)
        setWindowFlag(Qt::WindowStaysOnTopHint);
    // A window manager reports a wrong place for a window that moves while it is being shown.
    if (!testAttribute(Qt::WA_Moved))
        centreOnParent();
    attachToOwner();
}

// Some X11 window managers raise a modal dialog by raising its owner, which brings it in front of
// the window below only if the owner stands in the same layer.
void FramelessDialog::attachToOwner()
{
    create();
    QWidget *parentWindow = parentWidget() ? parentWidget()->window() : nullptr;
    QWidget *owner = parentWindow;
    if (m_windowBelow && windowModality() == Qt::NonModal)
        owner = m_windowBelow;
    else if (m_windowBelow && windowModality() == Qt::ApplicationModal)
        owner = nullptr;
    windowHandle()->setTransientParent(owner ? owner->windowHandle() : nullptr);
    // The owner is what such a dialog blocks, so it has to stay, and joins the dialog on top.
    if (!m_windowBelow || windowModality() != Qt::WindowModal)
        return;
    m_windowBelow->installEventFilter(this);
    m_liftedOwner = windowHandle()->transientParent();
    if (m_liftedOwner)
        m_liftedOwner->setFlag(Qt::WindowStaysOnTopHint);
}

void FramelessDialog::lowerOwner()
{
    if (m_windowBelow)
        m_windowBelow->removeEventFilter(this);
    if (m_liftedOwner)
        m_liftedOwner->setFlag(Qt::WindowStaysOnTopHint, false);
    m_liftedOwner.clear();
}

QWidget *FramelessDialog::findWindowOnTop() const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window != this && window->windowType() != Qt::ToolTip && window->isVisible()
            && isStaysOnTop(window))
            return window;
    }
    return nullptr;
}

bool FramelessDialog::eventFilter(QObject *watched, QEvent *event)
{
    // A click has brought that window in front.
    if (watched == m_windowBelow && event->type() == QEvent::MouseButtonRelease)
        raise();
    return QDialog::eventFilter(watched, event);
}

void FramelessDialog::paintEvent(QPaintEvent *event)
{
    QPainter(this).fillRect(event->rect(), m_defaultBackgroundColor);
}

// Over what is in the dialog.
void FramelessDialog::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    m_edge->setGeometry(rect());
    m_edge->setMask(QRegion(rect()) - QRegion(rect().adjusted(1, 1, -1, -1)));
    m_edge->raise();
}

void FramelessDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    // Where a click on a blocked window gives this one the keyboard, it need not come in front.
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && m_windowBelow)
        raise();
    QDialog::changeEvent(event);
}

void FramelessDialog::retranslate()
{
    m_okButton->setText(tr("确定"));
    m_cancelButton->setText(tr("取消"));
}

// QDialog does this too, but leaves room for a system frame that this dialog does not have.
void FramelessDialog::centreOnParent()
{
    ensurePolished();
    if (!testAttribute(Qt::WA_Resized))
        adjustSize();
    const QWidget *around =
        parentWidget() ? parentWidget()->window() : QApplication::activeWindow();
    const QRect area = ScreenArea::around(around ? around->geometry().center() : QPoint());
    QRect place = rect();
    place.moveCenter(around ? around->geometry().center() : area.center());
    move(ScreenArea::constrained(place, area).topLeft());
}

} // namespace UX::Widgets
