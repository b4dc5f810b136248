#pragma once

#include <QMutex>
#include <QString>

/// The library's log file. It is opened for each line only, so that it may be moved away while
/// the program runs; a line that repeats the one before is left out. For any thread.
class LangLog
{
public:
    static LangLog &instance();

    /// Starts to log to \a path, whose folder is made when missing. An empty \a path turns the
    /// log off. False when nothing can be written there.
    bool open(const QString &path);
    void close();
    bool isOpen() const;
    /// Does nothing while the log is closed.
    void write(const QString &line);

private:
    bool append(const QString &line);

    mutable QMutex m_mutex;
    QString m_path;
    QString m_lastLine;
    bool m_open = false;
};
