#pragma once

#include "platform/item/treeitemdata.h"

#include <QRandomGenerator>

#include <memory>
#include <vector>

/// A card of a million files as cameras and people name them. The same in every run.
class MillionFiles
{
public:
    static constexpr int Count = 1'000'000;

    static const MillionFiles &instance()
    {
        static const MillionFiles files;
        return files;
    }

    /// In the host's order.
    const QList<TreeItemData *> &all() const { return m_all; }

    /// A folder that holds the first \a files of them. One at a time.
    TreeItemData &folder(int files) const
    {
        static TreeItemData root;
        root.childFiles = m_all.mid(0, files);
        root.itemCount = files;
        root.kind = 1;
        return root;
    }

private:
    MillionFiles()
    {
        static const char *const words[] = {"IMG_", "DSC_", "Holiday ", "scan-", "VID_", "Report "};
        QRandomGenerator random(1);
        m_records.reserve(Count);
        for (int i = 0; i < Count; ++i) {
            auto record = std::make_unique<TreeItemData>();
            record->kind = 2;
            record->fileId = i;
            record->extension = i % 3 ? QStringLiteral("JPG") : QStringLiteral("mp4");
            record->name = QLatin1String(words[random.bounded(6)])
                + QString::number(random.bounded(100'000'000)) + QLatin1Char('.')
                + record->extension;
            record->path = QStringLiteral("/Volume/DCIM/%1CANON").arg(100 + random.bounded(900));
            record->fileSize = random.bounded(50'000'000);
            record->modifiedTime = 1'500'000'000 + random.bounded(200'000'000);
            m_all.append(record.get());
            m_records.push_back(std::move(record));
        }
    }

    std::vector<std::unique_ptr<TreeItemData>> m_records;
    QList<TreeItemData *> m_all;
};
