#pragma once

#include "host/media/program/hostpipe.h"

#include <QIODevice>

#include <list>

/// A found file, of which the host hands over the parts that are read: of a long video that is its
/// head, its index and a frame. Random access. Keeps the parts read last.
class RangeDevice : public QIODevice
{
public:
    /// Open for reading. \a pipe must outlive the device.
    RangeDevice(HostPipe &pipe, qint64 size);

    qint64 size() const override { return m_size; }

    /// Why the host could not read; empty: it always could.
    QString failure() const { return m_failure; }

protected:
    qint64 readData(char *data, qint64 length) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    struct Part
    {
        bool holds(qint64 position) const
        {
            return position >= offset && position < offset + bytes.size();
        }
        qint64 offset;
        QByteArray bytes;
    };

    /// The part that holds \a position; null when it cannot be read or the file ends before.
    const Part *partAt(qint64 position);
    qint64 lengthFrom(qint64 offset) const;

    HostPipe &m_pipe;
    const qint64 m_size;
    std::list<Part> m_parts; // the one used last in front
    qint64 m_fetchedEnd = 0; // of the part fetched last
    qint64 m_fetchedLength = 0;
    QString m_failure;
};
