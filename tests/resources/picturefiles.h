#pragma once

#include "thumbnails/spritesheets.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <QStringList>

/// The pictures that are compiled in. A "base" is a path without scale and extension:
/// ":/Images/Dark/icon16_half_check".
namespace PictureFiles {

inline QStringList bases()
{
    QStringList found;
    for (const QString &folder : {QStringLiteral(":/Images"), QStringLiteral(":/Resources")}) {
        QDirIterator files(folder, {QStringLiteral("*.png")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QString base = files.next();
            base.chop(int(qstrlen(".png")));
            if (base.endsWith(QLatin1String("@2x")))
                base.chop(int(qstrlen("@2x")));
            if (!found.contains(base))
                found.append(base);
        }
    }
    found.sort();
    return found;
}

inline QString path(const QString &base, int scale)
{
    return base + (scale == 2 ? QStringLiteral("@2x.png") : QStringLiteral(".png"));
}

inline QImage load(const QString &base, int scale)
{
    return QImage(path(base, scale)).convertToFormat(QImage::Format_ARGB32);
}

/// Null when \a base is no sheet of frames. Sheets exist once, in the size of their frames.
inline const SpriteSheets::Layout *sheetOf(const QString &base)
{
    for (int i = 0; i < SpriteSheets::Count; ++i) {
        const auto &layout = SpriteSheets::layout(SpriteSheets::Sheet(i));
        if (base == QLatin1String(layout.path))
            return &layout;
    }
    return nullptr;
}

/// What the name promises at 1x; invalid for a name that promises nothing.
inline QSize size(const QString &base)
{
    if (const SpriteSheets::Layout *sheet = sheetOf(base)) {
        const int rows = (sheet->frames + sheet->framesPerRow - 1) / sheet->framesPerRow;
        return QSize(qMin(sheet->framesPerRow, sheet->frames), rows) * sheet->side;
    }
    const QString name = QFileInfo(base).fileName();
    static const QRegularExpression side(QStringLiteral("^(?:icon|image)(\\d+)_"));
    const QRegularExpressionMatch match = side.match(name);
    if (match.hasMatch())
        return {match.captured(1).toInt(), match.captured(1).toInt()};
    struct Named
    {
        const char *start;
        QSize size;
    };
    static const Named named[] = {
        {"icon_sdcardthum_", {150, 124}}, {"thumbmask_", {146, 82}},
        {"icon_check_", {16, 16}},        {"icon_sort_", {16, 16}},
        {"icon_recoverability_", {6, 6}}, {"image_SDCardUnsourcedFiles_", {744, 288}}};
    for (const Named &entry : named)
        if (name.startsWith(QLatin1String(entry.start)))
            return entry.size;
    return {};
}

} // namespace PictureFiles
