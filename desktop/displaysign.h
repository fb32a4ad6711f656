#pragma once

#include <QLabel>
#include <QRect>
#include <QSize>
#include <QVector>

// A sign that appears while the screens that a window lies on show something else than what is
// painted there; its tool tip says why. The style sheet gives it its picture.
class DisplaySign : public QLabel
{
    Q_OBJECT

public:
    // The window is borrowed and has to outlive the sign. Nothing is said of a hidden one.
    explicit DisplaySign(const QWidget *window, QWidget *parent = nullptr);

    // Looks again, as it also does every two seconds.
    void check();

private:
    QStringList faults();

    const QWidget *const m_window;
    QVector<QRect> m_screens; // when the compositor was last asked
    QVector<QSize> m_outputs;
};
