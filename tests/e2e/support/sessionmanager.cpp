#include "sessionmanager.h"

#include "waiting.h"

#include <QTimer>

#include <cstdlib>

#include <X11/ICE/ICElib.h>
#include <X11/ICE/ICEutil.h>
#include <X11/SM/SMlib.h>
#include <poll.h>

struct SessionManager::Session
{
    int listenerCount = 0;
    IceListenObj *listeners = nullptr;
    IceConn connection = nullptr;
    SmsConn program = nullptr;
    bool registered = false;
    int saves = 0; // finished ones
    QTimer clock;

    bool open();
    void pump();
};

namespace {

constexpr int pumpIntervalMs = 5;

using Session = SessionManager::Session;

Status registerClient(SmsConn program, SmPointer /*data*/, char *previousId)
{
    std::free(previousId);
    char *id = SmsGenerateClientID(program);
    SmsRegisterClientReply(program, id);
    std::free(id);
    // A program that joins is asked to save itself once, without the session ending.
    SmsSaveYourself(program, SmSaveLocal, False, SmInteractStyleNone, False);
    return 1;
}

void ignoreRequest(SmsConn /*program*/, SmPointer /*data*/, int /*dialogType*/) { }
void ignoreDone(SmsConn /*program*/, SmPointer /*data*/, Bool /*cancel*/) { }
void ignoreSaveRequest(SmsConn, SmPointer, int, Bool, int, Bool, Bool) { }

void allowSecondPhase(SmsConn program, SmPointer /*data*/)
{
    SmsSaveYourselfPhase2(program);
}

void saveDone(SmsConn program, SmPointer data, Bool /*success*/)
{
    auto *session = static_cast<Session *>(data);
    ++session->saves;
    session->registered = true;
    if (session->saves == 1)
        SmsSaveComplete(program);
}

void closeConnection(SmsConn program, SmPointer data, int count, char **reasons)
{
    SmFreeReasons(count, reasons);
    SmsCleanUp(program);
    static_cast<Session *>(data)->program = nullptr;
}

void dropProperties(SmsConn /*program*/, SmPointer /*data*/, int count, SmProp **properties)
{
    for (int index = 0; index < count; ++index)
        SmFreeProperty(properties[index]);
    std::free(properties);
}

void dropNames(SmsConn /*program*/, SmPointer /*data*/, int count, char **names)
{
    for (int index = 0; index < count; ++index)
        std::free(names[index]);
    std::free(names);
}

void returnNoProperties(SmsConn program, SmPointer /*data*/)
{
    SmsReturnProperties(program, 0, nullptr);
}

Status newProgram(SmsConn program, SmPointer data, unsigned long *mask, SmsCallbacks *calls,
                  char ** /*why*/)
{
    static_cast<Session *>(data)->program = program;
    *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask
            | SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask
            | SmsSaveYourselfDoneProcMask | SmsCloseConnectionProcMask | SmsSetPropertiesProcMask
            | SmsDeletePropertiesProcMask | SmsGetPropertiesProcMask;
    calls->register_client = {registerClient, data};
    calls->interact_request = {ignoreRequest, data};
    calls->interact_done = {ignoreDone, data};
    calls->save_yourself_request = {ignoreSaveRequest, data};
    calls->save_yourself_phase2_request = {allowSecondPhase, data};
    calls->save_yourself_done = {saveDone, data};
    calls->close_connection = {closeConnection, data};
    calls->set_properties = {dropProperties, data};
    calls->delete_properties = {dropNames, data};
    calls->get_properties = {returnNoProperties, data};
    return 1;
}

Bool admitEveryone(char * /*hostName*/)
{
    return True;
}

// The library's own handler would end the test when the program hangs up.
void ignoreHangUp(IceConn /*connection*/) { }

bool isReadable(int descriptor)
{
    pollfd entry = {descriptor, POLLIN, 0};
    return ::poll(&entry, 1, 0) > 0;
}

} // namespace

bool SessionManager::Session::open()
{
    char error[256] = "";
    // The C library can be set up only once in a process, so one test has one session.
    if (!SmsInitialize("TarnTestTool", "1", newProgram, this, admitEveryone, sizeof error, error)
        || !IceListenForConnections(&listenerCount, &listeners, sizeof error, error)) {
        qWarning("No session: %s", error);
        return false;
    }
    IceSetIOErrorHandler(ignoreHangUp);
    for (int index = 0; index < listenerCount; ++index)
        IceSetHostBasedAuthProc(listeners[index], admitEveryone);
    return true;
}

void SessionManager::Session::pump()
{
    for (int index = 0; !connection && index < listenerCount; ++index) {
        IceAcceptStatus status = IceAcceptFailure;
        if (isReadable(IceGetListenConnectionNumber(listeners[index])))
            connection = IceAcceptConnection(listeners[index], &status);
    }
    while (connection && isReadable(IceConnectionNumber(connection))) {
        if (IceProcessMessages(connection, nullptr, nullptr) != IceProcessMessagesSuccess) {
            IceCloseConnection(connection);
            connection = nullptr;
        }
    }
}

SessionManager::SessionManager()
    : m_session(std::make_unique<Session>())
{
    if (!m_session->open())
        m_session->listenerCount = 0;
    // The program talks to its session while the test waits for its windows.
    QObject::connect(&m_session->clock, &QTimer::timeout, &m_session->clock,
                     [this] { m_session->pump(); });
    m_session->clock.start(pumpIntervalMs);
}

SessionManager::~SessionManager()
{
    if (m_session->listeners)
        IceFreeListenObjs(m_session->listenerCount, m_session->listeners);
}

QByteArray SessionManager::address() const
{
    if (m_session->listenerCount == 0)
        return {};
    char *networkIds = IceComposeNetworkIdList(m_session->listenerCount, m_session->listeners);
    QByteArray address(networkIds);
    std::free(networkIds);
    return address;
}

bool SessionManager::waitForProgram()
{
    return waitFor([this] { return m_session->registered; });
}

bool SessionManager::announceEnd()
{
    const int savesBefore = m_session->saves;
    SmsSaveYourself(m_session->program, SmSaveBoth, True, SmInteractStyleNone, False);
    return waitFor([this, savesBefore] { return m_session->saves > savesBefore; });
}

void SessionManager::dismiss()
{
    SmsDie(m_session->program);
    IceFlush(m_session->connection);
}
