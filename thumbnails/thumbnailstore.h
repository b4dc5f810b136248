#pragma once

#include "platform/item/treeitemdata.h"
#include "thumbnails/packingqueue.h"

#include <QHash>
#include <QImage>
#include <QPixmap>
#include <QPointer>
#include <QVector>

#include <list>
#include <memory>

/// Pictures by file id, within bounds of memory. The ones shown last are ready as pixmaps; the
/// others wait in the smallest form that shows the same pixels, never in both. Another thread
/// brings them into that form; as long as it has not, they count as large as they are. When there
/// are too many, those not shown for longest are given up: first and foremost the ones that can be
/// loaded again. GUI thread.
class ThumbnailStore
{
public:
    struct Limits
    {
        qint64 total = 128 << 20; ///< bytes of what is ready, being packed or can be loaded again
        qint64 ready = 16 << 20;  ///< bytes of pixmaps, unless they are few
        int fewReady = 192;       ///< pixmaps: several pages stay ready, even of large ones
        qint64 mostReady = 96 << 20;   ///< bytes of pixmaps in any case
        qint64 packing = 4 << 20;      ///< bytes of what waits to be packed; the rest is at once
        qint64 onlyCopies = 512 << 20; ///< bytes of what would have to be asked of the host again
    };
    enum class Source { File, OnlyCopy };

    explicit ThumbnailStore(const Limits &limits);

    /// Takes the place of an earlier picture. \a owner is the record that it belongs to, if known:
    /// the picture goes when its owner has died.
    void insert(qint64 fileId, const QPixmap &picture, Source source, TreeItemData *owner);
    /// Null when there is none. Marks it as shown.
    QPixmap picture(qint64 fileId);

    struct Info
    {
        qint64 serial = 0; ///< tells it from every other picture there has been; 0: none
        QSizeF size;       ///< in logical pixels
    };
    /// What is to be known of a picture without making it ready. Marks it as shown.
    Info info(qint64 fileId);
    /// Its pixels, as they are drawn, without making it ready. Null when there is none.
    QImage image(qint64 fileId) const;
    bool contains(qint64 fileId) const { return m_entries.contains(fileId); }
    void remove(qint64 fileId);
    void clear();

    /// \a item shows this picture: it becomes the owner where there is none alive.
    void adopt(qint64 fileId, TreeItemData *item);
    /// Its record has died: the picture goes unless another record shows it soon.
    void orphan(qint64 fileId);
    /// Begins to look for pictures whose owners have died.
    void startSweep();
    /// Looks at the next ones, at most \a most. False when all have been looked at.
    bool sweep(int most);

    int count() const { return m_entries.size(); }
    /// Memory of all pictures with what belongs to them, in bytes.
    qint64 bytes();

private:
    struct Entry
    {
        qint64 fileId = 0;
        qint64 serial = 0;
        QPixmap ready; ///< one of these three
        std::shared_ptr<PackingQueue::Picture> packing;
        QImage packed;
        qint64 bytes = 0;
        Source source = Source::File;
        bool owned = false;
        QPointer<TreeItemData> owner;
    };
    /// The last shown one first.
    struct Shelf
    {
        std::list<Entry> entries;
        qint64 bytes = 0;
    };
    using Place = std::list<Entry>::iterator;

    static QImage waiting(const Entry &entry);
    Shelf &shelfOf(const Entry &entry);
    void move(Place place, Shelf *from, Shelf *to);
    void pack(Place place);
    void takePacked();
    void keepLimits();
    void giveUpLast(Shelf *shelf);

    const Limits m_limits;
    PackingQueue m_queue;
    Shelf m_ready;
    Shelf m_packing;
    Shelf m_loadable;
    Shelf m_onlyCopies;
    QHash<qint64, Place> m_entries;
    QVector<qint64> m_toSweep;
    qint64 m_lastSerial = 0;
};
