#pragma once

#include <QString>

/// Families of file types; the values are those of a record's `fileCategory`.
enum FileCategory {
    OtherCategory = 0,
    AudioCategory = 2,
    VideoCategory = 3,
    CameraVideoCategory = 4, ///< what cameras write: MTS, INSV, MOD …
    DocumentCategory = 5,
    EmailCategory = 6,
    DatabaseCategory = 7,
    PhotoCategory = 8, ///< camera raw files too
    WebCategory = 9,
    ArchiveCategory = 10,
};

/// What follows the last dot of \a fileName, case kept; empty when there is none, and for names
/// that only begin with a dot.
QString extensionOf(const QString &fileName);

/// The family of files that end in \a extension (no dot, any case). Folders have none: 0.
FileCategory categoryOfExtension(const QString &extension);

/// The `rootType` of the top item of a tree that shows one family. Both kinds of video share one.
int rootTypeOfCategory(FileCategory category);
