#pragma once

#include <QLabel>

// A label that can be clicked.
class CustomerQlabel : public QLabel
{
    Q_OBJECT

public:
    explicit CustomerQlabel(QWidget *parent = nullptr, Qt::WindowFlags f = Qt::WindowFlags());
    explicit CustomerQlabel(const QString &text, QWidget *parent = nullptr,
                            Qt::WindowFlags f = Qt::WindowFlags());

signals:
    // Any mouse button was released on the label, wherever the pointer was by then.
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
};
