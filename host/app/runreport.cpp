#include "host/app/runreport.h"

#include "host/app/session.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>

QJsonObject RunReport::toJson(const Session &session) const
{
    QJsonArray recovered;
    for (const RecoveredFile &file : recovery.recovered) {
        recovered.append(
            QJsonObject{{"path", file.path}, {"size", file.size}, {"sha256", file.sha256}});
    }
    QJsonArray failed;
    if (!session.outcome().error.isEmpty()) // the source itself
        failed.append(QJsonObject{{"path", session.path()}, {"reason", session.outcome().error}});
    for (const FailedFile &file : recovery.failed)
        failed.append(QJsonObject{{"path", file.path}, {"reason", file.reason}});
    QJsonObject counts;
    for (auto count = signalCounts.begin(); count != signalCounts.end(); ++count)
        counts.insert(count.key(), count.value());

    const ScanProgress progress = session.progress();
    return {
        {"source", session.path()},
        {"files", progress.files},
        {"folders", progress.folders},
        {"deleted", progress.deleted},
        {"thumbnails", session.thumbnails().made()},
        {"checked", session.tree().checkedFiles()},
        {"recovered", recovered},
        {"failed", failed},
        {"signals", counts},
        {"seconds", seconds},
    };
}

bool RunReport::write(const Session &session, const QString &file, QString *error) const
{
    QSaveFile out(file);
    if (out.open(QIODevice::WriteOnly)) {
        out.write(QJsonDocument(toJson(session)).toJson());
        if (out.commit())
            return true;
    }
    *error = QStringLiteral("the report %1 cannot be written: %2").arg(file, out.errorString());
    return false;
}
