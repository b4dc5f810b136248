#pragma once

#include <QByteArray>
#include <QSize>
#include <QtEndian>

/// Pieces of PNG files with right checksums, from which a test makes files that lie.
namespace PngParts {

inline QByteArray number(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

inline QByteArray chunk(const QByteArray &name, const QByteArray &data)
{
    quint32 sum = 0xFFFFFFFF;
    const QByteArray checked = name + data;
    for (const char byte : checked) {
        sum ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ (sum & 1 ? 0xEDB88320 : 0);
    }
    return number(quint32(data.size())) + checked + number(~sum);
}

constexpr int HeaderBytes = 33;

/// What a file of eight bits a channel begins with.
inline QByteArray header(const QSize &size, int colourType = 2)
{
    QByteArray data = number(quint32(size.width())) + number(quint32(size.height()));
    data.append("\x08", 1).append(char(colourType)).append("\0\0\0", 3);
    return QByteArray("\x89PNG\r\n\x1a\n") + chunk("IHDR", data);
}

} // namespace PngParts
