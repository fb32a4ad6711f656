#pragma once

#include <QtTest>

#include <initializer_list>
#include <type_traits>
#include <utility>

// The table of a test: adds a row with each call, its name in front. Columns of `const char *`
// are fetched as QString.
template<typename... Columns>
class Table
{
public:
    template<typename... Names>
    explicit Table(Names... names)
    {
        static_assert(sizeof...(Names) == sizeof...(Columns));
        (QTest::addColumn<Fetched<Columns>>(names), ...);
    }

    void operator()(const char *name, const Columns &...values) const
    {
        (QTest::newRow(name) << ... << values);
    }

private:
    template<typename Column>
    using Fetched = std::conditional_t<std::is_same_v<Column, const char *>, QString, Column>;
};

// A short table of one column.
template<typename Column>
void addRows(const char *column, std::initializer_list<std::pair<const char *, Column>> rows)
{
    const Table<Column> row(column);
    for (const auto &each : rows)
        row(each.first, each.second);
}

// One of texts that are the names of their rows.
template<typename Text = const char *>
void addNames(const char *column, std::initializer_list<const char *> names)
{
    const Table<Text> row(column);
    for (const char *name : names)
        row(name, name);
}
