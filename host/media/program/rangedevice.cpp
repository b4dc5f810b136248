#include "host/media/program/rangedevice.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {
constexpr qint64 PartBytes = 256 << 10;
constexpr size_t MaxParts = 16;
} // namespace

RangeDevice::RangeDevice(HostPipe &pipe, qint64 size)
    : m_pipe(pipe)
    , m_size(size)
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered); // it has a buffer of its own
}

const QByteArray *RangeDevice::partAt(qint64 offset)
{
    const auto known = std::find_if(m_parts.begin(), m_parts.end(),
                                    [offset](const Part &part) { return part.offset == offset; });
    if (known != m_parts.end()) {
        m_parts.splice(m_parts.begin(), m_parts, known);
        return &m_parts.front().bytes;
    }
    MediaFrame::Range range;
    range.offset = offset;
    range.length = std::min(PartBytes, m_size - offset);
    m_pipe.send(MediaFrame::Read, MediaFrame::encode(range));
    MediaFrame::Kind kind = MediaFrame::Failure;
    QByteArray bytes;
    if (!m_pipe.receive(&kind, &bytes))
        std::_Exit(EXIT_SUCCESS); // the host has gone
    if (kind != MediaFrame::Bytes) {
        m_failure = MediaFrame::decodeText(bytes);
        setErrorString(m_failure);
        return nullptr;
    }
    if (m_parts.size() >= MaxParts)
        m_parts.pop_back();
    m_parts.push_front({offset, bytes});
    return &m_parts.front().bytes;
}

qint64 RangeDevice::readData(char *data, qint64 length)
{
    qint64 done = 0;
    while (done < length && pos() + done < m_size) {
        const qint64 at = pos() + done;
        const qint64 inPart = at % PartBytes;
        const QByteArray *part = partAt(at - inPart);
        if (!part)
            return done > 0 ? done : -1;
        const qint64 count = std::min(length - done, part->size() - inPart);
        if (count <= 0)
            break; // shorter than it was said to be
        std::memcpy(data + done, part->constData() + inPart, size_t(count));
        done += count;
    }
    return done;
}
