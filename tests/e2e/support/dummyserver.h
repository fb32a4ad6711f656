#pragma once

#include "xserver.h"

#include <QMap>
#include <QRect>
#include <QStringList>
#include <QTemporaryDir>

/// An X server with several outputs of 1920 x 1080 pixels that come and go while
/// programs run. It starts with "DUMMY0" alone, which is the primary one.
class DummyServer : public XServer
{
public:
    static constexpr QSize OutputSize = QSize(1920, 1080);

    DummyServer();

    /// Switches an output on, at a place given as xrandr has it ("--right-of")
    /// relative to another one. False, with outputProblem() set, if that fails.
    bool plugIn(const QString &output, const QString &relation, const QString &other,
                const QSize &size = OutputSize);
    /// Switches an output off. False, with outputProblem() set, if that fails.
    bool unplug(const QString &output);
    /// Gives each output its place on the desktop, with swapped sides if it is turned: this driver
    /// turns none itself. A null place switches it off. False, with outputProblem() set, if that
    /// fails.
    bool arrange(const QMap<QString, QRect> &outputs);
    QString outputProblem() const { return m_outputProblem; }

protected:
    QString program() const override;
    QStringList arguments() const override;

private:
    bool detectOutputs();
    bool xrandr(const QStringList &arguments);

    QTemporaryDir m_directory;
    QString m_outputProblem;
};
