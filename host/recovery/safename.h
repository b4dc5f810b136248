#pragma once

#include <QString>
#include <QStringList>

/// Names on a card are written by anything from a camera to an attacker. These make them fit to be
/// created on any system, whichever we run on: nobody knows where the target will be read.

/// One name of a file or folder: never empty, never "." or "..", without separators, colons,
/// control and other reserved characters, without trailing dots and spaces, no device name (CON,
/// COM1 …, with any extension), valid Unicode, at most 255 bytes in UTF-8 with the extension kept.
QString safeFileName(const QString &name);

/// \a path ('/' or '\\' between its parts) as safe names; empty and "." parts fall out, ".."
/// becomes an ordinary name.
QStringList safePathParts(const QString &path);

/// \a name with " (number)" before its extension, still of a length that can be created.
QString numberedFileName(const QString &name, int number);
