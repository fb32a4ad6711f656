#include "cabinetrig.h"

#include "colordialog.h"
#include "filedialog.h"
#include "picturestore.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QtTest>

namespace {

constexpr QSize canvasSize(128, 64);

// Leaves the picture there first, for the panel to find.
template<typename Settings>
const Settings &after(const QByteArray &kept, const Settings &settings)
{
    KeptPicture::set(kept);
    return settings;
}

} // namespace

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
    PictureStore::finish();
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
    PictureStore::finish();
    QFile file(path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace KeptPicture

const char *const countKeys[] = {"tarnBoxWidth", "tarnBoxHeight", "tarnModelColumnCount",
                                 "tarnModelRowCount"};
const char *const advancedKeys[] = {"advanceFontSize",  "advanceBeginRow",  "advanceBeginColumn",
                                    "advanceModeWidth", "advanceScanWidth", "advanceFontShape"};

QVector<int> advancedFields(const ScrGrid &drawer)
{
    return {drawer.m_fontSize,        drawer.m_beginRow,      drawer.m_beginColumn,
            drawer.m_moduleLineWidth, drawer.m_scanLineWidth, drawer.m_fontShape};
}

CabinetRig::CabinetRig(const QVariantMap &values, const QByteArray &kept)
    : PanelRig(after(kept, values), canvasSize)
{
    takeDrawer();
}

CabinetRig::CabinetRig(const QByteArray &contents)
    : PanelRig(after({}, contents), canvasSize)
{
    takeDrawer();
}

void CabinetRig::takeDrawer()
{
    drawer = qobject_cast<ScrGrid *>(panel->getDrawer());
}

void CabinetRig::restart()
{
    PanelRig::restart();
    takeDrawer();
}

QPushButton *CabinetRig::pushButton(int index) const
{
    const auto buttons = panel->findChildren<QPushButton *>(QStringLiteral("normalContentPushBtn"));
    if (buttons.size() != 2)
        qFatal("there are not two buttons of this name");
    const bool inOrder = buttons.first()->x() < buttons.last()->x();
    return buttons.at(inOrder ? index : 1 - index);
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

void DialogAnswers::none()
{
    ColorDialog::setAnswer([](const QColor &) -> QColor { qFatal("nothing is to be asked"); });
    FileDialog::setAnswer([](const QString &) -> QString { qFatal("nothing is to be asked"); });
}

DialogAnswers::~DialogAnswers()
{
    ColorDialog::setAnswer({});
    FileDialog::setAnswer({});
}
