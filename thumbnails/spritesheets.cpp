#include "thumbnails/spritesheets.h"

#include <QDebug>
#include <QRect>

namespace SpriteSheets {

namespace {

constexpr Layout Layouts[Count] = {
    {":/Images/DiskLoading/loaddisk", 224, 24, 24},
    {":/Images/DiskLoading/backing", 224, 24, 24},
    {":/Images/Scan/icon_scan_progress100", 112, 75, 22},
    {":/Images/image_scannodata", 284, 138, 8},
    {":/Images/Loading/loading", 240, 90, 10},
    {":/Images/Searching/searching", 64, 41, 39},
    {":/Images/repairpicturesprogress", 284, 60, 8},
};

} // namespace

const Layout &layout(Sheet sheet)
{
    return Layouts[sheet];
}

QRect frameRect(const Layout &layout, int frame)
{
    const int column = frame % layout.framesPerRow;
    const int row = frame / layout.framesPerRow;
    return {column * layout.side, row * layout.side, layout.side, layout.side};
}

QVector<QImage> cut(const Layout &layout)
{
    const QString path = QStringLiteral("%1.png").arg(QLatin1String(layout.path));
    const QImage sheet(path);
    if (!sheet.rect().contains(frameRect(layout, layout.frames - 1))) {
        qWarning() << "SpriteSheets: missing or too small:" << path << sheet.size();
        return {};
    }
    QVector<QImage> frames;
    frames.reserve(layout.frames);
    for (int i = 0; i < layout.frames; ++i)
        frames.append(sheet.copy(frameRect(layout, i)));
    return frames;
}

} // namespace SpriteSheets
