// A helper program with every bad habit: the file's extension says which.
#include "host/media/program/hostpipe.h"
#include "host/media/protocol/mediaanswer.h"
#include "host/media/protocol/mediarequest.h"

#include <QDir>
#include <QFile>
#include <QUuid>

#include <cstdio>
#include <cstdlib>
#include <thread>

namespace {

HostPipe s_pipe;

void leaveMark(const QString &name)
{
    QFile mark(QDir(qEnvironmentVariable("QUARVO_FAKE_MARKS")).filePath(name));
    if (!mark.open(QIODevice::WriteOnly))
        std::abort();
}

QByteArray read(qint64 offset, qint64 length)
{
    MediaFrame::Range range;
    range.offset = offset;
    range.length = length;
    s_pipe.send(MediaFrame::Read, MediaFrame::encode(range));
    MediaFrame::Kind kind = MediaFrame::Failure;
    QByteArray bytes;
    if (!s_pipe.receive(&kind, &bytes))
        std::_Exit(0);
    return bytes;
}

void sendPicture()
{
    MediaAnswer answer;
    answer.image = QImage(4, 3, QImage::Format_RGB32);
    answer.image.fill(Qt::green);
    s_pipe.send(MediaFrame::Picture, answer.encodePicture());
}

void serve(const MediaRequest &request)
{
    const QString habit = request.extension;
    if (habit == QLatin1String("png")) {
        std::_Exit(1);
    } else if (habit == QLatin1String("gif")) {
        std::this_thread::sleep_for(std::chrono::hours(1));
    } else if (habit == QLatin1String("bmp")) {
        std::fputs("Warning: a library that prints where it should not\n", stdout);
        std::fflush(stdout);
    } else if (habit == QLatin1String("tif")) {
        s_pipe.send(MediaFrame::Picture, QByteArray(9, char(0x7f)));
    } else if (habit == QLatin1String("tga")) {
        read(-1, 10);
    } else if (habit == QLatin1String("psd")) {
        read(0, MediaFrame::MaxRead + 1);
    } else if (habit == QLatin1String("webp")) {
        while (true)
            read(0, MediaFrame::MaxRead);
    } else if (habit == QLatin1String("ico")) {
        s_pipe.send(MediaFrame::Metadata, QByteArray("\xff\xff\xff\xff", 4));
    } else if (habit == QLatin1String("pcx")) {
        s_pipe.send(MediaFrame::Hello, MediaFrame::hello());
    } else if (habit == QLatin1String("dng")) {
        // dies of its first file only
        const QString mark = QStringLiteral("died");
        if (!QFile::exists(QDir(qEnvironmentVariable("QUARVO_FAKE_MARKS")).filePath(mark))) {
            leaveMark(mark);
            std::_Exit(1);
        }
        sendPicture();
    } else if (read(0, request.fileSize) == QByteArray("contents")) {
        sendPicture();
    } else {
        s_pipe.send(MediaFrame::Failure, MediaFrame::encodeText(QStringLiteral("not the file")));
    }
}

} // namespace

int main()
{
    if (qEnvironmentVariableIsSet("QUARVO_FAKE_MUTE"))
        std::this_thread::sleep_for(std::chrono::hours(1));
    leaveMark(QStringLiteral("start-") + QUuid::createUuid().toString(QUuid::Id128));
    s_pipe.send(MediaFrame::Hello, MediaFrame::hello());
    MediaFrame::Kind kind = MediaFrame::Failure;
    QByteArray payload;
    MediaRequest request;
    while (s_pipe.receive(&kind, &payload) && MediaRequest::decode(payload, &request))
        serve(request);
    return 0;
}
