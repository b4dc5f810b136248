#include "host/media/program/exivfile.h"

#include <exiv2/error.hpp>

#include <algorithm>
#include <cstdio>

namespace {
constexpr qint64 MaxWhole = 256 << 20; // the largest raw files of cameras are half of this
}

std::unique_ptr<Exiv2::Image> ExivFile::readPhoto(QIODevice &device)
{
    std::unique_ptr<Exiv2::Image> photo(
        Exiv2::ImageFactory::open(Exiv2::BasicIo::AutoPtr(new ExivFile(device))).release());
    if (!photo)
        throw Exiv2::Error(Exiv2::kerErrorMessage, "no kind of photo that is known");
    photo->readMetadata();
    return photo;
}

ExivFile::ExivFile(QIODevice &device)
    : m_device(device)
{
}

int ExivFile::open()
{
    m_open = true;
    m_eof = false;
    return m_device.seek(0) ? 0 : 1;
}

int ExivFile::close()
{
    m_open = false;
    return munmap();
}

long ExivFile::write(const Exiv2::byte *, long)
{
    return 0;
}

long ExivFile::write(Exiv2::BasicIo &)
{
    return 0;
}

int ExivFile::putb(Exiv2::byte)
{
    return EOF;
}

Exiv2::DataBuf ExivFile::read(long count)
{
    // not what a header claims, but what there is
    Exiv2::DataBuf data(std::clamp<long>(count, 0, long(m_device.size() - m_device.pos())));
    const long got = read(data.pData_, data.size_);
    if (got < data.size_)
        data.size_ = std::max<long>(0, got);
    return data;
}

long ExivFile::read(Exiv2::byte *buffer, long count)
{
    if (count <= 0)
        return 0;
    const qint64 got = m_device.read(reinterpret_cast<char *>(buffer), count);
    m_eof = got < count;
    return long(std::max<qint64>(0, got));
}

int ExivFile::getb()
{
    Exiv2::byte byte = 0;
    return read(&byte, 1) == 1 ? byte : EOF;
}

void ExivFile::transfer(Exiv2::BasicIo &)
{
    throw Exiv2::Error(Exiv2::kerErrorMessage, "read only");
}

int ExivFile::seek(long offset, Position from)
{
    const qint64 base = from == beg ? 0 : from == cur ? m_device.pos() : m_device.size();
    const qint64 target = base + offset;
    if (target < 0 || target > m_device.size())
        return 1;
    m_eof = false;
    return m_device.seek(target) ? 0 : 1;
}

Exiv2::byte *ExivFile::mmap(bool)
{
    if (m_whole.isEmpty()) {
        if (m_device.size() > MaxWhole)
            throw Exiv2::Error(Exiv2::kerErrorMessage, "the file is too large");
        const qint64 before = m_device.pos();
        m_device.seek(0);
        m_whole = m_device.readAll();
        m_device.seek(before);
        if (m_whole.size() < m_device.size())
            throw Exiv2::Error(Exiv2::kerErrorMessage, "the file cannot be read whole");
    }
    return reinterpret_cast<Exiv2::byte *>(m_whole.data());
}

int ExivFile::munmap()
{
    return 0; // what has been handed out is used until the end
}

long ExivFile::tell() const
{
    return long(m_device.pos());
}

size_t ExivFile::size() const
{
    return size_t(m_device.size());
}

bool ExivFile::isopen() const
{
    return m_open;
}

int ExivFile::error() const
{
    return 0;
}

bool ExivFile::eof() const
{
    return m_eof;
}

std::string ExivFile::path() const
{
    return std::string();
}
