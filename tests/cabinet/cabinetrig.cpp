#include "cabinetrig.h"

#include "colordialog.h"
#include "customerqlabel.h"
#include "filedialog.h"
#include "savesoon.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QtTest>

QByteArray pictureFile(const QColor &color, const QSize &size, const char *format)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!image.save(&buffer, format))
        qFatal("no picture of this format");
    return bytes;
}

namespace KeptPicture {

QString folder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/BackgroundPicture");
}

QString path()
{
    return folder() + QStringLiteral("/picture");
}

void set(const QByteArray &contents)
{
    QDir(folder()).removeRecursively();
    QDir().mkpath(folder());
    if (contents.isNull())
        return;
    QFile file(path());
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write the kept picture");
}

QByteArray contents()
{
    QFile file(path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace KeptPicture

CabinetRig::CabinetRig(const QVariantMap &values, const QByteArray &kept)
    : settings(values)
{
    KeptPicture::set(kept);
    build();
}

CabinetRig::~CabinetRig()
{
    canvas.setDrawer(nullptr);
}

void CabinetRig::build()
{
    panel = std::make_unique<TarnTool>(&canvas, settings.get(), nullptr);
    drawer = qobject_cast<ScrGrid *>(panel->getDrawer());
    canvas.setDrawer(drawer);
}

void CabinetRig::restart()
{
    canvas.setDrawer(nullptr);
    panel.reset();
    settings->sync();
    settings.reopen();
    build();
}

QPushButton *CabinetRig::pushButton(int index) const
{
    const auto buttons = panel->findChildren<QPushButton *>(QStringLiteral("normalContentPushBtn"));
    if (buttons.size() != 2)
        qFatal("there are not two buttons of this name");
    const bool inOrder = buttons.first()->x() < buttons.last()->x();
    return buttons.at(inOrder ? index : 1 - index);
}

void CabinetRig::click(QWidget *control) const
{
    // At the left, where a radio button has its indicator.
    QTest::mouseClick(control, Qt::LeftButton, Qt::NoModifier, QPoint(8, control->height() / 2));
}

QStringList CabinetRig::enabledControls() const
{
    QStringList names;
    const auto children = panel->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *child : children) {
        if (child->isEnabled())
            names << (child == layoutButton() ? QStringLiteral("layout") : child->objectName());
    }
    return names;
}

bool CabinetRig::isSaveDue() const
{
    return panel->findChild<SaveSoon *>()->isDue();
}

QVariant CabinetRig::stored(const char *key) const
{
    return settings.stored().value(QLatin1String(key));
}

void DialogAnswers::color(const QColor &color)
{
    ColorDialog::setAnswer([color](const QColor &) { return color; });
}

void DialogAnswers::file(const QString &path)
{
    FileDialog::setAnswer([path](const QString &) { return path; });
}

DialogAnswers::~DialogAnswers()
{
    ColorDialog::setAnswer({});
    FileDialog::setAnswer({});
}
