#include "scrhelperctrlwidget.h"

#include "ui_scrhelperctrlwidget.h"

#include "commonhelper.h"
#include "form.h"

ScrHelperCtrlWidget::ScrHelperCtrlWidget(QWidget *parent)
    : QWidget(parent)
    , ui(makeForm<Ui::ScrHelperCtrlWidget>(this))
{ }

ScrHelperCtrlWidget::~ScrHelperCtrlWidget() = default;

// The form has the keys of an ordinary keyboard; these are the ones that the operator sees.
void ScrHelperCtrlWidget::updateLanguage()
{
    const struct
    {
        QLabel *keyLabel;
        QString key;
        QLabel *meaningLabel;
        QString meaning;
    } rows[] = {
        {ui->labelKeyHome, tr("[Fn+←]"), ui->labelHome, tr("显示/隐藏窗口右下角处提示")},
        {ui->labelKeyEnd, tr("[Fn+→]"), ui->labelEnd, tr("显示/隐藏窗口中心处提示")},
        {ui->labelKeyPageUp, tr("[Fn+↑]"), ui->labelPageUp, tr("功能向上切换")},
        {ui->labelKeyPageDown, tr("[Fn+↓]"), ui->labelPageDown, tr("功能向下切换")},
        {ui->labelKeyShiftArrows, tr("[⇧+↑↓←→]"), ui->labelShiftArrows, tr("窗口大小")},
        {ui->labelKeyShiftF, tr("[⇧+F/双击]"), ui->labelShiftF, tr("全屏/取消全屏")},
        {ui->labelKeyCtrlArrows, tr("[⌘+↑↓←→]"), ui->labelCtrlArrows, tr("窗口位置")},
        {ui->labelKeyArrows, tr("[↑↓←→]"), ui->labelArrows, tr("灰度调节")},
        {ui->labelKeyInsertDelete, tr("[Fn+Enter/Delete]"), ui->labelInsertDelete,
         tr("自动增加/减少灰度")},
        {ui->labelKeyShiftH, tr("[⇧+H]"), ui->labelShiftH, tr("显示/隐藏窗口")},
    };
    ui->gridLayout->activate(); // texts are fitted to the widths
    for (const auto &row : rows) {
        CommonHelper::setQLabelText(row.keyLabel, row.key);
        CommonHelper::setQLabelText(row.meaningLabel, row.meaning);
    }
    CommonHelper::setQLabelText(ui->labelTip, tr("提示：Mac使用本工具时，请把菜单栏设置隐藏掉"));
}
