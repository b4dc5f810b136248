#pragma once

#include <QColor>
#include <QIcon>

/// The host's icons: line drawings on a grid of 20, drawn anew at every size and scale.
enum class Glyph {
    OpenFolder,
    Disk,
    Search,
    Sparkle,
    Close,
    Grid,
    ListDetail,
    List,
    Sun,
    Moon,
    Up,
    Left,
    Right,
    ChevronDown,
    ChevronRight,
    AllFiles,
    Photo,
    Video,
    Audio,
    Document,
    Email,
    Database,
    Web,
    Archive,
    Other,
    Deleted,
    Recover,
    Stop,
    CheckMany,
    Warning,
    Done,
};

/// \a glyph in \a color, in \a off where it is disabled and in \a on where it is chosen.
QIcon glyphIcon(Glyph glyph, const QColor &color, const QColor &off = {}, const QColor &on = {});
/// The glyph of a kind of files, by its `rootType`.
Glyph glyphOfKind(int rootType);
