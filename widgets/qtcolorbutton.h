#pragma once

#include <QColor>
#include <QToolButton>

class QtColorButtonPrivate;

// A tool button that shows a colour, lets the operator choose another one in a dialog, and gives
// and takes colours by drag and drop.
class QtColorButton : public QToolButton
{
    Q_OBJECT

public:
    explicit QtColorButton(QWidget *parent = nullptr);
    ~QtColorButton() override;

    // Invalid at first, which is shown as black.
    QColor color() const;
    void setColor(const QColor &color);

    // Whether a checkerboard shows through a translucent colour; true at first.
    bool isBackgroundCheckered() const;
    void setBackgroundCheckered(bool checkered);

    // Whether the dialog lets the operator choose an alpha value; true at first.
    bool isAlphaAllowed() const;
    void setAlphaAllowed(bool allowed);

signals:
    // Only for a change by the operator, through the dialog or by a drop.
    void colorChanged(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QtColorButtonPrivate *const d;
};
