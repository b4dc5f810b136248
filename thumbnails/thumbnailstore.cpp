#include "thumbnails/thumbnailstore.h"

#include "thumbnails/packedpicture.h"

#include <iterator>
#include <utility>

namespace {

/// What a picture costs beside its pixels: the entry, its place in the hash, the image's own data.
constexpr qint64 Overhead = 400;
constexpr int SweptPerInsert = 4;

qint64 costOf(const QPixmap &picture)
{
    return Overhead + qint64(picture.width()) * picture.height() * picture.depth() / 8;
}

qint64 costOf(const QImage &picture)
{
    return Overhead + picture.sizeInBytes() + qint64(picture.colorCount()) * int(sizeof(QRgb));
}

} // namespace

ThumbnailStore::ThumbnailStore(const Limits &limits)
    : m_limits(limits)
{
}

void ThumbnailStore::insert(qint64 fileId, const QPixmap &picture, Source source,
                            TreeItemData *owner)
{
    remove(fileId);
    if (picture.isNull())
        return;
    m_ready.entries.emplace_front();
    const Place place = m_ready.entries.begin();
    place->fileId = fileId;
    place->serial = ++m_lastSerial;
    place->ready = picture;
    place->bytes = costOf(picture);
    place->source = source;
    place->owned = owner != nullptr;
    place->owner = owner;
    m_ready.bytes += place->bytes;
    m_entries.insert(fileId, place);
    keepLimits();

    // records die unannounced: where pictures come, those of dead ones go, a few at a time
    if (m_toSweep.isEmpty())
        startSweep();
    sweep(SweptPerInsert);
}

QPixmap ThumbnailStore::picture(qint64 fileId)
{
    const auto found = m_entries.constFind(fileId);
    if (found == m_entries.constEnd())
        return {};
    const Place place = *found;
    Shelf *const shelf = &shelfOf(*place);
    if (shelf == &m_ready) {
        move(place, shelf, shelf);
        return place->ready;
    }
    shelf->bytes -= place->bytes;
    place->ready = QPixmap::fromImage(waiting(*place));
    place->packing.reset();
    place->packed = QImage();
    place->bytes = costOf(place->ready);
    shelf->bytes += place->bytes;
    move(place, shelf, &m_ready);
    const QPixmap picture = place->ready;
    keepLimits();
    return picture;
}

ThumbnailStore::Info ThumbnailStore::info(qint64 fileId)
{
    const auto found = m_entries.constFind(fileId);
    if (found == m_entries.constEnd())
        return {};
    const Place place = *found;
    Shelf *const shelf = &shelfOf(*place);
    move(place, shelf, shelf);
    if (!place->ready.isNull())
        return {place->serial, QSizeF(place->ready.size()) / place->ready.devicePixelRatio()};
    const QImage image = waiting(*place);
    return {place->serial, QSizeF(image.size()) / image.devicePixelRatio()};
}

QImage ThumbnailStore::image(qint64 fileId) const
{
    const auto found = m_entries.constFind(fileId);
    if (found == m_entries.constEnd())
        return {};
    const Entry &entry = **found;
    if (!entry.ready.isNull())
        return entry.ready.toImage();
    const QImage image = waiting(entry);
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                         : QImage::Format_RGB32);
}

void ThumbnailStore::remove(qint64 fileId)
{
    const auto found = m_entries.find(fileId);
    if (found == m_entries.end())
        return;
    const Place place = *found;
    Shelf &shelf = shelfOf(*place);
    shelf.bytes -= place->bytes;
    m_entries.erase(found);
    shelf.entries.erase(place);
}

void ThumbnailStore::clear()
{
    m_entries.clear();
    m_toSweep.clear();
    for (Shelf *shelf : {&m_ready, &m_packing, &m_loadable, &m_onlyCopies})
        *shelf = Shelf();
    m_queue.stop();
}

