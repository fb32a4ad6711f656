#pragma once

#include "childprocess.h"

#include <QSize>
#include <QString>

/// An X server of the test's own; subclasses say which program serves, with
/// which screens.
class XServer
{
public:
    explicit XServer(QProcess::ProcessChannelMode output = QProcess::SeparateChannels);
    virtual ~XServer() = default;
    Q_DISABLE_COPY(XServer)

    /// Starts the server on a free display number. False, with problem() set,
    /// when it does not come up.
    bool start(const QProcessEnvironment &environment);
    /// Whether it brings its own window manager, which shows what the windows hold and leaves the
    /// root window empty.
    virtual bool isCompositor() const { return false; }

    /// The DISPLAY value to reach it by; empty before start().
    QString displayName() const { return m_displayName; }
    QString problem() const { return m_problem; }

protected:
    virtual QString program() const = 0;
    /// The arguments; the server must write its display number to its output, in
    /// a line of its own ("-displayfd 1").
    virtual QStringList arguments() const = 0;

private:
    bool readDisplayNumber();

    ChildProcess m_process;
    QString m_displayName;
    QString m_problem;
};

/// A virtual frame buffer with a single screen.
class XvfbServer : public XServer
{
public:
    /// \a dotsPerInch is how dense the screen claims to be.
    explicit XvfbServer(const QSize &size, int dotsPerInch = 96)
        : m_size(size)
        , m_dotsPerInch(dotsPerInch)
    { }

protected:
    QString program() const override;
    QStringList arguments() const override;

private:
    QSize m_size;
    int m_dotsPerInch;
};
