#pragma once

#include <QByteArray>

#include <memory>

/// A desktop session's manager for one program, on a socket of its own: it asks the
/// program to save itself because the session ends, and then tells it to go.
class SessionManager
{
public:
    struct Session;

    SessionManager();
    ~SessionManager();
    Q_DISABLE_COPY(SessionManager)

    /// What a program of this session finds in SESSION_MANAGER; empty when the
    /// session could not be opened.
    QByteArray address() const;

    /// Waits until the program has joined the session.
    bool waitForProgram();
    /// Announces the end of the session; true once the program says that it has
    /// saved itself.
    bool announceEnd();
    /// Tells the program to go.
    void dismiss();

private:
    const std::unique_ptr<Session> m_session;
};
