#pragma once

#include "host/media/protocol/mediaanswer.h"
#include "host/media/protocol/mediaframe.h"
#include "host/media/protocol/mediarequest.h"

#include <QElapsedTimer>
#include <QIODevice>
#include <QProcess>

#include <atomic>
#include <memory>

/// Where the helper program is, and what it may cost.
struct MediaSetup
{
    /// Beside the host's own program; empty: it is not there.
    static QString installedProgram();
    static QString missingMessage();

    QString program = installedProgram();
    int helpers = 2;
    int workMs = 10000;  ///< for one file, without the time that the host takes to read it
    int totalMs = 60000; ///< for one file in all
    qint64 readBytes = qint64(1) << 30;   ///< all that one request may read
    qint64 memoryBytes = qint64(3) << 29; ///< address space of one helper
};

/// One running helper program, which is where files from a card are decoded: a file that breaks a
/// decoder breaks only that. Started when it is first needed, and again after it was lost.
///
/// Blocks; use it on one thread, not the GUI's.
class MediaHelper
{
public:
    enum Outcome {
        Answered,    ///< also when the answer is an error
        Killed,      ///< it died, hung or talked nonsense over this file, and is gone
        Unavailable, ///< it cannot be started; the file is not to blame
        Abandoned,   ///< nobody waits any more
    };

    explicit MediaHelper(const MediaSetup &setup);
    ~MediaHelper();
    MediaHelper(const MediaHelper &) = delete;
    MediaHelper &operator=(const MediaHelper &) = delete;

    /// Has \a request carried out on \a file. Ends soon after \a abandoned becomes true.
    Outcome ask(const MediaRequest &request, QIODevice &file, const std::atomic<bool> &abandoned,
                MediaAnswer *answer);

private:
    enum Received { Frame, Lost, Late, Unwanted };

    bool start(const std::atomic<bool> &abandoned, QString *error);
    void stop();
    Outcome kill(Outcome outcome, MediaAnswer *answer, const QString &reason);
    Received receive(const std::atomic<bool> &abandoned, MediaFrame::Kind *kind,
                     QByteArray *payload);
    bool waitForBytes(qint64 count, const std::atomic<bool> &abandoned, Received *why);
    void send(MediaFrame::Kind kind, const QByteArray &payload);
    bool serveRead(const QByteArray &payload, QIODevice &file);

    const MediaSetup m_setup;
    std::unique_ptr<QProcess> m_process;
    QString m_startError;
    QElapsedTimer m_sinceStartError;

    QElapsedTimer m_clock;  // since the request, or the start
    qint64 m_readingMs = 0; // of that, in the host
    qint64 m_readBytes = 0;
};
