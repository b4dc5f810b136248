#pragma once

#include <qnamespace.h>

/// Data roles of ScanDataModel beside Qt's own. The values are fixed: they serve as sort roles too.
enum ScanItemRole {
    PathTextRole = Qt::UserRole, ///< QString, the display path
    NameRole,                    ///< QString
    ModifiedTimeRole,            ///< qint64, seconds since the epoch
    KindRole,                    ///< int: 1 folder, 2 file; as a sort role: the type
    FileIdRole,                  ///< qint64
    SecondaryIdRole,             ///< qint64
    SizeRole,                    ///< qint64, bytes: of a folder's contents or of the file
    CountRole,                   ///< qint64, items in a folder; negative: unknown
};
