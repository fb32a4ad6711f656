#pragma once

#include <QSignalSpy>

#include <memory>
#include <vector>

// Every signal of an object's own class, as it is emitted.
class SignalLog
{
public:
    explicit SignalLog(QObject *object);

    // "name(argument,argument)" for each emission since the last call, one signal after the other.
    QString take();

private:
    std::vector<std::unique_ptr<QSignalSpy>> m_spies;
};
