// What the panel keeps: in the settings file, and of the background picture.

#include "ui_tarntool.h"

#include "advancedvalue.h"
#include "filedialog.h"
#include "pictureloader.h"
#include "scrgrid.h"
#include "settingsrules.h"
#include "swatch.h"
#include "tarntool.h"

#include <QCoreApplication>
#include <QSaveFile>
#include <QScopedValueRollback>
#include <QSettings>

namespace {

QString keptPicture()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/BackgroundPicture/picture");
}

QImage pictureIn(const QString &path)
{
    const std::optional<QByteArray> data = readPictureFile(path);
    return data ? readPicture(*data) : QImage();
}

// Whatever happens meanwhile, the earlier picture or the new one is there. Where nothing can be
// written, the earlier one stays.
void keepPicture(const QByteArray &data)
{
    QSaveFile file(keptPicture());
    if (file.open(QIODevice::WriteOnly) && file.write(data) == data.size())
        file.commit();
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
    const QScopedValueRollback<bool> hold(m_restoring, true);
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
    const QImage picture = pictureIn(keptPicture());
    if (picture.isNull()) {
        ui->radioBackground->setChecked(true);
        return;
    }
    showThumbnail(picture);
    usePicture(keptPicture());
    const bool solid = m_settings->value(CabinetKey::solidBackground).toBool();
    (solid ? ui->radioBackground : ui->radioPicture)->setChecked(true);
}

void TarnTool::usePicture(const QString &path)
{
    m_bgPicturePath = path;
    m_drawer->setBackgroundImage(path);
    showChange();
}

void TarnTool::showThumbnail(const QImage &picture)
{
    const QImage small =
        picture.scaled(ui->labelimage->size(), Qt::KeepAspectRatio, Qt::FastTransformation);
    ui->labelimage->setPixmap(QPixmap::fromImage(small));
    ui->labelimage->setScaledContents(true);
    ui->labelimage->show();
}

void TarnTool::useSolidBackground()
{
    m_drawer->m_bgColor = m_bgColor;
    m_drawer->m_bgPicturePath.clear();
    m_bgPicturePath.clear();
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
    if (pictureIn(keptPicture()).isNull())
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
    const std::optional<QByteArray> bytes = readPictureFile(path);
    const QImage picture = bytes ? readPicture(*bytes) : QImage();
    if (picture.isNull())
        return;
    keepPicture(*bytes);
    m_lastPictureDir = path;
    showThumbnail(picture);
    usePicture(path);
}
