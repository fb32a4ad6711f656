#include "scraboutwidget.h"

#include "ui_scraboutwidget.h"

#include "commonhelper.h"
#include "form.h"

ScrAboutWidget::ScrAboutWidget(QWidget *parent)
    : QWidget(parent)
    , ui(makeForm<Ui::ScrAboutWidget>(this))
{ }

ScrAboutWidget::~ScrAboutWidget() = default;

void ScrAboutWidget::updateLanguage()
{
    const struct
    {
        QLabel *label;
        QString text;
    } lines[] = {
        {ui->labelBanner, tr("Tarn：LED显示屏专业解决方案")},
        {ui->labelControl, tr("1. LED显示屏控制系统")},
        {ui->labelTesting, tr("2. LED显示屏测试与校正工具")},
        {ui->labelVideo, tr("3. 视频处理与信号传输设备")},
        // A number from the range that is kept free for examples.
        {ui->labelSupport, tr("全国技术支持电话：+1 555-0142")},
    };
    ui->verticalLayout->activate(); // texts are fitted to the widths
    for (const auto &line : lines)
        CommonHelper::setQLabelText(line.label, line.text);
}
