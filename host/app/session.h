#pragma once

#include "host/app/checkchanges.h"
#include "host/app/contentplugin.h"
#include "host/media/metadatareader.h"
#include "host/media/thumbnailmaker.h"
#include "host/scan/scanrunner.h"
#include "host/tree/itemcollector.h"
#include "host/tree/itemsearch.h"
#include "host/tree/itemtree.h"
#include "host/tree/slicedwork.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>

/// One source after the other: scans it, keeps its records, drives the plug-in with them and
/// answers what the plug-in asks for. Knows no widget of the host. GUI thread.
class Session : public QObject
{
    Q_OBJECT

public:
    /// Says something in the language of the moment.
    using Words = std::function<QString()>;

    explicit Session(ContentPlugin &plugin, QObject *parent = nullptr);
    ~Session() override;

    void open(const QString &path);
    void cancelScan() { m_runner.cancel(); }
    bool isScanning() const { return m_scanning; }
    QString path() const { return m_path; }
    std::shared_ptr<ScanSource> source() const { return m_runner.source(); }
    ScanProgress progress() const { return m_progress; }
    ScanOutcome outcome() const { return m_outcome; } ///< of the latest scan that has ended

    const ItemTree &tree() const { return m_tree; }
    const ItemSearch &search() const { return m_search; }
    const ThumbnailMaker &thumbnails() const { return m_thumbnails; }

    void setViewMode(int mode);
    int viewMode() const { return m_viewMode; }

    /// Shows what is in \a root: a folder, a volume or a kind.
    void show(ItemRecord *root);
    ItemRecord *shownRoot() const { return m_shown; }
    bool showsPlaces() const { return m_shown && m_shown->rootType == 0; }
    /// Goes to the folder of \a item and makes it the current item.
    void locate(const ItemRecord *item);

    /// Keywords are descriptions from now on, or names again; a search that is on starts over.
    void setDescribed(bool described);
    bool isDescribed() const { return m_filter.aiSearch; }
    /// An empty \a keyword ends the search.
    void setKeyword(const QString &keyword);
    /// Its results come in slices, and it ends an earlier one that is still at work.
    void setFilter(const FilterCondition &condition);
    const FilterCondition &filter() const { return m_filter; }

    using Bulk = CheckChanges::Bulk;
    /// Changes the checks of many files at once; `bulkChecked()` follows. CheckShown means what the
    /// folder, the kind or the search on screen holds.
    void changeChecks(Bulk what);
    /// Takes the latest bulk change of checks back, or makes it again. False when there is none.
    bool undoChecks() { return m_checks.undo(); }
    bool redoChecks() { return m_checks.redo(); }

    /// What clicks on the check boxes of \a items do, as one change. Nothing is announced.
    void setChecked(const QVector<ItemRecord *> &items, bool checked);
    /// The files and folders that \a pattern means, see PathPattern.
    QVector<ItemRecord *> matching(const QString &pattern);
    /// Hands over what is selected on the side that is on screen, folders with all that is shown in
    /// them.
    void takeSelected(const ItemCollector::Taker &taker);
    /// The same with what is checked.
    void takeChecked(const ItemCollector::Taker &taker) { m_collector.takeChecked(taker); }

signals:
    void opened();
    void scanProgressed();
    void scanFinished(const ScanOutcome &outcome);
    void treeGrew(); ///< at most ten times a second
    void shownRootChanged();
    void checksChanged();
    /// More than one file at once, through whatever; undoChecks() takes it back.
    void bulkChecked(int checkedFiles, int uncheckedFiles);
    void searchChanged(); ///< it began, went on or ended
    void fileActivated(const ItemRecord *file);
    void recoverRequested();
    void noticed(const Words &words); ///< worth telling, but no failure
    void failed(const Words &words);
    void tooltipRequested(const QString &text);
    /// A thumbnail was asked for or has been answered.
    void thumbnailTraffic();

private:
    void connectScan();
    void connectPlugin();
    void clear();
    void takeVolumes(const QVector<VolumeInfo> &volumes);
    void takeItems(const QVector<FoundItem> &batch);
    void finishScan(const ScanOutcome &outcome);
    void publish();
    bool isTimeToShow() const;
    void publishSearch();
    void endFilter();
    void settle();
    void restartSearch();
    void publishChecks();
    void openFolder(TreeItemData *item);
    void requestThumbnail(TreeItemData *item);
    void requestMetadata(TreeItemData *item);
    void answerMetadata(qint64 id, const QVector<QPair<QString, QString>> &metaData,
                        const QStringList &scenes);
    void answerThumbnail(qint64 id, const QString &path, const QImage &image);

    ContentPlugin &m_plugin;
    FilterCondition m_filter; // the plug-in reads it whenever it chooses a page
    ItemTree m_tree;
    ItemSearch m_search;
    SlicedWork m_work;     // on the tree
    SlicedWork m_disposal; // of the records of earlier scans
    CheckChanges m_checks;
    ItemCollector m_collector;
    ThumbnailMaker m_thumbnails;
    MetadataReader m_metadata;
    QHash<qint64, ItemRecord *> m_awaitingMetadata; // none of an earlier scan
    ScanRunner m_runner;
    QTimer m_publisher;
    QElapsedTimer m_sinceFilter;
    QString m_path;
    ScanProgress m_progress;
    ScanOutcome m_outcome;
    ItemRecord *m_shown = nullptr;
    int m_viewMode = SDCardScanContentPluginInterface::GridView;
    quint64 m_publishedRevision = 0;
    int m_filterRun = 0;
    int m_publishedMatches = -1;
    bool m_scanning = false;
};
