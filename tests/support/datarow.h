#pragma once

#include <QTest>

#include <initializer_list>
#include <utility>

/// The columns of a data table, side by side: addColumns<int, bool>({"size", "hit"}).
template <typename... Types>
void addColumns(const char *const (&names)[sizeof...(Types)])
{
    const char *const *name = names;
    (QTest::addColumn<Types>(*name++), ...);
}

/// A row of a data table, its values side by side.
template <typename... Values>
void addRow(const char *name, Values... values)
{
    QTestData &row = QTest::newRow(name);
    (row << ... << values);
}

/// A table of one column: addRows<int>("mode", {{"grid", 0}, {"list", 2}}).
template <typename Type>
void addRows(const char *column, std::initializer_list<std::pair<const char *, Type>> rows)
{
    QTest::addColumn<Type>(column);
    for (const auto &row : rows)
        QTest::newRow(row.first) << row.second;
}
