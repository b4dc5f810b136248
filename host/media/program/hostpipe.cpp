#include "host/media/program/hostpipe.h"

#include <cstdio>

bool HostPipe::receive(MediaFrame::Kind *kind, QByteArray *payload)
{
    char bytes[MediaFrame::HeaderBytes];
    MediaFrame::Header header;
    if (std::fread(bytes, sizeof(bytes), 1, stdin) != 1 || !MediaFrame::parseHeader(bytes, &header))
        return false;
    *kind = header.kind;
    payload->resize(int(header.length));
    return header.length == 0 || std::fread(payload->data(), header.length, 1, stdin) == 1;
}

void HostPipe::send(MediaFrame::Kind kind, const QByteArray &payload)
{
    const QByteArray header = MediaFrame::header(kind, payload.size());
    std::fwrite(header.constData(), size_t(header.size()), 1, stdout);
    std::fwrite(payload.constData(), 1, size_t(payload.size()), stdout);
    std::fflush(stdout);
}
