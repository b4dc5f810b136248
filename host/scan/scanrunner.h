#pragma once

#include "host/scan/scansource.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

/// How far a scan has come. Counts are of what itemsFound() has delivered.
struct ScanProgress
{
    qint64 files = 0;
    qint64 folders = 0;
    qint64 deleted = 0;        ///< files and folders among the above
    qint64 bytes = 0;          ///< sizes of the files found
    double itemsPerSecond = 0; ///< over the whole scan
    double fraction = -1;      ///< 0 to 1; below 0: unknown
    qint64 elapsed = 0;        ///< milliseconds
};

/// Opens a source and scans it on a thread of its own; everything it tells comes on the thread that
/// the runner lives in (the GUI thread), at most about ten times a second. Destroying the runner
/// cancels the scan and waits for its end.
class ScanRunner : public QObject
{
    Q_OBJECT

public:
    explicit ScanRunner(QObject *parent = nullptr);
    ~ScanRunner() override;

    /// Opens \a path (see ScanSource::create) and scans it. A scan that is still running is
    /// cancelled first, and nothing more of it is told.
    void start(const QString &path);
    /// The same for a source that is open.
    void start(std::shared_ptr<ScanSource> source);

    /// Asks the scan to end; finished() follows.
    void cancel();
    /// While it is held the scan goes on but nothing of it is told.
    void setHeld(bool held);
    bool isRunning() const { return m_running; }

    /// The source of the latest scan, from opened() on; null before.
    std::shared_ptr<ScanSource> source() const { return m_source; }

signals:
    void opened(const QVector<VolumeInfo> &volumes);
    void itemsFound(const QVector<FoundItem> &batch);
    void progress(const ScanProgress &progress);
    /// Once a start(), after the last itemsFound(); also when the source could not be opened.
    void finished(const ScanOutcome &outcome);

private:
    struct Run;

    void launch(std::shared_ptr<Run> run);
    void abandon();
    void poll();
    void deliver(const QVector<FoundItem> &batch);

    std::shared_ptr<Run> m_run;
    std::shared_ptr<ScanSource> m_source;
    QTimer m_timer;
    ScanProgress m_progress;
    QElapsedTimer m_elapsed;
    bool m_running = false;
    bool m_held = false;
};

Q_DECLARE_METATYPE(ScanProgress)
