#pragma once

#include <QFrame>

class QVBoxLayout;

namespace UX::Widgets {

class TitleBar;

// Fills a frameless window: the title bar at the top and the window's content below it.
class WindowFrame : public QFrame
{
    Q_OBJECT

public:
    explicit WindowFrame(QWidget *window);

    TitleBar *titleBar() const;

    // Null until one is set.
    QWidget *content() const;
    // Takes ownership of content; the content before it is deleted. Null leaves the frame empty.
    void setContent(QWidget *content);

private:
    TitleBar *const m_titleBar;
    QVBoxLayout *const m_layout;
    QWidget *m_content = nullptr;
};

} // namespace UX::Widgets
