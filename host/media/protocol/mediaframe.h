#pragma once

#include <QByteArray>
#include <QString>

/// What the host and its helper program say to each other through the helper's standard input and
/// output. Everything travels in frames: four bytes length of the payload (big endian), one byte
/// kind, the payload.
///
/// The helper says Hello once. Then, again and again: the host sends a Request; the helper asks for
/// parts of the file by Read, each answered by Bytes (shorter than asked for only at the end) or
/// ReadFailed; and ends with one of Picture, Metadata or Failure. The end of its input ends the
/// helper.
namespace MediaFrame {

enum Kind : quint8 {
    Hello = 1,
    Request,
    Read,
    Bytes,
    ReadFailed,
    Picture,
    Metadata,
    Failure,
};

constexpr int HeaderBytes = 5;
constexpr quint32 MaxPayload = 512u << 20;
constexpr qint64 MaxRead = 4 << 20; ///< bytes of one Read

struct Header
{
    quint32 length = 0;
    Kind kind = Hello;
};

QByteArray header(Kind kind, qint64 length);
/// False when \a bytes are no header of ours, or the payload would be too long.
bool parseHeader(const char *bytes, Header *header);

/// The payload of Hello: both ends speak the same version.
QByteArray hello();
bool isHello(const QByteArray &payload);

struct Range
{
    qint64 offset = 0;
    qint64 length = 0;
};

QByteArray encode(const Range &range);
/// False when the range is none or longer than MaxRead.
bool decode(const QByteArray &payload, Range *range);

/// The payload of Failure and ReadFailed.
QByteArray encodeText(const QString &text);
QString decodeText(const QByteArray &payload);

} // namespace MediaFrame
