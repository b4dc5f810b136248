#pragma once

#include "host/recovery/recoveryreport.h"

#include <QJsonObject>
#include <QMap>
#include <QString>

class Session;

/// What a run has found and done, for whoever started it.
struct RunReport
{
    RecoveryReport recovery;
    QMap<QString, int> signalCounts;
    double seconds = 0;

    QJsonObject toJson(const Session &session) const;
    /// False with a sentence in \a error when \a file cannot be written.
    bool write(const Session &session, const QString &file, QString *error) const;
};
