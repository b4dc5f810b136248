#pragma once

#include <QString>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

#include <tsk/libtsk.h>

class ClusterClaims;

/// Where a file system begins on a medium.
struct CardVolume
{
    TSK_OFF_T offset = 0; ///< bytes
    TSK_FS_TYPE_ENUM type = TSK_FS_TYPE_DETECT;
};

/// An open medium with one open file system at a time: everything of The Sleuth Kit's that may not
/// be shared between threads. Used by one thread at a time; never writes.
class Card
{
public:
    /// Null when \a path cannot be read; then \a error is a sentence for the user.
    static std::unique_ptr<Card> open(const QString &path, QString *error);
    ~Card();
    Card(const Card &) = delete;
    Card &operator=(const Card &) = delete;

    qint64 size() const;
    TSK_IMG_INFO *image() const;

    /// The file system at \a volume, kept open until another one is asked for. Null: unreadable.
    TSK_FS_INFO *fileSystem(const CardVolume &volume);

    /// While set and true, every read fails: how a long call into the library is ended.
    void setCancel(const std::atomic<bool> *cancel);
    /// The medium could not be read at a place that it has; text of the system, empty if never.
    QString readError() const;
    void clearReadError();
    /// Is told where each read begins, bytes.
    void setWatcher(std::function<void(qint64 offset)> watcher);

private:
    struct Medium; // a file of ours behind the library's image interface
    explicit Card(std::unique_ptr<Medium> medium);

    std::unique_ptr<Medium> m_medium;
    TSK_FS_INFO *m_fileSystem = nullptr;
    CardVolume m_volume;
};

/// Lends open cards of one medium to threads; as many are open as were in use at one time. Keeps
/// what readers need to know about the medium as a whole. Any thread.
class CardPool
{
public:
    CardPool(const QString &path, const std::vector<CardVolume> &volumes);
    ~CardPool();

    /// A card for the caller alone. Null with \a error when the medium cannot be opened any more.
    std::unique_ptr<Card> take(QString *error);
    void giveBack(std::unique_ptr<Card> card);

    const std::vector<CardVolume> &volumes() const { return m_volumes; }
    ClusterClaims &claims(int volume) { return *m_claims[size_t(volume)]; }

private:
    const QString m_path;
    const std::vector<CardVolume> m_volumes;
    std::vector<std::unique_ptr<ClusterClaims>> m_claims; // one a volume
    std::mutex m_mutex;
    std::vector<std::unique_ptr<Card>> m_idle;
};
