#include "host/media/protocol/mediaanswer.h"

#include "host/media/protocol/mediaframe.h"

#include <QDataStream>

#include <cstring>

namespace {

constexpr int BytesPerPixel = 4;
constexpr int PictureHeaderBytes = 2 * sizeof(qint32) + sizeof(quint8);
constexpr quint32 MaxEntries = 64;

} // namespace

QByteArray MediaAnswer::encodePicture() const
{
    const bool transparent = image.hasAlphaChannel();
    const QImage pixels = image.convertToFormat(transparent ? QImage::Format_ARGB32_Premultiplied
                                                            : QImage::Format_RGB32);
    if (pixels.isNull() || pixels.sizeInBytes() > MediaFrame::MaxPayload - PictureHeaderBytes)
        return QByteArray();
    QByteArray payload;
    payload.reserve(int(pixels.sizeInBytes()) + PictureHeaderBytes);
    QDataStream out(&payload, QIODevice::WriteOnly);
    out << qint32(pixels.width()) << qint32(pixels.height()) << quint8(transparent);
    payload.append(reinterpret_cast<const char *>(pixels.constBits()), int(pixels.sizeInBytes()));
    return payload;
}

bool MediaAnswer::decodePicture(const QByteArray &payload)
{
    QDataStream in(payload);
    qint32 width = 0;
    qint32 height = 0;
    quint8 transparent = 0;
    in >> width >> height >> transparent;
    const qint64 bytes = payload.size() - PictureHeaderBytes;
    if (in.status() != QDataStream::Ok || width <= 0 || height <= 0
        || qint64(width) * height > MediaFrame::MaxPayload / BytesPerPixel
        || qint64(width) * height * BytesPerPixel != bytes)
        return false;
    image = QImage(width, height,
                   transparent ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    if (image.isNull())
        return false;
    // rows of four-byte pixels are never padded
    std::memcpy(image.bits(), payload.constData() + PictureHeaderBytes, size_t(bytes));
    return true;
}

QByteArray MediaAnswer::encodeMetadata() const
{
    QByteArray payload;
    QDataStream out(&payload, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_5_15);
    out << quint32(metaData.size());
    for (const auto &entry : metaData)
        out << entry.first << entry.second;
    out << quint32(scenes.size());
    for (const QString &scene : scenes)
        out << scene;
    return payload;
}

bool MediaAnswer::decodeMetadata(const QByteArray &payload)
{
    // One by one: the stream's own way makes room for as many as the sender claims.
    QDataStream in(payload);
    in.setVersion(QDataStream::Qt_5_15);
    quint32 count = 0;
    in >> count;
    for (quint32 i = 0; i < qMin(count, MaxEntries); ++i) {
        QPair<QString, QString> entry;
        in >> entry.first >> entry.second;
        metaData.append(entry);
    }
    quint32 sceneCount = 0;
    in >> sceneCount;
    for (quint32 i = 0; i < qMin(sceneCount, MaxEntries); ++i) {
        QString scene;
        in >> scene;
        scenes.append(scene);
    }
    return in.status() == QDataStream::Ok && count <= MaxEntries && sceneCount <= MaxEntries
        && in.atEnd();
}
