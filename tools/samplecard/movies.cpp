#include "movies.h"

#include "scenes/scenes.h"

#include <QFile>
#include <QTemporaryDir>

#include <cmath>
#include <memory>
#include <stdexcept>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswscale/swscale.h>
}

namespace {

void check(int result, const char *what)
{
    if (result >= 0)
        return;
    char reason[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(result, reason, sizeof reason);
    throw std::runtime_error(std::string(what) + ": " + reason);
}

struct ContextCloser
{
    void operator()(AVFormatContext *context) const
    {
        avio_closep(&context->pb);
        avformat_free_context(context);
    }
    void operator()(AVCodecContext *context) const { avcodec_free_context(&context); }
    void operator()(AVFrame *frame) const { av_frame_free(&frame); }
    void operator()(AVPacket *packet) const { av_packet_free(&packet); }
    void operator()(SwsContext *context) const { sws_freeContext(context); }
};
template <typename T>
using Owned = std::unique_ptr<T, ContextCloser>;

/// Encodes pictures of one size into a file, whose suffix chooses the container.
class MovieWriter
{
public:
    MovieWriter(const QString &path, AVCodecID codecId, const QSize &size, int framesPerSecond)
        : m_size(size)
    {
        AVFormatContext *format = nullptr;
        const QByteArray name = QFile::encodeName(path);
        check(avformat_alloc_output_context2(&format, nullptr, nullptr, name.constData()),
              "container");
        m_format.reset(format);
        m_format->flags |= AVFMT_FLAG_BITEXACT;
        const AVCodec *codec = avcodec_find_encoder(codecId);
        if (!codec)
            throw std::runtime_error("video encoder missing");
        m_stream = avformat_new_stream(format, nullptr);
        m_codec.reset(avcodec_alloc_context3(codec));
        m_codec->width = size.width();
        m_codec->height = size.height();
        m_codec->time_base = {1, framesPerSecond};
        m_codec->framerate = {framesPerSecond, 1};
        m_codec->gop_size = framesPerSecond;
        m_codec->thread_count = 1;
        m_codec->pix_fmt = codecId == AV_CODEC_ID_MJPEG ? AV_PIX_FMT_YUVJ420P : AV_PIX_FMT_YUV420P;
        m_codec->bit_rate = qint64(size.width()) * size.height() * 6;
        m_codec->flags |= AV_CODEC_FLAG_BITEXACT | AV_CODEC_FLAG_QSCALE;
        m_codec->global_quality = FF_QP2LAMBDA * 4;
        if (m_format->oformat->flags & AVFMT_GLOBALHEADER)
            m_codec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
        check(avcodec_open2(m_codec.get(), codec, nullptr), "video encoder");
        check(avcodec_parameters_from_context(m_stream->codecpar, m_codec.get()), "video stream");
        m_stream->time_base = m_codec->time_base;
        m_stream->avg_frame_rate = m_codec->framerate;
        check(avio_open(&m_format->pb, name.constData(), AVIO_FLAG_WRITE), "video file");
        check(avformat_write_header(format, nullptr), "video header");
        m_frame.reset(av_frame_alloc());
        m_frame->format = m_codec->pix_fmt;
        m_frame->width = size.width();
        m_frame->height = size.height();
        check(av_frame_get_buffer(m_frame.get(), 0), "video frame");
        m_packet.reset(av_packet_alloc());
        m_scaler.reset(sws_getContext(size.width(), size.height(), AV_PIX_FMT_BGRA, size.width(),
                                      size.height(), m_codec->pix_fmt,
                                      SWS_BICUBIC | SWS_ACCURATE_RND | SWS_BITEXACT, nullptr,
                                      nullptr, nullptr));
    }

    void add(const QImage &picture)
    {
        check(av_frame_make_writable(m_frame.get()), "video frame");
        const uchar *const planes[] = {picture.constBits()};
        const int strides[] = {picture.bytesPerLine()};
        sws_scale(m_scaler.get(), planes, strides, 0, m_size.height(), m_frame->data,
                  m_frame->linesize);
        m_frame->pts = m_next++;
        m_frame->quality = m_codec->global_quality;
        check(avcodec_send_frame(m_codec.get(), m_frame.get()), "video frame");
        drain();
    }

    void finish()
    {
        check(avcodec_send_frame(m_codec.get(), nullptr), "video end");
        drain();
        check(av_write_trailer(m_format.get()), "video end");
        check(avio_closep(&m_format->pb), "video file");
    }

private:
    void drain()
    {
        for (;;) {
            const int result = avcodec_receive_packet(m_codec.get(), m_packet.get());
            if (result == AVERROR(EAGAIN) || result == AVERROR_EOF)
                return;
            check(result, "video encoder");
            av_packet_rescale_ts(m_packet.get(), m_codec->time_base, m_stream->time_base);
            m_packet->stream_index = m_stream->index;
            m_packet->duration = av_rescale_q(1, m_codec->time_base, m_stream->time_base);
            check(av_interleaved_write_frame(m_format.get(), m_packet.get()), "video file");
        }
    }

    QSize m_size;
    Owned<AVFormatContext> m_format;
    Owned<AVCodecContext> m_codec;
    Owned<AVFrame> m_frame;
    Owned<AVPacket> m_packet;
    Owned<SwsContext> m_scaler;
    AVStream *m_stream = nullptr;
    qint64 m_next = 0;
};

QByteArray pan(const QString &suffix, AVCodecID codec, void (*motif)(Canvas &, int), int variant,
               const QSize &size, int seconds)
{
    constexpr int FramesPerSecond = 24;
    Canvas canvas(QSize(size.width() * 3 / 2, size.height()), 31);
    motif(canvas, variant);
    canvas.develop({0, 0.2, 0.16}); // no grain: it would be most of the film
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("clip.") + suffix);
    MovieWriter writer(path, codec, size, FramesPerSecond);
    const int frames = seconds * FramesPerSecond;
    for (int i = 0; i < frames; ++i) {
        const double eased = smoothstep(0, 1, double(i) / frames);
        writer.add(canvas.image().copy(int(eased * (canvas.image().width() - size.width())), 0,
                                       size.width(), size.height()));
    }
    writer.finish();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("the video cannot be read back");
    return file.readAll();
}

} // namespace

QVector<CardFile> cardMovies(int shrink)
{
    av_log_set_level(AV_LOG_ERROR);
    const QDateTime noon(QDate(2024, 5, 20), QTime(12, 0), Qt::UTC);
    return {
        {QStringLiteral("PRIVATE/CLIP/MOV_0001.MP4"), noon.addSecs(5420), CardFile::Live,
         pan(QStringLiteral("mp4"), AV_CODEC_ID_MPEG4, Scenes::sea, 0, QSize(1280, 720) / shrink,
             4)},
        {QStringLiteral("PRIVATE/CLIP/MOV_0002.AVI"), noon.addSecs(190000), CardFile::Deleted,
         pan(QStringLiteral("avi"), AV_CODEC_ID_MJPEG, Scenes::skyline, 1,
             QSize(1280, 720) / shrink, 3)},
    };
}
