#pragma once

#include <QFrame>
#include <QString>

#include <optional>

class QIcon;
class QLabel;
class QToolButton;

namespace UX::Widgets {

// The strip at the top of a frameless window: its logo, its title and the buttons that act on it.
class TitleBar : public QFrame
{
    Q_OBJECT

public:
    enum ButtonId { LogoButton, MinButton, MaxButton, RestoreButton, CloseButton };

    // Follows the title, the icon and the state of window, which must live at least as long as the
    // bar and is its parent until a layout takes the bar.
    explicit TitleBar(QWidget *window);

    QString title() const;
    // A title that is too long is elided at the right and shown whole as tool tip.
    void setTitle(const QString &title);

    // The button with this ButtonId, or null for any other number.
    QWidget *titleButton(const int &id) const;
    void setTitleButtonIcon(const int &id, const QIcon &icon);
    // From now on the button is shown or hidden whatever the window's kind and state.
    void setTitleButtonVisible(const int &id, bool visible);

    // Whether maximising makes sense: not for a dialog, nor where a direction has a fixed size.
    static bool canMaximize(const QWidget *window);

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static constexpr int ButtonCount = CloseButton + 1;

    void createButtons();
    void connectButtons();
    void layOut();
    void retranslate();
    void elideTitle();
    void followWindow(const QEvent *event);
    void updateButtons();
    bool isButtonUseful(int id) const;
    QToolButton *findButton(int id) const;

    QWidget *const m_window;
    QLabel *const m_titleLabel;
    QToolButton *m_buttons[ButtonCount] = {};
    std::optional<bool> m_requestedVisibility[ButtonCount];
    QString m_title;
};

} // namespace UX::Widgets
