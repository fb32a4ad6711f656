#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class ScrAboutWidget;
}

// Tab 6: who makes the tool, what else they make, and where help is to be had.
class ScrAboutWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ScrAboutWidget(QWidget *parent = nullptr);
    ~ScrAboutWidget() override;

    void updateLanguage();

private:
    const std::unique_ptr<Ui::ScrAboutWidget> ui;
};
