#include "mediafixtures.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/display.h>
}

#include <cstring>
#include <memory>
#include <stdexcept>

namespace {

constexpr int Width = 320;
constexpr int Height = 180;
constexpr int FramesPerSecond = 25;

void check(int result)
{
    if (result < 0)
        throw std::runtime_error("the video cannot be written");
}

void drain(AVCodecContext *encoder, AVFormatContext *file, const AVStream *stream)
{
    AVPacket *packet = av_packet_alloc();
    while (avcodec_receive_packet(encoder, packet) >= 0) {
        av_packet_rescale_ts(packet, encoder->time_base, stream->time_base);
        packet->stream_index = stream->index;
        check(av_interleaved_write_frame(file, packet));
    }
    av_packet_free(&packet);
}

void encodeBlue(AVCodecContext *encoder, AVFormatContext *file, const AVStream *stream)
{
    AVFrame *frame = av_frame_alloc();
    frame->format = encoder->pix_fmt;
    frame->width = Width;
    frame->height = Height;
    check(av_frame_get_buffer(frame, 0));
    const int blue[] = {41, 240, 110}; // Y, Cb, Cr
    for (int plane = 0; plane < 3; ++plane) {
        const int rows = plane == 0 ? Height : Height / 2;
        std::memset(frame->data[plane], blue[plane], size_t(frame->linesize[plane]) * rows);
    }
    for (int i = 0; i < FramesPerSecond; ++i) {
        frame->pts = i;
        check(avcodec_send_frame(encoder, frame));
        drain(encoder, file, stream);
    }
    av_frame_free(&frame);
    check(avcodec_send_frame(encoder, nullptr));
    drain(encoder, file, stream);
}

} // namespace

void writeVideo(const QString &path, double degrees)
{
    const QByteArray name = path.toUtf8();
    AVFormatContext *file = nullptr;
    check(avformat_alloc_output_context2(&file, nullptr, nullptr, name.constData()));
    const AVCodec *codec = avcodec_find_encoder(AV_CODEC_ID_MPEG4);
    AVCodecContext *encoder = avcodec_alloc_context3(codec);
    encoder->width = Width;
    encoder->height = Height;
    encoder->pix_fmt = AV_PIX_FMT_YUV420P;
    encoder->time_base = {1, FramesPerSecond};
    encoder->framerate = {FramesPerSecond, 1};
    encoder->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    check(avcodec_open2(encoder, codec, nullptr));
    AVStream *stream = avformat_new_stream(file, nullptr);
    check(avcodec_parameters_from_context(stream->codecpar, encoder));
    stream->time_base = encoder->time_base;
    stream->avg_frame_rate = encoder->framerate;
    if (degrees != 0) {
        constexpr size_t MatrixBytes = 9 * sizeof(int32_t);
        auto *matrix = reinterpret_cast<int32_t *>(
            av_stream_new_side_data(stream, AV_PKT_DATA_DISPLAYMATRIX, MatrixBytes));
        av_display_rotation_set(matrix, degrees);
    }
    check(avio_open(&file->pb, name.constData(), AVIO_FLAG_WRITE));
    check(avformat_write_header(file, nullptr));
    encodeBlue(encoder, file, stream);
    check(av_write_trailer(file));
    avio_closep(&file->pb);
    avcodec_free_context(&encoder);
    avformat_free_context(file);
}
