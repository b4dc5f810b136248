#pragma once

#include <QTest>

/// A row of a data table, its values side by side.
template <typename... Values>
void addRow(const char *name, Values... values)
{
    QTestData &row = QTest::newRow(name);
    (row << ... << values);
}
