#include "host/media/program/videofile.h"

#include "host/media/protocol/mediafailure.h"

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/display.h>
}

#include <algorithm>
#include <cmath>
#include <new>

namespace {

constexpr int BufferBytes = 64 << 10;
constexpr qint64 MaxPixels = 200 * 1000 * 1000;
constexpr int MaxStreams = 100;

// Containers that hold their contents themselves: a play list would name other files.
constexpr char Containers[] =
    "mov,mp4,matroska,webm,avi,mpegts,mpeg,mpegvideo,asf,flv,mxf,ogg,rm,dv,m4v,h264,hevc,ivf,nut";

QString reason(int code)
{
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(code, text, sizeof(text));
    return QString::fromUtf8(text);
}

int readDevice(void *device, uint8_t *buffer, int size)
{
    const qint64 got = static_cast<QIODevice *>(device)->read(reinterpret_cast<char *>(buffer),
                                                              size);
    if (got < 0)
        return AVERROR(EIO);
    return got == 0 ? AVERROR_EOF : int(got);
}

int64_t seekDevice(void *opaque, int64_t offset, int whence)
{
    auto *device = static_cast<QIODevice *>(opaque);
    whence &= ~AVSEEK_FORCE;
    if (whence == AVSEEK_SIZE)
        return device->size();
    if (whence == SEEK_CUR)
        offset += device->pos();
    else if (whence == SEEK_END)
        offset += device->size();
    return offset >= 0 && device->seek(offset) ? offset : AVERROR(EINVAL);
}

} // namespace

void VideoFile::setUp()
{
    av_log_set_level(AV_LOG_QUIET);
}

VideoFile::VideoFile(QIODevice &device)
    : m_device(device)
{
}

VideoFile::~VideoFile()
{
    avformat_close_input(&m_context);
    if (m_io)
        av_freep(&m_io->buffer);
    avio_context_free(&m_io);
}

bool VideoFile::open(const QString &extension, QString *error)
{
    if (!openHead(extension, error))
        return false;
    const int result = avformat_find_stream_info(m_context, nullptr);
    if (result < 0) {
        *error = MediaFailure::pack(QT_TRANSLATE_NOOP("Media", "The video is broken: %1."),
                                    {reason(result)});
        return false;
    }
    const int index = av_find_best_stream(m_context, AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    if (index < 0) {
        *error = MediaFailure::pack(QT_TRANSLATE_NOOP("Media", "There is no picture in the file."));
        return false;
    }
    m_stream = m_context->streams[index];
    const qint64 width = m_stream->codecpar->width;
    const qint64 height = m_stream->codecpar->height;
    if (width <= 0 || height <= 0 || width * height > MaxPixels) {
        *error = MediaFailure::pack(QT_TRANSLATE_NOOP("Media", "The video is broken."));
        return false;
    }
    return true;
}

bool VideoFile::openHead(const QString &extension, QString *error)
{
    m_device.seek(0);
    auto *buffer = static_cast<unsigned char *>(av_malloc(BufferBytes));
    m_io = avio_alloc_context(buffer, BufferBytes, 0, &m_device, &readDevice, nullptr, &seekDevice);
    m_context = avformat_alloc_context();
    if (!m_io || !m_context)
        throw std::bad_alloc();
    m_context->pb = m_io;
    m_context->max_streams = MaxStreams;
    AVDictionary *options = nullptr;
    av_dict_set(&options, "format_whitelist", Containers, 0);
    av_dict_set(&options, "protocol_whitelist", "none", 0);
    // only a hint for what is told apart by nothing else
    const QByteArray name = "video." + extension.toLatin1();
    const int result = avformat_open_input(&m_context, name.constData(), nullptr, &options);
    av_dict_free(&options);
    if (result < 0)
        *error = MediaFailure::pack(
            QT_TRANSLATE_NOOP("Media", "The video is broken or of an unknown kind: %1."),
            {reason(result)});
    return result >= 0;
}

bool VideoFile::seek(qint64 position)
{
    const qint64 start = m_context->start_time == AV_NOPTS_VALUE ? 0 : m_context->start_time;
    return av_seek_frame(m_context, -1, start + position, AVSEEK_FLAG_BACKWARD) >= 0;
}

qint64 VideoFile::duration() const
{
    return std::max<qint64>(0, m_context->duration); // unknown is the least number
}

QSize VideoFile::size() const
{
    constexpr double Quarter = 90;
    const QSize stored(m_stream->codecpar->width, m_stream->codecpar->height);
    size_t bytes = 0;
    const uint8_t *matrix = av_stream_get_side_data(m_stream, AV_PKT_DATA_DISPLAYMATRIX, &bytes);
    if (!matrix || bytes < 9 * sizeof(int32_t))
        return stored;
    const double angle = av_display_rotation_get(reinterpret_cast<const int32_t *>(matrix));
    return std::isfinite(angle) && std::lround(angle / Quarter) % 2 != 0 ? stored.transposed()
                                                                         : stored;
}
