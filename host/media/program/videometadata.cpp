#include "host/media/program/videometadata.h"

#include "host/media/program/mediatexts.h"
#include "host/media/program/videofile.h"

extern "C" {
#include <libavformat/avformat.h>
}

QVector<QPair<QString, QString>> videoMetadata(const VideoFile &video)
{
    const AVRational rate = av_guess_frame_rate(video.context(), video.stream(), nullptr);
    const QSize size = video.size();
    const QPair<QString, QString> all[] = {
        {QStringLiteral("frameRate"), MediaTexts::frameRate(rate.den ? av_q2d(rate) : 0)},
        {QStringLiteral("bitRate"), MediaTexts::bitRate(video.context()->bit_rate)},
        {QStringLiteral("Resolution"), MediaTexts::resolution(size.width(), size.height())},
    };
    QVector<QPair<QString, QString>> known;
    for (const auto &entry : all) {
        if (!entry.second.isEmpty())
            known.append(entry);
    }
    return known;
}
