#pragma once

#include <QMetaType>
#include <QString>
#include <QVector>

/// One file that has been written, whole.
struct RecoveredFile
{
    QString
        path; ///< on the card, from its root; begins with the volume's name where there are several
    QString target;  ///< absolute, where it was written
    qint64 size = 0; ///< bytes
    QString sha256;  ///< of the bytes written, lower-case hexadecimal
};

/// One file or folder that could not be recovered. Nothing of it is left in the target.
struct FailedFile
{
    QString path;   ///< as in RecoveredFile
    QString reason; ///< a sentence for the user
};

/// Every item that was asked for is in exactly one of the lists, folders only when they failed;
/// after a cancel, what was not reached is in neither.
struct RecoveryReport
{
    QVector<RecoveredFile> recovered;
    QVector<FailedFile> failed;
    QString
        stopReason; ///< why going on was pointless (target full or read-only); empty: it was not
    bool cancelled = false;
    qint64 bytes = 0; ///< written, of whole files
};

struct RecoveryProgress
{
    int filesDone = 0; ///< recovered or failed
    int filesTotal = 0;
    qint64 bytesDone = 0; ///< read so far, of whole files and the current one
    qint64 bytesTotal = 0;
    QString current; ///< path on the card of the file at work
};

Q_DECLARE_METATYPE(RecoveryReport)
Q_DECLARE_METATYPE(RecoveryProgress)
