#include "host/recovery/targetcheck.h"

#include "host/scan/shownpath.h"
#include "host/tree/texts.h"
#include "platform/system/storage.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

namespace {

struct TargetTexts
{
    Q_DECLARE_TR_FUNCTIONS(TargetCheck)
};

QString absolute(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

/// What there is already of \a path.
QString existing(const QString &path)
{
    QString part = absolute(path);
    while (!QFileInfo::exists(part)) {
        const QString above = QFileInfo(part).path();
        if (above == part)
            break;
        part = above;
    }
    return part;
}

/// The computer's own disks are no cards: a folder there may well be copied to another one.
bool isOwnDisk(const QSet<QByteArray> &disks)
{
    for (const QString &place : {QDir::rootPath(), QDir::homePath(), QDir::tempPath()}) {
        if (System::disksOf(place).intersects(disks))
            return true;
    }
    return false;
}

bool isSameCard(const QString &source, const QString &target)
{
    const QSet<QByteArray> disks = System::disksOf(source);
    return System::disksOf(target).intersects(disks) && !isOwnDisk(disks);
}

} // namespace

QString TargetCheck::refusal(const QString &source, const QString &target)
{
    if (source.isEmpty())
        return {};
    const QString from = absolute(source);
    const QString to = existing(target);
    const QString shown = shownPath(absolute(target));
    const QFileInfo info(from);
    if (info.isDir()) {
        if (System::isInside(to, from))
            return TargetTexts::tr("%1 lies in the folder that was scanned. Choose a folder "
                                   "outside it.")
                .arg(shown);
    } else if (System::isSameFile(to, from)) {
        return TargetTexts::tr("%1 is the disk image that was scanned, not a folder. Choose a "
                               "folder.")
            .arg(shown);
    }
    const bool isImage = info.isFile();
    if (System::isOnMedium(to, from) || (!isImage && isSameCard(from, to)))
        return TargetTexts::tr("%1 is on the card that is being recovered. Writing there could "
                               "destroy what is still to be recovered. Choose a folder on another "
                               "disk.")
            .arg(shown);
    return {};
}

QString TargetCheck::refusalForSize(qint64 bytes, const QString &target)
{
    const qint64 free = freeBytes(target);
    if (free < 0 || bytes <= free)
        return {};
    return TargetTexts::tr("There is not enough room at %1: the files need %2, only %3 are free. "
                           "Choose another folder or check fewer files.")
        .arg(shownPath(absolute(target)), Texts::size(bytes), Texts::size(free));
}

qint64 TargetCheck::freeBytes(const QString &target)
{
    const QStorageInfo storage(existing(target));
    return storage.isValid() && storage.isReady() ? storage.bytesAvailable() : -1;
}
