#pragma once

#include <QString>

/// Whether a folder may be recovered to. What is recovered must not be written to the card that it
/// comes from: a deleted file's place there is free for the taking.
namespace TargetCheck {

/// Why \a target is no place for what is in \a source (a folder, a disk image or a device), as a
/// sentence for the user; empty when nothing speaks against it. \a target need not exist yet.
/// Looks at what both paths lead to, whatever they are called.
QString refusal(const QString &source, const QString &target);

/// Why \a bytes do not fit; empty when they do, and when nobody knows.
QString refusalForSize(qint64 bytes, const QString &target);

/// Free bytes where \a target is or will be; -1 when unknown. May wait for a disk.
qint64 freeBytes(const QString &target);

} // namespace TargetCheck
