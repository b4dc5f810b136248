#include "host/media/program/rangedevice.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

constexpr qint64 FirstBytes = 64 << 10; // what a header takes, and a pipe holds
constexpr qint64 MostBytes = 1 << 20;
constexpr size_t MaxParts = 16;

} // namespace

RangeDevice::RangeDevice(HostPipe &pipe, qint64 size)
    : m_pipe(pipe)
    , m_size(size)
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered); // it has a buffer of its own
}

/// A file that is read on and on is read in growing parts, one that is looked into here and there
/// in small ones.
qint64 RangeDevice::lengthFrom(qint64 offset) const
{
    const bool goesOn = offset == m_fetchedEnd && m_fetchedLength > 0;
    const qint64 length = goesOn ? std::min(2 * m_fetchedLength, MostBytes) : FirstBytes;
    return std::min(length, m_size - offset);
}

const RangeDevice::Part *RangeDevice::partAt(qint64 position)
{
    const auto known = std::find_if(m_parts.begin(), m_parts.end(),
                                    [position](const Part &part) { return part.holds(position); });
    if (known != m_parts.end()) {
        m_parts.splice(m_parts.begin(), m_parts, known);
        return &m_parts.front();
    }
    MediaFrame::Range range;
    range.offset = position == m_fetchedEnd ? position : position - position % FirstBytes;
    range.length = lengthFrom(range.offset);
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
    m_fetchedLength = range.length;
    m_fetchedEnd = range.offset + range.length;
    if (m_parts.size() >= MaxParts)
        m_parts.pop_back();
    m_parts.push_front({range.offset, bytes});
    return m_parts.front().holds(position) ? &m_parts.front() : nullptr;
}

qint64 RangeDevice::readData(char *data, qint64 length)
{
    qint64 done = 0;
    while (done < length && pos() + done < m_size) {
        const qint64 at = pos() + done;
        const Part *part = partAt(at);
        if (!part)
            break;
        const qint64 inPart = at - part->offset;
        const qint64 count = std::min(length - done, part->bytes.size() - inPart);
        std::memcpy(data + done, part->bytes.constData() + inPart, size_t(count));
        done += count;
    }
    return done == 0 && !m_failure.isEmpty() ? -1 : done;
}
