#include "randombytes.h"

QByteArray RandomBytes::garbage(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (char &byte : bytes)
        byte = char(number());
    return bytes;
}

QByteArray RandomBytes::damaged(QByteArray content, const QByteArray &troublesome)
{
    for (int damage = below(20); damage >= 0; --damage) {
        const int place = below(content.size() + 1);
        switch (below(troublesome.isEmpty() ? 4 : 5)) {
        case 0:
            content.insert(place, garbage(below(20)));
            break;
        case 1:
            content.remove(place, below(40));
            break;
        case 2:
            content.insert(place, content.mid(below(content.size() + 1), below(200)));
            break;
        case 3:
            if (place < content.size())
                content[place] = char(number());
            break;
        default:
            content.insert(place, troublesome.at(below(troublesome.size())));
            break;
        }
    }
    if (below(5) == 0)
        content.truncate(below(content.size() + 1));
    return content;
}

QByteArray RandomBytes::bigEndian(quint32 value)
{
    QByteArray bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes += char(value >> shift);
    return bytes;
}
