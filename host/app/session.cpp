#include "host/app/session.h"

#include "host/app/pathpattern.h"
#include "host/tree/checksweep.h"

#include <QPixmap>

namespace {
constexpr int PublishMs = 100;   // ten times a second is all that an eye can follow
constexpr int FirstHitsMs = 200; // what a filter finds later than this is shown bit by bit
constexpr int FilteredAStep = 512;
using Plugin = SDCardScanContentPluginInterface;
} // namespace

Session::Session(ContentPlugin &plugin, QObject *parent)
    : QObject(parent)
    , m_plugin(plugin)
    , m_search(m_tree)
    , m_checks(m_tree, m_search, m_work)
    , m_collector(m_tree, m_work)
{
    m_publisher.setInterval(PublishMs);
    connect(&m_publisher, &QTimer::timeout, this, &Session::publish);
    connect(&m_search, &ItemSearch::progressed, this, [this] {
        if (!m_publisher.isActive())
            m_publisher.start();
    });
    connect(&m_checks, &CheckChanges::changed, this, &Session::publishChecks);
    connect(&m_checks, &CheckChanges::bulkChecked, this, &Session::bulkChecked);
    connect(&m_checks, &CheckChanges::busyChanged, &m_runner, &ScanRunner::setHeld);
    connectScan();
    connectPlugin();
    m_plugin->setFilterCondition(&m_filter);
}

Session::~Session()
{
    m_plugin->setFilterCondition(nullptr);
    m_plugin->clearData(Plugin::BothSides); // before the records go
}

void Session::connectScan()
{
    connect(&m_runner, &ScanRunner::opened, this, &Session::takeVolumes);
    connect(&m_runner, &ScanRunner::itemsFound, this, &Session::takeItems);
    connect(&m_runner, &ScanRunner::finished, this, &Session::finishScan);
    connect(&m_runner, &ScanRunner::progress, this, [this](const ScanProgress &progress) {
        m_progress = progress;
        emit scanProgressed();
    });
    connect(&m_thumbnails, &ThumbnailMaker::thumbnailReady, this, &Session::answerThumbnail);
    connect(&m_thumbnails, &ThumbnailMaker::thumbnailFailed, this,
            [this](qint64 id) { answerThumbnail(id, QString(), QImage()); });
    connect(&m_metadata, &MetadataReader::metadataReady, this, &Session::answerMetadata);
    connect(&m_metadata, &MetadataReader::metadataFailed, this,
            [this](qint64 id) { answerMetadata(id, {}, {}); });
}

void Session::connectPlugin()
{
    connect(&m_plugin, &ContentPlugin::treeItemChecked, &m_checks, &CheckChanges::take);
    connect(&m_plugin, &ContentPlugin::searchItemChecked, &m_checks, &CheckChanges::takeFound);
    connect(&m_plugin, &ContentPlugin::searchAllChecked, this,
            [this](Qt::CheckState state) { m_checks.takeFound(m_search.root(), state); });
    connect(&m_plugin, &ContentPlugin::folderOpened, this, &Session::openFolder);
    connect(&m_plugin, &ContentPlugin::thumbnailRequested, this, &Session::requestThumbnail);
    connect(&m_plugin, &ContentPlugin::metadataRequested, this, &Session::requestMetadata);
    connect(&m_plugin, &ContentPlugin::tooltipRequested, this, &Session::tooltipRequested);
    connect(&m_plugin, &ContentPlugin::recoverRequested, this, &Session::recoverRequested);
    // What follows changes the trees that the plug-in is showing: not from inside its signal.
    connect(
        &m_plugin, &ContentPlugin::fileOpened, this,
        [this](TreeItemData *item) {
            if (const ItemRecord *file = m_tree.records().find(item))
                emit fileActivated(file);
        },
        Qt::QueuedConnection);
    connect(
        &m_plugin, &ContentPlugin::locateRequested, this,
        [this](TreeItemData *item) {
            if (const ItemRecord *record = m_tree.records().find(item))
                locate(record);
        },
        Qt::QueuedConnection);
}

void Session::clear()
{
    m_publisher.stop();
    m_checks.drop();
    m_thumbnails.drop();
    m_metadata.setSource(nullptr);
    m_awaitingMetadata.clear();
    m_plugin->clearData(Plugin::BothSides);
    m_search.clear();
    m_shown = nullptr;
    const auto remains = std::make_shared<RecordStore::Remains>(m_tree.clear());
    m_disposal.add([remains] { return remains->destroyBlock(); });
    m_progress = ScanProgress();
    m_outcome = ScanOutcome();
    m_publishedRevision = 0;
    m_publishedMatches = -1;
}

