#include "host/app/fileopener.h"

#include <QDesktopServices>
#include <QUrl>

FileOpener::FileOpener(QObject *parent)
    : QObject(parent)
{
}

FileOpener::~FileOpener()
{
    // before the folder: a job would make it anew
    qDeleteAll(findChildren<RecoveryJob *>());
}

void FileOpener::open(const std::shared_ptr<const ScanSource> &source, const FoundItem &file)
{
    auto *job = new RecoveryJob(source, this);
    connect(job, &RecoveryJob::finished, this,
            [this, job, name = file.name](const RecoveryReport &report) {
                job->deleteLater();
                if (report.recovered.isEmpty()) {
                    const QString reason = report.failed.isEmpty() ? report.stopReason
                                                                   : report.failed.first().reason;
                    emit failed(tr("“%1” cannot be opened: %2").arg(name, reason));
                } else if (!QDesktopServices::openUrl(
                               QUrl::fromLocalFile(report.recovered.first().target))) {
                    emit failed(tr("No program opens “%1”.").arg(name));
                }
            });
    job->start({file}, m_folder.path());
}
