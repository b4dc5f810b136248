#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <QTimer>

/// Watches how much room there is at the target, every few seconds. A disk that does not answer
/// keeps nobody waiting: it is asked on a thread of the pool. GUI thread.
class FreeSpace : public QObject
{
    Q_OBJECT

public:
    explicit FreeSpace(QObject *parent = nullptr);
    ~FreeSpace() override;

    /// A folder that need not exist yet.
    void setFolder(const QString &folder);
    QString folder() const { return m_folder; }
    /// Nobody looks while it is false.
    void setWatching(bool watching);
    /// In bytes; -1 while unknown.
    qint64 bytes() const { return m_bytes; }

signals:
    void changed();

private:
    void ask();

    QString m_folder;
    QString m_asked;
    qint64 m_bytes = -1;
    QFutureWatcher<qint64> m_answer;
    QTimer m_timer;
};
