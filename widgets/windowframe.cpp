#include "windowframe.h"

#include "titlebar.h"

#include <QVBoxLayout>
#include <QVariant>

namespace UX::Widgets {

WindowFrame::WindowFrame(QWidget *window)
    : QFrame(window)
    , m_titleBar(new TitleBar(window))
    , m_layout(new QVBoxLayout(this))
{
    setProperty("isFramelessCentralWidget", true);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(m_titleBar);
    m_layout->setAlignment(m_titleBar, Qt::AlignTop);
}

TitleBar *WindowFrame::titleBar() const
{
    return m_titleBar;
}

QWidget *WindowFrame::content() const
{
    return m_content;
}

void WindowFrame::setContent(QWidget *content)
{
    if (content == m_content)
        return;
    if (m_content) {
        m_layout->removeWidget(m_content);
        m_content->hide();
        m_content->deleteLater();
    }
    m_content = content;
    if (m_content)
        m_layout->addWidget(m_content, 1);
}

} // namespace UX::Widgets
