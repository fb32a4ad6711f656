// What the panel keeps: in the settings file, and of the background picture.

#include "ui_tarntool.h"

#include "advancedvalue.h"
#include "filedialog.h"
#include "savesoon.h"
#include "scrgrid.h"
#include "settingsrules.h"
#include "swatch.h"
#include "tarntool.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>
#include <QSettings>

namespace {

QString keptPicture()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/BackgroundPicture/picture");
}

// Whatever happens meanwhile, the earlier picture or the new one is there. Where not everything
// can be read or written, the earlier one stays.
void keepPicture(const QString &path)
{
    constexpr qint64 blockBytes = 1024 * 1024;
    QFile source(path);
    QSaveFile kept(keptPicture());
    if (!source.open(QIODevice::ReadOnly) || !kept.open(QIODevice::WriteOnly))
        return;
    for (QByteArray block = source.read(blockBytes); !block.isEmpty();
         block = source.read(blockBytes))
        kept.write(block);
    const bool isWhole = source.error() == QFileDevice::NoError;
    source.close(); // it may be the kept one itself
    if (isWhole)
        kept.commit();
}

} // namespace

void TarnTool::saveTarnBaseInfo()
{
    if (!m_settings)
        return;
    for (const Count &count : m_counts)
        SettingsRules::store(*m_settings, count.key, count.box->value());
    SettingsRules::store(*m_settings, CabinetKey::rightToLeft, ui->radioBeginRight->isChecked());
    SettingsRules::store(*m_settings, CabinetKey::solidBackground,
                         ui->radioBackground->isChecked());
}

void TarnTool::initTarnStatus()
{
    if (!m_settings)
        return;
    const auto hold = m_saveSoon->hold();
    restoreCounts();
    for (const AdvancedValue &value : advancedValues)
        *m_drawer.*value.field = value.stored(*m_settings).value_or(*m_drawer.*value.field);
    restoreColors();
    restorePicture();
    const bool fromRight = m_settings->value(CabinetKey::rightToLeft).toBool();
    (fromRight ? ui->radioBeginRight : ui->radioBeginLeft)->setChecked(true);
}

// A value beyond the limits is shown as the limit.
void TarnTool::restoreCounts()
{
    for (const Count &count : m_counts)
        count.box->setValue(SettingsRules::nonZeroInt(*m_settings, count.key, count.initial));
}

// A colour counts only with the style of its swatch.
void TarnTool::restoreColors()
{
    for (int item = 0; item < colorCount; ++item) {
        const ColorChoice &choice = m_colors.at(item);
        const QString stored = m_settings->value(choice.styleKey).toString();
        const QColor color = SettingsRules::color(*m_settings, choice.colorKey);
        const bool counts = !stored.isEmpty() && color.isValid();
        const QColor shown = counts ? color : QColor(choice.initial);
        // Of a text that is another style, which could name any file, nothing is used.
        const bool usesStyle = counts && Swatch::isStyle(stored);
        setSwatch(static_cast<ColorItem>(item), shown, usesStyle ? stored : Swatch::style(shown));
    }
}

// Without a kept picture the stored choice of one does not count.
void TarnTool::restorePicture()
{
    m_thumbnailDue = PictureLoader::isPicture(keptPicture());
    if (!m_thumbnailDue) {
        ui->radioBackground->setChecked(true);
        return;
    }
    usePicture(keptPicture());
    const bool solid = m_settings->value(CabinetKey::solidBackground).toBool();
    (solid ? ui->radioBackground : ui->radioPicture)->setChecked(true);
}

// A kept picture that turns out to be damaged counts as none from here on.
void TarnTool::restoreThumbnail()
{
    if (!m_thumbnailDue)
        return;
    m_thumbnailDue = false;
    const QImage picture = m_drawer->picture(keptPicture());
    if (!picture.isNull()) {
        showThumbnail(picture);
        return;
    }
    ui->radioBackground->setChecked(true);
    takePictureAway();
}

void TarnTool::usePicture(const QString &path)
{
    m_bgPicturePath = path;
    m_drawer->setBackgroundImage(path);
    showChange();
}

void TarnTool::showThumbnail(const QImage &picture)
{
    m_thumbnailDue = false;
    const QImage small =
        picture.scaled(ui->labelimage->size(), Qt::KeepAspectRatio, Qt::FastTransformation);
    ui->labelimage->setPixmap(QPixmap::fromImage(small));
    ui->labelimage->setScaledContents(true);
    ui->labelimage->show();
}

void TarnTool::takePictureAway()
{
    m_drawer->m_bgColor = m_bgColor;
    m_drawer->m_bgPicturePath.clear();
    m_bgPicturePath.clear();
}

void TarnTool::useSolidBackground()
{
    takePictureAway();
    showChange();
}

void TarnTool::slot_radioBackgroundRefresh()
{
    useSolidBackground();
}

void TarnTool::slot_radioBackgroundClicked()
{
    if (ui->radioBackground->isChecked() && chooseColor(BackgroundColor))
        useSolidBackground();
}

void TarnTool::slot_radioPictureRefresh()
{
    saveSoon(); // the choice itself, whether a picture comes of it or not
    if (m_drawer->picture(keptPicture()).isNull())
        slot_radioPictureClicked();
    else
        usePicture(keptPicture());
}

// What is chosen and is no picture is ignored: the picture before it stays in use and kept.
void TarnTool::slot_radioPictureClicked()
{
    if (!ui->radioPicture->isChecked())
        return;
    if (m_lastPictureDir.isEmpty())
        m_lastPictureDir = QStringLiteral(".");
    const QString path = FileDialog::getOpenFileName(this, tr("选择背景图"), m_lastPictureDir,
                                                     tr("图片文件 (*.jpg *.png *.bmp)"));
    if (path.isEmpty())
        return;
    const QImage picture = m_drawer->picture(path);
    if (picture.isNull())
        return;
    keepPicture(path);
    m_lastPictureDir = path;
    showThumbnail(picture);
    usePicture(path);
}
