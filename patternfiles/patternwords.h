#pragma once

#include <QStringList>

// What the command line and the names of files call things.
namespace PatternWords {

inline QStringList list(const char *words)
{
    return QString::fromLatin1(words).split(QLatin1Char(','));
}

// In the order of the colour table.
inline QStringList colors()
{
    return list("red,green,blue,white,yellow,cyan,purple");
}

// By direction.
inline QStringList families()
{
    return list("horizontal,vertical,slant-left,slant-right");
}

} // namespace PatternWords
