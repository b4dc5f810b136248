#pragma once

#include <QByteArray>
#include <QString>

#include <cstring>

/// Copies as many whole characters of \a text as fit into \a size bytes beside the closing zero
/// byte, in UTF-8. A null \a buffer is left alone.
inline void copyText(const QString &text, char *buffer, int size)
{
    if (!buffer)
        return;
    const QByteArray bytes = text.toUtf8();
    int length = qMin(bytes.size(), size - 1);
    const auto continuesCharacter = [&](int at) { return (uchar(bytes.at(at)) & 0xC0) == 0x80; };
    while (length > 0 && length < bytes.size() && continuesCharacter(length))
        --length;
    std::memcpy(buffer, bytes.constData(), size_t(length));
    buffer[length] = '\0';
}
