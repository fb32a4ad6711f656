#pragma once

#include <QLatin1String>

// A constant string at compile time, on compilers too that do not count the letters of
// a QLatin1String by themselves.
template<int size>
constexpr QLatin1String latin1(const char (&text)[size])
{
    return QLatin1String(text, size - 1);
}
