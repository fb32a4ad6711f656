#pragma once

#include <QByteArray>

#include <random>

// Makes bytes that nobody would write, and damages those that somebody has. The same seed gives the
// same bytes everywhere.
class RandomBytes
{
public:
    explicit RandomBytes(quint32 seed)
        : m_random(seed)
    { }

    quint32 number() { return quint32(m_random()); }
    // From 0 on.
    int below(int limit) { return int(number() % quint32(limit)); }

    QByteArray garbage(int size);
    // With some bytes more, some less, some twice, some others, and perhaps without the end. More
    // of those in `troublesome`, if there are any.
    QByteArray damaged(QByteArray content, const QByteArray &troublesome = {});

    static QByteArray bigEndian(quint32 value);

private:
    std::mt19937 m_random;
};
