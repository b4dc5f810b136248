#pragma once

#include <QIODevice>

#include <exiv2/basicio.hpp>
#include <exiv2/image.hpp>

#include <memory>

/// A device as Exiv2 reads files. Never writes. \a device must outlive it.
class ExivFile : public Exiv2::BasicIo
{
public:
    /// The photo in \a device with its metadata, never null. Throws Exiv2::AnyError when there is
    /// none.
    static std::unique_ptr<Exiv2::Image> readPhoto(QIODevice &device);

    explicit ExivFile(QIODevice &device);

    int open() override;
    int close() override;
    long write(const Exiv2::byte *data, long count) override;
    long write(Exiv2::BasicIo &from) override;
    int putb(Exiv2::byte data) override;
    Exiv2::DataBuf read(long count) override;
    long read(Exiv2::byte *buffer, long count) override;
    int getb() override;
    void transfer(Exiv2::BasicIo &from) override;
    int seek(long offset, Position from) override;
    /// The whole file in memory: the format of most raw files is read in no other way.
    Exiv2::byte *mmap(bool isWriteable) override;
    int munmap() override;
    long tell() const override;
    size_t size() const override;
    bool isopen() const override;
    int error() const override;
    bool eof() const override;
    std::string path() const override;

private:
    QIODevice &m_device;
    QByteArray m_whole;
    bool m_open = false;
    bool m_eof = false;
};
