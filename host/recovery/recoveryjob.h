#pragma once

#include "host/recovery/recoveryreport.h"
#include "host/scan/scansource.h"

#include <QObject>
#include <QTimer>

/// Recovers files on a thread of its own: writes the card's folders below a target folder, never
/// outside it, whatever the names say. Nothing is overwritten: a second file of a name becomes
/// "name (2).ext". A file appears under its name only when it is whole and its times are set; a
/// file that fails leaves nothing behind and does not hold up the next one. When going on is
/// pointless (target full, read-only or gone) the rest is reported as failed with that reason.
///
/// Everything is told on the thread that the job lives in. Destroying the job cancels and waits.
class RecoveryJob : public QObject
{
    Q_OBJECT

public:
    explicit RecoveryJob(std::shared_ptr<const ScanSource> source, QObject *parent = nullptr);
    ~RecoveryJob() override;

    /// Recovers \a items into \a target, which is created when missing. Folders among the items are
    /// created even when empty; their contents have to be in the list themselves. Ignored while
    /// running.
    void start(const QVector<FoundItem> &items, const QString &target);

    /// The file at work is given up; finished() follows.
    void cancel();
    bool isRunning() const { return m_running; }

signals:
    void progress(const RecoveryProgress &progress); ///< about ten times a second
    void finished(const RecoveryReport &report);     ///< once a start()

private:
    struct Run;
    void poll();
    void join();

    std::shared_ptr<const ScanSource> m_source;
    std::shared_ptr<Run> m_run;
    QTimer m_timer;
    bool m_running = false;
};
