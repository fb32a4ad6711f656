#include "compositorserver.h"

#include <QFile>
#include <QStandardPaths>

namespace {

// Whoever may run the test may use the X server; the session lasts as long as the compositor.
constexpr char session[] = R"(#!/bin/sh
xhost +local:
printf '\n%s\n' "${DISPLAY#:}" >&2
exec tail --pid=$PPID -f /dev/null
)";

} // namespace

CompositorServer::CompositorServer(const QString &name, const QSize &size, qreal scale)
    : XServer(QProcess::MergedChannels) // one of them forwards the error output alone
    , m_name(name)
    , m_size(size)
    , m_scale(scale)
{
    QFile file(path("session"));
    if (file.open(QIODevice::WriteOnly))
        file.write(session);
    file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    // A copy, without the capability that a container may not have to give.
    if (isKwin())
        QFile::copy(QStandardPaths::findExecutable(m_name), program());
}

QString CompositorServer::program() const
{
    return isKwin() ? path("kwin_wayland") : QStringLiteral("mutter");
}

QStringList CompositorServer::arguments() const
{
    if (isKwin()) {
        return {QStringLiteral("--virtual"),
                QStringLiteral("--xwayland"),
                QStringLiteral("--no-lockscreen"),
                QStringLiteral("--no-global-shortcuts"),
                QStringLiteral("--width"),
                QString::number(m_size.width()),
                QStringLiteral("--height"),
                QString::number(m_size.height()),
                QStringLiteral("--scale"),
                QString::number(m_scale),
                QStringLiteral("--exit-with-session"),
                path("session")};
    }
    // Ten frames a second: they are painted without a graphics card.
    return {QStringLiteral("--headless"), QStringLiteral("--virtual-monitor"),
            QStringLiteral("%1x%2@10").arg(m_size.width()).arg(m_size.height()),
            QStringLiteral("--"), path("session")};
}