void Session::open(const QString &path)
{
    clear();
    m_path = path;
    m_scanning = true;
    m_plugin->setScanState(Plugin::ScanStarted);
    m_plugin->setViewMode(m_viewMode); // starting a scan puts the grid back
    emit shownRootChanged();
    emit searchChanged();
    emit checksChanged();
    m_runner.start(path);
}

void Session::takeVolumes(const QVector<VolumeInfo> &volumes)
{
    m_tree.setVolumes(volumes);
    m_thumbnails.setSource(m_runner.source());
    m_metadata.setSource(m_runner.source());
    m_shown = m_tree.allFiles();
    m_publisher.start();
    emit opened();
    if (MediaSetup::installedProgram().isEmpty())
        emit failed(&MediaSetup::missingMessage);
    emit shownRootChanged();
}

void Session::takeItems(const QVector<FoundItem> &batch)
{
    m_tree.add(batch);
    m_search.resume();
}

void Session::finishScan(const ScanOutcome &outcome)
{
    m_scanning = false;
    m_outcome = outcome;
    publish();
    m_plugin->setScanState(Plugin::ScanFinished);
    if (m_shown && m_shown->itemCount == 0 && !m_tree.isFiltering())
        m_plugin->updateScanData(
            m_shown); // an empty root chooses its page by the state of the scan
    m_plugin->refreshScanCheckState();
    emit scanFinished(outcome);
}

/// Hands over what is shown when it has changed since the last time, and rests when nothing can.
void Session::publish()
{
    if (m_shown && m_tree.revision() != m_publishedRevision && isTimeToShow()) {
        m_publishedRevision = m_tree.revision();
        m_plugin->updateScanData(m_shown);
        if (!m_tree.isFiltering()) {
            emit treeGrew();
            emit checksChanged(); // what is found in a checked folder is checked
        }
    }
    m_search.resume();
    publishSearch();
    if (!m_scanning && !m_tree.isFiltering() && (!m_search.isActive() || m_search.isComplete()))
        m_publisher.stop();
}

/// A filter that is quick is shown when it has ended. Of a slow one is shown what there is so far;
/// but what is selected would not stay so while it is still to come.
bool Session::isTimeToShow() const
{
    return !m_tree.isFiltering()
        || (m_sinceFilter.elapsed() >= FirstHitsMs && m_tree.isShown(*m_shown)
            && m_shown->itemCount > 0 && m_plugin->getSelectedItems(Plugin::ScanSide).isEmpty());
}

void Session::publishSearch()
{
    // An empty answer is one only when everything has been looked at.
    if (!m_search.isActive() || (m_search.count() == 0 && !m_search.isComplete())
        || m_search.count() == m_publishedMatches)
        return;
    m_publishedMatches = m_search.count();
    m_search.updateCheckState();
    // A description is no part of a name that could be marked there.
    m_plugin->updateSearchData(m_search.root(), m_filter.aiSearch ? QString() : m_search.keyword());
    emit searchChanged();
}

void Session::publishChecks()
{
    m_plugin->refreshScanCheckState();
    if (m_search.isActive()) {
        m_search.updateCheckState();
        m_plugin->refreshSearchCheckState();
    }
    emit checksChanged();
}

void Session::setViewMode(int mode)
{
    m_viewMode = mode;
    m_plugin->setViewMode(mode);
}

void Session::show(ItemRecord *root)
{
    if (!root)
        return;
    if (m_search.isActive())
        setKeyword(QString());
    m_shown = root;
    if (!m_tree.isFiltering()) { // else it follows when it has been filtered
        m_publishedRevision = m_tree.revision();
        m_plugin->updateScanData(root);
    }
    emit shownRootChanged();
}

void Session::locate(const ItemRecord *item)
{
    m_work.finish();
    const qint64 id = item->fileId;
    show(item->folder());
    m_plugin->locateItemByFileId(id);
}

void Session::setKeyword(const QString &keyword)
{
    if (keyword == m_search.keyword())
        return;
    m_plugin->clearData(Plugin::SearchSide); // before the root of the old search goes
    m_publishedMatches = -1;
    m_search.start(keyword, m_filter.aiSearch ? ItemSearch::By::Description : ItemSearch::By::Name);
    emit searchChanged();
}

