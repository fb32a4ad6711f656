#pragma once

#include "windowdragger.h"

#include <QFrame>
#include <QString>
#include <QToolButton>

#include <optional>

class QIcon;
class QLabel;

namespace UX::Widgets {

// The strip at the top of a frameless window: its logo, its title and the buttons that act on it.
class TitleBar : public QFrame
{
    Q_OBJECT

public:
    enum ButtonId { LogoButton, MinButton, MaxButton, RestoreButton, CloseButton };

    // Follows the title and the icon of window, which is dragged by the bar, must live at least as
    // long, and is its parent until a layout takes the bar.
    explicit TitleBar(QWidget *window);

    QString title() const { return m_title; }
    // A title that is too long is elided at the right and shown whole as tool tip.
    void setTitle(const QString &title);

    // The button with this ButtonId, or null for any other number.
    QWidget *titleButton(const int &id) const { return button(id); }
    void setTitleButtonIcon(const int &id, const QIcon &icon);
    // The logo and the buttons that minimise and close show by themselves where they are of use.
    void setTitleButtonVisible(const int &id, bool visible);

    // Puts the widget between the title and the buttons.
    void addSign(QWidget *sign);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static constexpr int ButtonCount = CloseButton + 1;

    void createButtons();
    void layOut();
    void retranslate();
    void elideTitle();
    QToolButton *button(int id) const;

    QWidget *const m_window;
    WindowDragger m_dragger;
    QLabel *const m_titleLabel;
    QToolButton *m_buttons[ButtonCount] = {};
    std::optional<bool> m_logoVisible; // as asked for; otherwise where the window has an icon
    QString m_title;
};

} // namespace UX::Widgets
