#pragma once

#include "randombytes.h"

// Makes settings files that nobody would write: random bytes, damaged files, and known
// keys with values that they never have. The same seed gives the same files everywhere.
class HostileFile : private RandomBytes
{
public:
    using RandomBytes::RandomBytes;

    QByteArray next();

private:
    QByteArray section();
    QByteArray value();
    QByteArray numberText();
    QByteArray text();
    QByteArray typed();
    QByteArray serialized();
    QByteArray disguised(QByteArray beginning);
    static QByteArray nestedLists(int depth);
};
