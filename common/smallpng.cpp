#include "common/smallpng.h"

#include "common/pngrows.h"

#include <QtEndian>

#include <array>
#include <cstring>

namespace {

constexpr std::array<char, 8> Signature = {'\x89', 'P', 'N', 'G', '\r', '\n', '\x1a', '\n'};
constexpr int ChunkFrame = 12; // length, name and checksum
constexpr int HeaderLength = 13;
constexpr qint64 MostPixels = 1'000'000;

enum ColourType { Grey = 0, Colour = 2, GreyAlpha = 4, ColourAlpha = 6 };

struct Header
{
    int width = 0;
    int height = 0;
    int channels = 0;

    int rowBytes() const { return width * channels; }
};

quint32 numberAt(const char *data)
{
    return qFromBigEndian<quint32>(data);
}

quint32 checksum(const char *data, int size)
{
    quint32 sum = 0xFFFFFFFF;
    for (int i = 0; i < size; ++i) {
        sum ^= uchar(data[i]);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ (sum & 1 ? 0xEDB88320 : 0);
    }
    return ~sum;
}

int channelsOf(int colourType)
{
    switch (colourType) {
    case Grey:
        return 1;
    case GreyAlpha:
        return 2;
    case Colour:
        return 3;
    case ColourAlpha:
        return 4;
    default:
        return 0; // a palette
    }
}

/// Of the chunk at \a chunk; false for what is not read here.
bool readHeader(const char *chunk, Header *header)
{
    constexpr int NameLength = 4;
    const char *const data = chunk + 8;
    if (numberAt(chunk) != HeaderLength || std::memcmp(chunk + 4, "IHDR", NameLength) != 0
        || checksum(chunk + 4, NameLength + HeaderLength) != numberAt(data + HeaderLength))
        return false;
    const quint32 width = numberAt(data);
    const quint32 height = numberAt(data + 4);
    const bool plain = data[8] == 8 && data[10] == 0 && data[11] == 0 && data[12] == 0;
    if (!plain || width < 1 || height < 1 || width > MostPixels || height > MostPixels
        || qint64(width) * height > MostPixels)
        return false;
    *header = {int(width), int(height), channelsOf(data[9])};
    return header->channels > 0;
}

/// The compressed rows of all chunks after the header, behind room for the unpacked length. Empty
/// when the file is cut off or holds something that changes the pixels.
QByteArray packedRows(const QByteArray &file)
{
    QByteArray packed(4, '\0');
    packed.reserve(file.size());
    int at = int(Signature.size()) + ChunkFrame + HeaderLength;
    while (file.size() - at >= ChunkFrame) {
        const char *const chunk = file.constData() + at;
        const quint32 length = numberAt(chunk);
        const QLatin1String name(chunk + 4, 4);
        if (name == QLatin1String("IEND"))
            return packed;
        if (length > quint32(file.size() - at - ChunkFrame) || name == QLatin1String("tRNS"))
            return {};
        if (name == QLatin1String("IDAT"))
            packed.append(chunk + 8, int(length));
        at += ChunkFrame + int(length);
    }
    return {};
}

QImage::Format formatOf(int channels)
{
    constexpr std::array<QImage::Format, 5> Formats = {
        QImage::Format_Invalid, QImage::Format_Grayscale8, QImage::Format_ARGB32,
        QImage::Format_RGB32, QImage::Format_ARGB32};
    return Formats[size_t(channels)];
}

void writeRow(const uchar *row, const Header &header, uchar *line)
{
    auto *const pixels = reinterpret_cast<QRgb *>(line);
    switch (header.channels) {
    case 1:
        std::memcpy(line, row, size_t(header.width));
        break;
    case 2:
        for (int x = 0; x < header.width; ++x, row += 2)
            pixels[x] = qRgba(row[0], row[0], row[0], row[1]);
        break;
    case 3:
        for (int x = 0; x < header.width; ++x, row += 3)
            pixels[x] = qRgb(row[0], row[1], row[2]);
        break;
    default:
        for (int x = 0; x < header.width; ++x, row += 4)
            pixels[x] = qRgba(row[0], row[1], row[2], row[3]);
    }
}

} // namespace

namespace SmallPng {

bool isPng(const QByteArray &beginning)
{
    return beginning.size() >= int(Signature.size())
        && std::memcmp(beginning.constData(), Signature.data(), Signature.size()) == 0;
}

QImage read(const QByteArray &file)
{
    Header header;
    constexpr int FirstData = int(Signature.size()) + ChunkFrame + HeaderLength;
    if (file.size() < FirstData || file.size() > MostBytes || !isPng(file)
        || !readHeader(file.constData() + Signature.size(), &header))
        return {};
    QByteArray packed = packedRows(file);
    if (packed.size() <= 4)
        return {};
    const int stride = 1 + header.rowBytes(); // each row says first how it was filtered
    qToBigEndian(quint32(stride * header.height), packed.data());
    QByteArray rows = qUncompress(packed);
    if (rows.size() < stride * header.height)
        return {};
    rows.append(PngRows::Slack, '\0');

    QImage image(header.width, header.height, formatOf(header.channels));
    const QByteArray nothing(header.rowBytes() + PngRows::Slack, '\0');
    auto *row = reinterpret_cast<uchar *>(rows.data());
    auto *above = reinterpret_cast<const uchar *>(nothing.constData());
    for (int y = 0; y < header.height && !image.isNull(); ++y, row += stride) {
        if (!PngRows::unfilter(row[0], row + 1, above, header.rowBytes(), header.channels))
            return {};
        writeRow(row + 1, header, image.scanLine(y));
        above = row + 1;
    }
    return image;
}

} // namespace SmallPng
