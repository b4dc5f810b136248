#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>

/// Which disk a path leads to, whatever the path is called. Paths are absolute and exist; of one
/// that does not, nothing is known, and the answer is "no". Looks at the disk: not for painting.
/// Any thread.
namespace System {

/// Both names lead to one file or folder.
bool isSameFile(const QString &path, const QString &other);

/// \a path is \a folder or lies somewhere below it, also through links and mounts.
bool isInside(const QString &path, const QString &folder);

/// What is written to \a folder ends up on \a medium, a block device or a disk image that is
/// mounted.
bool isOnMedium(const QString &folder, const QString &medium);

/// The disks, whole ones and not partitions, that \a path lies on or, of a device, that it is.
/// File systems without a disk count as one each.
QSet<QByteArray> disksOf(const QString &path);

} // namespace System
