#pragma once

#include <QByteArray>

#include <random>

// Makes settings files that nobody would write: random bytes, damaged files, and known
// keys with values that they never have. The same seed gives the same files everywhere.
class HostileFile
{
public:
    explicit HostileFile(quint32 seed)
        : m_random(seed)
    { }

    QByteArray next();

private:
    int below(int limit);
    QByteArray garbage(int size);
    QByteArray section();
    QByteArray damaged(QByteArray content);
    QByteArray value();
    QByteArray number();
    QByteArray text();
    QByteArray typed();
    QByteArray serialized();
    QByteArray disguised(QByteArray beginning);
    static QByteArray nestedLists(int depth);

    std::mt19937 m_random;
};
