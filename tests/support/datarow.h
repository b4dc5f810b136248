#pragma once

#include <QTest>

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
