#include "screenwakelock.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QProcess>
#include <QtTest>

namespace {

// What a desktop offers, with count of what programs hold of it; answers only when it is told to.
class Desktop
    : public QObject
    , protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

public:
    QStringList reasons;
    QVector<uint> givenBack;
    bool answersLate = false;
    QDBusMessage waiting;

public slots:
    uint Inhibit(const QString & /*program*/, const QString &reason)
    {
        reasons.append(reason);
        if (answersLate) {
            setDelayedReply(true);
            waiting = message();
        }
        return static_cast<uint>(reasons.size());
    }
    void UnInhibit(uint cookie) { givenBack.append(cookie); }
};

// The portal's request, which a program closes to give back what it holds.
class PortalRequest : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Request")

public:
    int closed = 0;

public slots:
    void Close() { ++closed; }
};

class Portal
    : public QObject
    , protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Inhibit")

public:
    QVector<uint> flags;
    bool answersLate = false;
    QDBusMessage waiting;

public slots:
    QDBusObjectPath Inhibit(const QString & /*window*/, uint what, const QVariantMap & /*options*/)
    {
        flags.append(what);
        if (answersLate) {
            setDelayedReply(true);
            waiting = message();
        }
        return QDBusObjectPath("/request");
    }
};

} // namespace

class tst_ScreenWakeLock : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void shown_inhibitsUntilHidden();
    void destroyed_givesBack();
    void hiddenBeforeTheAnswer_givesBackWhatComes();
    void shownAgainBeforeTheAnswer_isOneRequest();
    void shownBeforeTheLock_isHeldAtOnce();
    void withoutScreenSaver_asksThePortal();
    void withoutEither_isQuietAndAsksAgainWhenShownAgain();
    void serviceThatComesLaterOrAgain_isAsked();
    void serviceThatComesWhileThePortalIsAsked_isAskedToo();
    void shownAgainBeforeTheRefusal_asksAgain();

private:
    QDBusConnection bus() const { return QDBusConnection(QStringLiteral("desktop")); }
    void offerScreenSaver();
    void offerPortal(Portal *portal) const;
    void withdrawServices() const;
    void showUnanswered();
    void deliverAnswers() const;

    QProcess m_daemon;
    std::unique_ptr<Desktop> m_desktop;
    std::unique_ptr<QWidget> m_window;
};

void tst_ScreenWakeLock::initTestCase()
{
    m_daemon.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--config-file=" TARN_TEST_BUS), QStringLiteral("--nofork"),
                    QStringLiteral("--print-address")});
    QVERIFY2(m_daemon.waitForReadyRead(), "dbus-daemon is needed");
    const QByteArray address = m_daemon.readLine().trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    QDBusConnection::connectToBus(QString::fromLocal8Bit(address), QStringLiteral("desktop"));
    QVERIFY(bus().isConnected());
}

void tst_ScreenWakeLock::init()
{
    m_desktop = std::make_unique<Desktop>();
    m_window = std::make_unique<QWidget>();
}

void tst_ScreenWakeLock::offerScreenSaver()
{
    QVERIFY(bus().registerObject(QStringLiteral("/org/freedesktop/ScreenSaver"), m_desktop.get(),
                                 QDBusConnection::ExportAllSlots));
    QVERIFY(bus().registerService(QStringLiteral("org.freedesktop.ScreenSaver")));
}

void tst_ScreenWakeLock::offerPortal(Portal *portal) const
{
    QVERIFY(bus().registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), portal,
                                 QDBusConnection::ExportAllSlots));
    QVERIFY(bus().registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
}

void tst_ScreenWakeLock::showUnanswered()
{
    offerScreenSaver();
    m_desktop->answersLate = true;
    new ScreenWakeLock(m_window.get());
    m_window->show();
    QTRY_COMPARE(m_desktop->reasons.size(), 1);
}

