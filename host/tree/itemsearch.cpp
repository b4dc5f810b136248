#include "host/tree/itemsearch.h"

#include "host/tree/itemtree.h"

#include <QElapsedTimer>

namespace {
constexpr int SliceMs = 8;
constexpr int ItemsBetweenLooksAtTheClock = 512;
} // namespace

ItemSearch::ItemSearch(const ItemTree &tree, QObject *parent)
    : QObject(parent)
    , m_tree(tree)
{
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &ItemSearch::step);
}

void ItemSearch::start(const QString &keyword, By by)
{
    clear();
    if (keyword.isEmpty())
        return;
    m_keyword = keyword;
    m_matcher = QStringMatcher(keyword, Qt::CaseInsensitive);
    if (by == By::Description)
        m_description.emplace(keyword);
    m_root.reset(new TreeItemData);
    m_root->kind = ItemRecord::FolderKind;
    m_root->secondaryId = -2 - m_searches++; // below zero: never that of a record
    m_root->exists = true;
    m_timer.start();
}

void ItemSearch::resume()
{
    if (isActive() && !isComplete())
        m_timer.start();
}

void ItemSearch::clear()
{
    m_timer.stop();
    m_keyword.clear();
    m_description.reset();
    m_root.reset();
    m_next = 0;
}

bool ItemSearch::isComplete() const
{
    return m_next >= m_tree.records().size() && !m_tree.isFiltering();
}

bool ItemSearch::finds(const ItemRecord &record) const
{
    return m_description ? m_description->matches(record) : m_matcher.indexIn(record.name) >= 0;
}

void ItemSearch::step()
{
    QElapsedTimer clock;
    clock.start();
    const RecordStore &records = m_tree.records();
    const int end = m_tree.filteredEnd();
    while (m_next < end) {
        ItemRecord *record = records.at(m_next++);
        if (record->isShown && !record->isRoot && finds(*record)) {
            (record->isFolder() ? m_root->childFolders : m_root->childFiles).append(record);
            ++m_root->itemCount;
            m_root->folderSize += record->size();
        }
        if (m_next % ItemsBetweenLooksAtTheClock == 0 && clock.elapsed() >= SliceMs)
            break;
    }
    if (m_next >= end)
        m_timer.stop();
    emit progressed();
}

void ItemSearch::updateCheckState()
{
    if (!m_root || m_root->itemCount == 0)
        return;
    // all that is found is below the root by place
    const int everything = m_tree.placeRoot()->checkState;
    m_root->checkState = everything == Qt::PartiallyChecked ? stateOfFound() : everything;
}

int ItemSearch::stateOfFound() const
{
    bool checked = false;
    bool unchecked = false;
    for (const auto *list : {&m_root->childFolders, &m_root->childFiles}) {
        for (const TreeItemData *item : *list) {
            checked = checked || item->checkState != Qt::Unchecked;
            unchecked = unchecked || item->checkState != Qt::Checked;
            if (checked && unchecked)
                return Qt::PartiallyChecked;
        }
    }
    return checked ? Qt::Checked : Qt::Unchecked;
}
