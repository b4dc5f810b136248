#pragma once

#include "host/scan/founditem.h"

#include <QHash>
#include <QStringList>
#include <QVector>

#include <functional>

/// Makes up the items of a card one after the other: what cameras, phones and drones have written
/// over some years, folder by folder, with some documents and music between. Repeatable but for the
/// ids.
class SyntheticShots
{
public:
    /// \a count: how many will be asked for; their times are spread over the years.
    SyntheticShots(int count, std::function<qint64()> nextId);

    /// The next file, or the folder that it will lie in.
    FoundItem next();

    /// A deleted file that something else has been written over.
    static bool isOverwritten(const FoundItem &item);
    /// Any number: which picture a photo shows.
    static quint64 pictureOf(const FoundItem &item);

private:
    struct Folder
    {
        qint64 id = -1;
        QString path; // with its name
    };

    FoundItem newItem(const Folder &in, const QString &name);
    FoundItem enter(int level);
    void planFolder();
    FoundItem nextFile();

    const int m_count;
    const std::function<qint64()> m_nextId;
    quint64 m_made = 0;

    int m_device = 0;
    int m_folderNumber = -1;        // of the folders planned so far
    QStringList m_levels;           // from the root down to the folder being filled
    QVector<Folder> m_open;         // those of them that have been delivered
    int m_left = 0;                 // files that still come in it
    int m_shot = 0;                 // counts on over all folders, as cameras do
    QHash<QString, qint64> m_known; // ids of folders by path
};
