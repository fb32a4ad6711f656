#pragma once

#include "xserver.h"

#include <QTemporaryDir>

/// A Wayland compositor with one virtual screen: it is the window manager of an X server of its
/// own, whose windows it shows.
class CompositorServer : public XServer
{
public:
    /// \a name is what the environment variable TARN_WINDOW_MANAGER calls it. One of KWin's is
    /// scaled by \a scale.
    CompositorServer(const QString &name, const QSize &size, qreal scale = 1);

    bool isCompositor() const override { return true; }

protected:
    QString program() const override;
    QStringList arguments() const override;

private:
    QString path(const char *file) const { return m_directory.filePath(QLatin1String(file)); }
    bool isKwin() const { return m_name == QLatin1String("kwin_wayland"); }

    QString m_name;
    QSize m_size;
    qreal m_scale;
    QTemporaryDir m_directory;
};
