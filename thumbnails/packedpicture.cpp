#include "thumbnails/packedpicture.h"

#include <array>

namespace {

/// The colours of a picture as long as one byte can tell them apart.
class ColourTable
{
public:
    /// -1 when there are too many.
    int indexOf(QRgb colour)
    {
        size_t slot = (colour * 2654435761U) >> 22;
        while (m_slots[slot] > 0 && m_colours.at(m_slots[slot] - 1) != colour)
            slot = (slot + 1) % m_slots.size();
        if (m_slots[slot] == 0) {
            if (m_colours.size() == MostColours)
                return -1;
            m_grey = m_grey && qIsGray(colour);
            m_colours.append(colour);
            m_slots[slot] = m_colours.size();
        }
        return m_slots[slot] - 1;
    }

    const QVector<QRgb> &colours() const { return m_colours; }
    bool isGrey() const { return m_grey; }

private:
    static constexpr int MostColours = 256;
    QVector<QRgb> m_colours;
    std::array<int, 1024> m_slots = {}; // index and one, by a hash of the colour
    bool m_grey = true;
};

const QRgb *pixelsOf(const QImage &picture, int y)
{
    return reinterpret_cast<const QRgb *>(picture.constScanLine(y));
}

bool isOpaque(const QImage &picture)
{
    if (!picture.hasAlphaChannel())
        return true;
    for (int y = 0; y < picture.height(); ++y) {
        const QRgb *const pixels = pixelsOf(picture, y);
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(pixels[x]) != 255)
                return false;
        }
    }
    return true;
}

/// Null for too many colours.
QImage indexed(const QImage &picture)
{
    ColourTable table;
    const int width = picture.width(); // asked for each pixel it takes longer than the rest
    QImage packed(picture.size(), QImage::Format_Indexed8);
    for (int y = 0; y < picture.height() && !packed.isNull(); ++y) {
        const QRgb *const pixels = pixelsOf(picture, y);
        uchar *const line = packed.scanLine(y);
        int index = -1;
        for (int x = 0; x < width; ++x) {
            if (x == 0 || pixels[x] != pixels[x - 1])
                index = table.indexOf(pixels[x] | 0xFF000000);
            if (index < 0)
                return {};
            line[x] = uchar(index);
        }
    }
    packed.setColorTable(table.colours());
    return table.isGrey() ? packed.convertToFormat(QImage::Format_Grayscale8) : packed;
}

} // namespace

QImage packedPicture(const QImage &picture)
{
    if (picture.isNull())
        return {};
    const QImage full = picture.convertToFormat(
        picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    if (!isOpaque(full))
        return full;
    QImage packed = indexed(full);
    if (packed.isNull()) {
        QImage opaque = full;
        opaque.reinterpretAsFormat(QImage::Format_RGB32);
        packed = opaque.convertToFormat(QImage::Format_RGB888);
    }
    packed.setDevicePixelRatio(picture.devicePixelRatio());
    return packed;
}
