#pragma once

#include <QTest>

#include <array>

/// One test row a table row, named by one of its texts.
template<typename Row, std::size_t size>
void addRows(const std::array<Row, size> &table, const char *Row::*name)
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const Row &row : table) {
        QTest::addRow("%d %s", index, row.*name) << index;
        ++index;
    }
}
