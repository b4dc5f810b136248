#pragma once

#include <QIODevice>
#include <QSize>
#include <QString>

struct AVFormatContext;
struct AVIOContext;
struct AVStream;

/// A video. Reads nothing but \a device, whatever the file refers to; \a device must outlive it.
class VideoFile
{
public:
    /// Once, before any is opened.
    static void setUp();

    explicit VideoFile(QIODevice &device);
    ~VideoFile();
    VideoFile(const VideoFile &) = delete;
    VideoFile &operator=(const VideoFile &) = delete;

    /// Opens it as far as its streams are known. False when there is no video in it; then \a error
    /// says why.
    bool open(const QString &extension, QString *error);
    /// Only as far as what it is: for libraries that insist on looking for the streams themselves.
    bool openHead(const QString &extension, QString *error);

    /// The next frame read is a whole one at or before \a position. False when there is no way.
    bool seek(qint64 position);

    AVFormatContext *context() const { return m_context; }
    AVStream *stream() const { return m_stream; } ///< after open()
    qint64 duration() const;                      ///< after open(); in microseconds, 0: unknown
    QSize size() const; ///< after open(); as it is shown: turned if the file says so

private:
    QIODevice &m_device;
    AVIOContext *m_io = nullptr;
    AVFormatContext *m_context = nullptr;
    AVStream *m_stream = nullptr;
};
