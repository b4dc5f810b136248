#pragma once

#include "host/scan/paintedphotos.h"
#include "host/scan/scansource.h"

/// A card that does not exist, with as many files as one likes: the folders of cameras, phones and
/// drones, some documents and music; a part of it deleted, a part of that overwritten. Photos in
/// JPEG have contents (small, filled up with zeros to the size that they claim), other files have
/// none. What it holds depends on the count alone; items stream in at the pace of a fast scan.
class SyntheticSource : public ScanSource
{
public:
    /// How such a card is named where others have a path; countOf() reads it back, 0: another path.
    static QString pathFor(int items);
    static int countOf(const QString &path);

    /// \a items of them, folders included; at least 1, at most MaxItems.
    explicit SyntheticSource(int items);

    ScanOutcome scan(const Sink &sink, const std::atomic<bool> &cancel,
                     const Progress &progress = {}) override;
    std::unique_ptr<QIODevice> openFile(const FoundItem &item, QString *error) const override;

    static constexpr int MaxItems = 20'000'000;

private:
    const int m_items;
    mutable PaintedPhotos m_photos;
};
