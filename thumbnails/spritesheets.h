#pragma once

#include <QImage>
#include <QString>
#include <QVector>

/// The animation sprite sheets and how their frames lie in them.
namespace SpriteSheets {

enum Sheet { LoadDisk, Backing, ScanProgress, ScanNoData, Loading, Searching, RepairProgress };
constexpr int Count = RepairProgress + 1;

struct Layout
{
    const char *path; ///< resource path without ".png"
    int side;         ///< of a frame, in pixels
    int frames;
    int framesPerRow;
};

const Layout &layout(Sheet sheet);
/// Where \a frame lies in its sheet.
QRect frameRect(const Layout &layout, int frame);
/// The frames of the sheet at its path, in their order. Empty with one log line when the sheet is
/// missing or smaller than its frames. Any thread.
QVector<QImage> cut(const Layout &layout);

} // namespace SpriteSheets
