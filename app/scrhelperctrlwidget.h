#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class ScrHelperCtrlWidget;
}

// Tab 5: the card of the shortcuts, a key and its meaning in each row.
class ScrHelperCtrlWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ScrHelperCtrlWidget(QWidget *parent = nullptr);
    ~ScrHelperCtrlWidget() override;

    void updateLanguage();

private:
    const std::unique_ptr<Ui::ScrHelperCtrlWidget> ui;
};
