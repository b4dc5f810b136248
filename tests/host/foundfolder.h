#pragma once

#include "host/scan/scansource.h"

#include <QFile>
#include <QHash>
#include <QTemporaryDir>

#include <algorithm>

/// A folder with files, scanned: the items in the order of their names.
class FoundFolder
{
public:
    explicit FoundFolder(const QHash<QString, QByteArray> &files = {})
    {
        for (auto it = files.cbegin(); it != files.cend(); ++it) {
            QFile file(m_dir.filePath(it.key()));
            if (file.open(QIODevice::WriteOnly))
                file.write(it.value());
        }
        scan();
    }

    void scan()
    {
        QString error;
        items.clear();
        source = ScanSource::create(m_dir.path(), &error);
        const std::atomic<bool> cancel{false};
        source->scan([this](QVector<FoundItem> &&batch) { items += batch; }, cancel);
        std::sort(items.begin(), items.end(),
                  [](const FoundItem &a, const FoundItem &b) { return a.name < b.name; });
    }

    QString path() const { return m_dir.path(); }

    FoundItem named(const QString &name) const
    {
        const auto found = std::find_if(items.begin(), items.end(), [&name](const FoundItem &item) {
            return item.name == name;
        });
        return found == items.end() ? FoundItem() : *found;
    }

    std::shared_ptr<ScanSource> source;
    QVector<FoundItem> items;

private:
    QTemporaryDir m_dir;
};
