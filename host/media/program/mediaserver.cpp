#include "host/media/program/mediaserver.h"

#include "host/media/program/embeddedpreview.h"
#include "host/media/program/photometadata.h"
#include "host/media/program/pictureloader.h"
#include "host/media/program/rangedevice.h"
#include "host/media/program/videofile.h"
#include "host/media/program/videoframe.h"
#include "host/media/program/videometadata.h"
#include "host/media/protocol/mediafailure.h"

#include <new>

namespace {

QImage loadPhoto(const MediaRequest &request, QIODevice &file, QString *error)
{
    // The picture that a raw file seems to be is but a stamp; its preview is what the camera shows.
    QString noPreview;
    if (EmbeddedPreview::isRaw(request.extension)) {
        const QImage preview = EmbeddedPreview::load(file, request.cover, error);
        return preview.isNull() ? loadPicture(file, request.cover, &noPreview) : preview;
    }
    const QImage picture = loadPicture(file, request.cover, error);
    return picture.isNull() ? EmbeddedPreview::load(file, request.cover, &noPreview) : picture;
}

} // namespace

void MediaServer::run()
{
    m_pipe.send(MediaFrame::Hello, MediaFrame::hello());
    MediaFrame::Kind kind = MediaFrame::Failure;
    QByteArray payload;
    MediaRequest request;
    while (m_pipe.receive(&kind, &payload) && kind == MediaFrame::Request
           && MediaRequest::decode(payload, &request)) {
        m_watchdog.startFile();
        serve(request);
        m_watchdog.endFile();
    }
}

void MediaServer::serve(const MediaRequest &request)
{
    RangeDevice file(m_pipe, request.fileSize);
    MediaAnswer answer;
    QByteArray payload;
    try {
        answer = answerTo(request, file);
        if (answer.error.isEmpty())
            payload = request.task == MediaRequest::Picture ? answer.encodePicture()
                                                            : answer.encodeMetadata();
    } catch (const std::bad_alloc &) {
        answer = MediaAnswer();
        payload.clear();
        answer.error = MediaFailure::pack(
            QT_TRANSLATE_NOOP("Media", "There is not enough memory for this file."));
    }
    if (!payload.isEmpty()) {
        m_pipe.send(request.task == MediaRequest::Picture ? MediaFrame::Picture
                                                          : MediaFrame::Metadata,
                    payload);
        return;
    }
    if (!file.failure().isEmpty())
        answer.error = file.failure();
    if (answer.error.isEmpty())
        answer.error = MediaFailure::pack(
            QT_TRANSLATE_NOOP("Media", "The picture is too large to be handed over."));
    m_pipe.send(MediaFrame::Failure, MediaFrame::encodeText(answer.error));
}

MediaAnswer MediaServer::answerTo(const MediaRequest &request, RangeDevice &file)
{
    MediaAnswer answer;
    if (request.kind == MediaRequest::Video) {
        if (request.task == MediaRequest::Picture) {
            answer.image = loadVideoFrame(file, request.extension, request.cover, &answer.error);
        } else {
            VideoFile video(file);
            if (video.open(request.extension, &answer.error))
                answer.metaData = videoMetadata(video);
        }
    } else if (request.task == MediaRequest::Picture) {
        answer.image = loadPhoto(request, file, &answer.error);
        if (!answer.image.isNull())
            answer.error.clear();
    } else {
        answer = photoMetadata(file);
    }
    return answer;
}