void Session::setDescribed(bool described)
{
    if (described == m_filter.aiSearch)
        return;
    m_filter.aiSearch = described;
    restartSearch();
}

void Session::restartSearch()
{
    const QString keyword = m_search.keyword();
    if (keyword.isEmpty())
        return;
    setKeyword(QString());
    setKeyword(keyword);
}

void Session::setFilter(const FilterCondition &condition)
{
    m_checks.settle();
    const int run = ++m_filterRun;
    const bool described = m_filter.aiSearch;
    m_filter = condition;
    m_filter.aiSearch = described;
    m_tree.beginFilter(ItemFilter(condition));
    m_plugin->setFilterCondition(&m_filter);
    restartSearch();
    m_publisher.start();
    m_sinceFilter.start();
    // another filter may come before this one has ended
    m_work.add([this, run] { return run != m_filterRun || m_tree.filterMore(FilteredAStep); },
               [this, run] {
                   if (run == m_filterRun)
                       endFilter();
               });
}

void Session::endFilter()
{
    // the folder that was shown may have nothing left in it: go up to where there is something
    while (m_shown && m_shown->folder() && !m_shown->isShown)
        m_shown = m_shown->folder();
    publish();
    emit shownRootChanged();
    emit checksChanged();
}

/// What is still being done to the tree is done now.
void Session::settle()
{
    m_checks.settle();
    m_work.finish();
}

void Session::setChecked(const QVector<ItemRecord *> &items, bool checked)
{
    settle();
    m_tree.beginStep();
    CheckSweep::below(m_tree, items, checked)->finish();
    publishChecks();
    m_tree.endStep();
}

void Session::changeChecks(Bulk what)
{
    if (m_shown)
        m_checks.change(what, m_shown);
}

void Session::openFolder(TreeItemData *item)
{
    ItemRecord *folder = m_tree.records().find(item);
    if (!folder)
        return;
    if (folder->childFolders.isEmpty() && folder->childFiles.isEmpty()) {
        emit noticed([name = folder->name] { return tr("“%1” is empty.").arg(name); });
        return;
    }
    QMetaObject::invokeMethod(
        this,
        [this, item] {
            if (ItemRecord *record = m_tree.records().find(item)) // a new scan may have begun
                show(record);
        },
        Qt::QueuedConnection);
}

void Session::requestThumbnail(TreeItemData *item)
{
    const ItemRecord *record = m_tree.records().find(item);
    if (!record || record->isFolder())
        return;
    m_thumbnails.request(record->found(), record->extension);
    emit thumbnailTraffic();
}

void Session::answerThumbnail(qint64 id, const QString &path, const QImage &image)
{
    if (image.isNull())
        m_plugin->updateThumbnail(id, QPixmap());
    else
        m_plugin->updateThumbnailWithPath(id, path, QPixmap::fromImage(image));
    emit thumbnailTraffic();
}

void Session::requestMetadata(TreeItemData *item)
{
    ItemRecord *record = m_tree.records().find(item);
    if (!record || record->isFolder() || record->isRoot)
        return;
    m_awaitingMetadata.insert(record->fileId, record);
    m_metadata.request(record->found());
}

void Session::answerMetadata(qint64 id, const QVector<QPair<QString, QString>> &metaData,
                             const QStringList &scenes)
{
    ItemRecord *record = m_awaitingMetadata.take(id);
    if (!record)
        return;
    record->metaData = metaData;
    record->aiScenes = scenes;
    emit record->metaDataChanged(); // also of nothing: the asking is over
}

QVector<ItemRecord *> Session::matching(const QString &pattern)
{
    settle();
    const PathPattern wanted(pattern);
    QVector<ItemRecord *> found;
    for (int i = 0; i < m_tree.records().size(); ++i) {
        ItemRecord *record = m_tree.records().at(i);
        if (!record->isRoot && record->isShown
            && wanted.matches(record->cardPath(m_tree.hasSeveralVolumes())))
            found.append(record);
    }
    return found;
}

void Session::takeSelected(const ItemCollector::Taker &taker)
{
    m_collector.takeBelow(
        m_plugin->getSelectedItems(m_search.isActive() ? Plugin::SearchSide : Plugin::ScanSide),
        taker);
}
