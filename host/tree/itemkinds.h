#pragma once

#include <QString>

#include <array>

/// The kinds of files that results are grouped by.
struct ItemKind
{
    const char *key;   ///< what the record of the kind is called
    const char *title; ///< English, for translation in the context "ItemKinds"
    int rootType;
};

namespace ItemKinds {

/// The root of the files of every kind.
constexpr int AllFilesRootType = 56;
constexpr int PhotosRootType = 26;

/// In the order in which they are shown; the last one takes what fits nowhere else.
constexpr std::array<ItemKind, 9> All{{
    {"zenvo_photo", QT_TRANSLATE_NOOP("ItemKinds", "Photos"), PhotosRootType},
    {"zenvo_video", QT_TRANSLATE_NOOP("ItemKinds", "Videos"), 11},
    {"zenvo_audio", QT_TRANSLATE_NOOP("ItemKinds", "Audio"), 10},
    {"zenvo_document", QT_TRANSLATE_NOOP("ItemKinds", "Documents"), 24},
    {"zenvo_email", QT_TRANSLATE_NOOP("ItemKinds", "Email"), 25},
    {"zenvo_database", QT_TRANSLATE_NOOP("ItemKinds", "Databases"), 23},
    {"zenvo_webfiles", QT_TRANSLATE_NOOP("ItemKinds", "Web files"), 27},
    {"zenvo_archive", QT_TRANSLATE_NOOP("ItemKinds", "Archives"), 9},
    {"zenvo_others", QT_TRANSLATE_NOOP("ItemKinds", "Others"), 50},
}};

/// Index into All of the kind of files of \a fileCategory.
int indexOfCategory(int fileCategory);
/// What users read; "All files" for AllFilesRootType.
QString titleOf(int rootType);

} // namespace ItemKinds
