#pragma once

#include <QMetaType>

/// A sort that the user has chosen. An odd value is ascending, the even one after it descending.
enum HeaderViewSortType {
    NoSort = 0,
    NameAscending = 1,
    NameDescending = 2,
    SizeAscending = 3,
    SizeDescending = 4,
    TypeAscending = 5,
    TypeDescending = 6,
    DateAscending = 7,
    DateDescending = 8,
};

Q_DECLARE_METATYPE(HeaderViewSortType)