// What has been answered before, and what was asked of the bus itself, arrives before this returns.
void tst_ScreenWakeLock::deliverAnswers() const
{
    for (const QDBusConnection &connection : {bus(), QDBusConnection::sessionBus()}) {
        const QDBusPendingCallWatcher watcher(connection.asyncCall(QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/"),
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId"))));
        QVERIFY(QSignalSpy(&watcher, &QDBusPendingCallWatcher::finished).wait());
    }
}

void tst_ScreenWakeLock::cleanup()
{
    m_window.reset();
    withdrawServices();
}

void tst_ScreenWakeLock::withdrawServices() const
{
    bus().unregisterService(QStringLiteral("org.freedesktop.ScreenSaver"));
    bus().unregisterService(QStringLiteral("org.freedesktop.portal.Desktop"));
    bus().unregisterObject(QStringLiteral("/org"), QDBusConnection::UnregisterTree);
    bus().unregisterObject(QStringLiteral("/request"));
}

void tst_ScreenWakeLock::cleanupTestCase()
{
    QDBusConnection::disconnectFromBus(QStringLiteral("desktop"));
    m_daemon.terminate();
    m_daemon.waitForFinished();
}

void tst_ScreenWakeLock::shown_inhibitsUntilHidden()
{
    offerScreenSaver();
    new ScreenWakeLock(m_window.get());
    for (uint cookie = 1; cookie <= 2; ++cookie) {
        m_window->show();
        QTRY_COMPARE(m_desktop->reasons.size(), static_cast<int>(cookie));
        QCOMPARE(m_desktop->givenBack.size(), static_cast<int>(cookie) - 1);
        m_window->hide();
        QTRY_COMPARE(m_desktop->givenBack.size(), static_cast<int>(cookie));
        QCOMPARE(m_desktop->givenBack.constLast(), cookie);
    }
    QVERIFY(!m_desktop->reasons.constFirst().isEmpty());
}

void tst_ScreenWakeLock::destroyed_givesBack()
{
    offerScreenSaver();
    new ScreenWakeLock(m_window.get());
    m_window->show();
    QTRY_COMPARE(m_desktop->reasons.size(), 1);
    deliverAnswers();
    m_window.reset();
    QTRY_COMPARE(m_desktop->givenBack, QVector<uint>{1});
}

void tst_ScreenWakeLock::hiddenBeforeTheAnswer_givesBackWhatComes()
{
    showUnanswered();
    m_window->hide();
    bus().send(m_desktop->waiting.createReply(QVariant(7U)));
    QTRY_COMPARE(m_desktop->givenBack, QVector<uint>{7});
}

void tst_ScreenWakeLock::shownAgainBeforeTheAnswer_isOneRequest()
{
    showUnanswered();
    m_window->hide();
    m_window->show();
    deliverAnswers();
    QCOMPARE(m_desktop->reasons.size(), 1);
}

void tst_ScreenWakeLock::shownBeforeTheLock_isHeldAtOnce()
{
    offerScreenSaver();
    m_window->show();
    new ScreenWakeLock(m_window.get());
    QTRY_COMPARE(m_desktop->reasons.size(), 1);
}

void tst_ScreenWakeLock::withoutScreenSaver_asksThePortal()
{
    Portal portal;
    PortalRequest request;
    bus().registerObject(QStringLiteral("/request"), &request, QDBusConnection::ExportAllSlots);
    offerPortal(&portal);
    new ScreenWakeLock(m_window.get());
    m_window->show();
    QTRY_COMPARE(portal.flags, QVector<uint>{8}); // against the session becoming idle
    m_window->hide();
    QTRY_COMPARE(request.closed, 1);
}

void tst_ScreenWakeLock::withoutEither_isQuietAndAsksAgainWhenShownAgain()
{
    new ScreenWakeLock(m_window.get());
    m_window->show();
    deliverAnswers(); // there is no screen saver
    deliverAnswers(); // nor a portal
    offerScreenSaver();
    m_window->hide();
    m_window->show();
    QTRY_COMPARE(m_desktop->reasons.size(), 1);
}

// As at the start of a session, or when the desktop's service crashes.
void tst_ScreenWakeLock::serviceThatComesLaterOrAgain_isAsked()
{
    new ScreenWakeLock(m_window.get());
    m_window->show();
    deliverAnswers(); // there is no screen saver
    deliverAnswers(); // nor a portal
    for (int time = 1; time <= 2; ++time) {
        offerScreenSaver();
        QTRY_COMPARE(m_desktop->reasons.size(), time);
        deliverAnswers();
        withdrawServices();
        deliverAnswers();
    }
    m_window->hide();
    offerScreenSaver();
    deliverAnswers();
    QCOMPARE(m_desktop->reasons.size(), 2);
    QVERIFY(m_desktop->givenBack.isEmpty()); // what had granted it is gone
}

// At the start of a session the portal may take long, and then refuse.
void tst_ScreenWakeLock::serviceThatComesWhileThePortalIsAsked_isAskedToo()
{
    Portal portal;
    portal.answersLate = true;
    offerPortal(&portal);
    new ScreenWakeLock(m_window.get());
    m_window->show();
    QTRY_COMPARE(portal.flags.size(), 1);
    offerScreenSaver();
    deliverAnswers();
    bus().send(portal.waiting.createErrorReply(QDBusError::Failed, QString()));
    QTRY_COMPARE(m_desktop->reasons.size(), 1);
    QCOMPARE(portal.flags.size(), 1);
}

void tst_ScreenWakeLock::shownAgainBeforeTheRefusal_asksAgain()
{
    showUnanswered();
    m_window->hide();
    m_window->show();
    bus().send(m_desktop->waiting.createErrorReply(QDBusError::Failed, QString()));
    QTRY_COMPARE(m_desktop->reasons.size(), 2);
}

QTEST_MAIN(tst_ScreenWakeLock)
#include "tst_screenwakelock.moc"
