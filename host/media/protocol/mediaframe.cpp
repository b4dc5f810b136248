#include "host/media/protocol/mediaframe.h"

#include <QDataStream>
#include <QtEndian>

namespace {

constexpr quint32 Magic = 0x514d4544; // "QMED"
constexpr quint32 Version = 1;
constexpr int MaxText = 4000;

} // namespace

QByteArray MediaFrame::header(Kind kind, qint64 length)
{
    QByteArray bytes(HeaderBytes, char(kind));
    qToBigEndian(quint32(length), bytes.data());
    return bytes;
}

bool MediaFrame::parseHeader(const char *bytes, Header *header)
{
    const auto kind = quint8(bytes[HeaderBytes - 1]);
    header->length = qFromBigEndian<quint32>(bytes);
    header->kind = Kind(kind);
    return kind >= Hello && kind <= Failure && header->length <= MaxPayload;
}

QByteArray MediaFrame::hello()
{
    QByteArray payload;
    QDataStream out(&payload, QIODevice::WriteOnly);
    out << Magic << Version;
    return payload;
}

bool MediaFrame::isHello(const QByteArray &payload)
{
    return payload == hello();
}

QByteArray MediaFrame::encode(const Range &range)
{
    QByteArray payload;
    QDataStream out(&payload, QIODevice::WriteOnly);
    out << range.offset << range.length;
    return payload;
}

bool MediaFrame::decode(const QByteArray &payload, Range *range)
{
    QDataStream in(payload);
    in >> range->offset >> range->length;
    return in.status() == QDataStream::Ok && range->offset >= 0 && range->length > 0
        && range->length <= MaxRead;
}

QByteArray MediaFrame::encodeText(const QString &text)
{
    return text.left(MaxText).toUtf8();
}

QString MediaFrame::decodeText(const QByteArray &payload)
{
    return QString::fromUtf8(payload.left(MaxText));
}
