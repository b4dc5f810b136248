#include "host/scan/paintedphotos.h"

#include "scenes/scenes.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>

namespace {

constexpr QSize MotifSize(450, 300);
constexpr QSize PhotoSize(360, 240);
constexpr int Quality = 86;
constexpr int MaxShade = 46; // of 255: dusk or noon, but never black or white

struct Motif
{
    void (*paint)(Canvas &, int);
    int variants;
};

constexpr Motif Motifs[] = {
    {Scenes::mountains, 6}, {Scenes::hills, 5},       {Scenes::sea, 5},      {Scenes::beach, 3},
    {Scenes::forest, 4},    {Scenes::nightSky, 3},    {Scenes::skyline, 3},  {Scenes::street, 2},
    {Scenes::flower, 3},    {Scenes::blossom, 1},     {Scenes::coffee, 1},   {Scenes::citrus, 1},
    {Scenes::cake, 1},      {Scenes::cat, 2},         {Scenes::dog, 2},      {Scenes::bird, 1},
    {Scenes::portrait, 3},  {Scenes::silhouettes, 1}, {Scenes::balloons, 1},
};

constexpr int variantsInAll()
{
    int count = 0;
    for (const Motif &motif : Motifs)
        count += motif.variants;
    return count;
}
static_assert(variantsInAll() == PaintedPhotos::MotifCount);

} // namespace

const QImage &PaintedPhotos::motif(int index)
{
    Slot &slot = m_motifs[std::size_t(index)];
    std::call_once(slot.painted, [&slot, index] {
        int variant = index;
        const Motif *motif = Motifs;
        while (variant >= motif->variants)
            variant -= (motif++)->variants;
        Canvas canvas(MotifSize, quint64(index) + 1);
        motif->paint(canvas, variant);
        canvas.develop({});
        slot.image = canvas.image().convertToFormat(QImage::Format_RGB32);
    });
    return slot.image;
}

QByteArray PaintedPhotos::jpeg(quint64 which)
{
    const auto pick = [&which](int choices) {
        const int picked = int(which % quint64(choices));
        which /= quint64(choices);
        return picked;
    };
    const QImage &whole = motif(pick(MotifCount));
    const bool mirrored = pick(2) == 1;
    const QSize spare = MotifSize - PhotoSize;
    const QPoint corner(spare.width() * pick(7) / 6, spare.height() * pick(5) / 4);
    const int shade = (pick(5) - 2) * MaxShade / 2;

    QImage photo = whole.copy(QRect(corner, PhotoSize)).mirrored(mirrored, false);
    if (shade != 0) {
        QPainter painter(&photo);
        const QColor light = shade > 0 ? QColor(255, 244, 214) : QColor(16, 24, 58);
        painter.setOpacity(qAbs(shade) / 255.0);
        painter.fillRect(photo.rect(), light);
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "jpg");
    writer.setQuality(Quality);
    writer.write(photo);
    return bytes;
}