void ThumbnailStore::adopt(qint64 fileId, TreeItemData *item)
{
    const auto found = m_entries.constFind(fileId);
    if (found == m_entries.constEnd() || (*found)->owner)
        return;
    (*found)->owned = true;
    (*found)->owner = item;
}

void ThumbnailStore::orphan(qint64 fileId)
{
    const auto found = m_entries.constFind(fileId);
    if (found == m_entries.constEnd())
        return;
    (*found)->owned = true;
    (*found)->owner.clear();
}

void ThumbnailStore::startSweep()
{
    m_toSweep.clear();
    m_toSweep.reserve(m_entries.size());
    for (auto entry = m_entries.constBegin(); entry != m_entries.constEnd(); ++entry)
        m_toSweep.append(entry.key());
}

bool ThumbnailStore::sweep(int most)
{
    for (int i = 0; i < most && !m_toSweep.isEmpty(); ++i) {
        const qint64 fileId = m_toSweep.takeLast();
        const auto found = m_entries.constFind(fileId);
        if (found != m_entries.constEnd() && (*found)->owned && !(*found)->owner)
            remove(fileId);
    }
    return !m_toSweep.isEmpty();
}

qint64 ThumbnailStore::bytes()
{
    takePacked();
    return m_ready.bytes + m_packing.bytes + m_loadable.bytes + m_onlyCopies.bytes;
}

QImage ThumbnailStore::waiting(const Entry &entry)
{
    return entry.packing ? entry.packing->image() : entry.packed;
}

ThumbnailStore::Shelf &ThumbnailStore::shelfOf(const Entry &entry)
{
    if (!entry.ready.isNull())
        return m_ready;
    if (entry.packing)
        return m_packing;
    return entry.source == Source::File ? m_loadable : m_onlyCopies;
}

void ThumbnailStore::move(Place place, Shelf *from, Shelf *to)
{
    to->entries.splice(to->entries.begin(), from->entries, place);
    from->bytes -= place->bytes;
    to->bytes += place->bytes;
}

void ThumbnailStore::pack(Place place)
{
    const QImage image = place->ready.toImage();
    place->ready = QPixmap();
    if (m_packing.bytes + place->bytes <= m_limits.packing) {
        place->packing = m_queue.add(image);
        move(place, &m_ready, &m_packing);
        return;
    }
    m_ready.bytes -= place->bytes;
    place->packed = packedPicture(image);
    place->bytes = costOf(place->packed);
    m_ready.bytes += place->bytes;
    move(place, &m_ready, &shelfOf(*place));
}

void ThumbnailStore::takePacked()
{
    while (!m_packing.entries.empty()) {
        const Place place = std::prev(m_packing.entries.end());
        if (!place->packing->isPacked())
            return;
        m_packing.bytes -= place->bytes;
        place->packed = place->packing->image();
        place->packing.reset();
        place->bytes = costOf(place->packed);
        m_packing.bytes += place->bytes;
        move(place, &m_packing, &shelfOf(*place));
    }
}

void ThumbnailStore::keepLimits()
{
    takePacked();
    // the one in front is about to be shown
    while (
        m_ready.entries.size() > 1
        && (m_ready.bytes > m_limits.mostReady
            || (m_ready.bytes > m_limits.ready && int(m_ready.entries.size()) > m_limits.fewReady)))
        pack(std::prev(m_ready.entries.end()));
    while (!m_loadable.entries.empty()
           && m_ready.bytes + m_packing.bytes + m_loadable.bytes > m_limits.total)
        giveUpLast(&m_loadable);
    while (!m_onlyCopies.entries.empty() && m_onlyCopies.bytes > m_limits.onlyCopies)
        giveUpLast(&m_onlyCopies);
}

void ThumbnailStore::giveUpLast(Shelf *shelf)
{
    const Entry &last = shelf->entries.back();
    shelf->bytes -= last.bytes;
    m_entries.remove(last.fileId);
    shelf->entries.pop_back();
}
