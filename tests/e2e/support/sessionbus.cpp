#include "sessionbus.h"

bool SessionBus::start()
{
    m_daemon.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--config-file=" TARN_TEST_BUS), QStringLiteral("--nofork"),
                    QStringLiteral("--print-address")},
                   QIODevice::ReadOnly);
    m_daemon.waitForReadyRead();
    m_address = QString::fromLocal8Bit(m_daemon.readLine()).trimmed();
    return !m_address.isEmpty();
}
