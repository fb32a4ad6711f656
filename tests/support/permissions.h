#pragma once

#include <QFile>

#ifdef Q_OS_LINUX
#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

// Takes the superuser's right to override permissions away from this process for a while.
class OrdinaryRights
{
public:
    OrdinaryRights() { set(true); }
    ~OrdinaryRights() { set(false); }
    Q_DISABLE_COPY(OrdinaryRights)

private:
    static void set(bool ordinary)
    {
#ifdef Q_OS_LINUX
        __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
        __user_cap_data_struct data[2] = {};
        if (syscall(SYS_capget, &header, data) != 0)
            return;
        constexpr quint32 overriding = 1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH;
        data[0].effective = ordinary ? data[0].effective & ~overriding : data[0].permitted;
        syscall(SYS_capset, &header, data);
#else
        Q_UNUSED(ordinary)
#endif
    }
};

// Leaves the owner nothing but reading, and what else is given, until the end of the scope.
class ReadOnly
{
public:
    ReadOnly(const QString &path, QFileDevice::Permissions more)
        : m_path(path)
        , m_before(QFile::permissions(path))
    {
        QFile::setPermissions(path, QFileDevice::ReadOwner | more);
    }
    ~ReadOnly() { QFile::setPermissions(m_path, m_before); }
    Q_DISABLE_COPY(ReadOnly)

private:
    const QString m_path;
    const QFileDevice::Permissions m_before;
};
