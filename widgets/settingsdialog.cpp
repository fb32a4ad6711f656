#include "settingsdialog.h"

#include "commonhelper.h"
#include "titlebar.h"

#include <QIcon>
#include <QLabel>
#include <QVariant>

using UX::Widgets::TitleBar;

SettingsDialog::SettingsDialog(const char *name, const QSize &size, QWidget *parent)
    : UX::Widgets::FramelessDialog(parent)
{
    setObjectName(QLatin1String(name));
    setStyleSheet(CommonHelper::setStyle(QStringLiteral(":/qss/global_style.css")));
    m_titleBar->setTitleButtonIcon(
        TitleBar::CloseButton,
        QIcon(QStringLiteral(":/Resource/Image/titleBar/btn_close_normal@2x.png")));
    setFixedSize(size);
}

QLabel *SettingsDialog::createSeparator(const char *name)
{
    auto *separator = new QLabel;
    separator->setObjectName(QLatin1String(name));
    separator->setProperty("class", QStringLiteral("SplitLine"));
    separator->setFixedHeight(2);
    separator->setStyleSheet(QStringLiteral("background:rgb(75,80,87);"));
    return separator;
}
