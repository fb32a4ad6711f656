#include "picturefile.h"

#include "drawcontainer.h"
#include "drawerbase.h"

#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>

#include <utility>

namespace PictureFile {

QByteArray format(const QString &path)
{
    const QByteArray ending = QFileInfo(path).suffix().toLower().toUtf8();
    if (ending.isEmpty())
        return "png";
    return QImageWriter::supportedImageFormats().contains(ending) ? ending : QByteArray();
}

QString write(DrawContainer &window, const QString &path)
{
    QImage picture = take(window);
    if (picture.isNull())
        return QStringLiteral("there is no memory for a picture of that size");
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && encode(std::move(picture), file, format(path))
        && file.commit())
        return {};
    return file.errorString();
}

// What takes several paintings is paid for once: of all but the last a corner is enough.
QImage take(DrawContainer &window)
{
    QImage picture(window.size(), QImage::Format_RGB32);
    if (picture.isNull())
        return picture;
    const DrawerBase *const drawer = window.selectedDrawer();
    do {
        window.render(&picture, QPoint(), QRegion(0, 0, 1, 1), QWidget::RenderFlags());
    } while (drawer && !drawer->isDrawnInFull());
    window.render(&picture, QPoint(), QRegion(), QWidget::RenderFlags());
    return picture;
}

bool encode(QImage picture, QIODevice &device, const QByteArray &format)
{
    constexpr int dotsPerMeter = 3780; // whatever the environment says of the screen
    picture.setDotsPerMeterX(dotsPerMeter);
    picture.setDotsPerMeterY(dotsPerMeter);
    QImageWriter writer(&device, format);
    constexpr int best = 100; // for PNG this would only mean no compression
    if (format != "png")
        writer.setQuality(best);
    return writer.write(picture);
}

} // namespace PictureFile
