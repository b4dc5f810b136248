// A hand on a million files: what one key or one step of the mouse costs in the plug-in as a host
// loads it, both views attached, against the stock way of doing the same over the same model.
#include "benchmarks/millionfiles.h"
#include "benchmarks/ratio.h"
#include "delegates/icondelegate.h"
#include "plugin/sdcardscancontentplugininterface.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QKeyEvent>
#include <QListView>
#include <QLoggingCategory>
#include <QMouseEvent>
#include <QPluginLoader>
#include <QPointer>
#include <QPushButton>
#include <QTableView>

#include <algorithm>
#include <ctime>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

using Plugin = SDCardScanContentPluginInterface;
constexpr QSize WindowSize(1280, 800);

void pressKey(QWidget *widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QCoreApplication::sendEvent(widget, &event);
}

/// The plug-in's scan frame with the million files in its grid.
class Page
{
public:
    static Page &instance()
    {
        static Page page;
        return page;
    }

    QListView *grid() const { return m_grid; }
    QTableView *table() const { return m_table; }
    QAbstractItemModel *model() const { return m_grid->model(); }
    QPushButton *checkAll() const { return m_checkAll; }
    QPushButton *sortBySize() const { return m_sortBySize; }
    QObject *plugin() const { return m_object; }
    Plugin *operations() const { return m_plugin; }

private:
    Page()
    {
        QPluginLoader loader(QCoreApplication::applicationDirPath()
                             + QStringLiteral("/plugins/SDCardScanContentPlugin"));
        m_object = loader.instance();
        m_plugin = qobject_cast<Plugin *>(m_object);
        if (!m_plugin)
            qFatal("%s", qPrintable(loader.errorString()));
        m_frame = m_plugin->getScanContentFrame();
        m_grid = m_frame->findChild<QListView *>(QStringLiteral("listView"));
        m_table = m_frame->findChild<QTableView *>();
        m_checkAll = m_frame->findChild<QPushButton *>(QStringLiteral("allCheckButton"));
        m_sortBySize = m_frame->findChild<QPushButton *>(QStringLiteral("sizeButton"));
        m_frame->resize(WindowSize);
        m_frame->show();
        m_plugin->updateScanData(&MillionFiles::instance().folder(MillionFiles::Count));
        QCoreApplication::processEvents();
    }

    QObject *m_object = nullptr;
    Plugin *m_plugin = nullptr;
    QFrame *m_frame = nullptr;
    QListView *m_grid = nullptr;
    QTableView *m_table = nullptr;
    QPushButton *m_checkAll = nullptr;
    QPushButton *m_sortBySize = nullptr;
};

/// A stock icon view with our cards over the same model.
class StockGrid
{
public:
    StockGrid()
    {
        m_view.setViewMode(QListView::IconMode);
        m_view.setMovement(QListView::Static);
        m_view.setResizeMode(QListView::Adjust);
        m_view.setUniformItemSizes(true);
        m_view.setSpacing(8);
        m_view.setSelectionMode(QAbstractItemView::ExtendedSelection);
        m_view.setItemDelegate(&m_delegate);
        m_view.setModel(Page::instance().model());
        m_view.resize(Page::instance().grid()->size());
        m_view.show();
        QCoreApplication::processEvents();
    }
    QListView *view() { return &m_view; }

private:
    IconDelegate m_delegate;
    QListView m_view;
};

/// Counts what the host is told.
class Host : public QObject
{
    Q_OBJECT

public:
    Host()
    {
        connect(Page::instance().plugin(),
                SIGNAL(signalTreeItemCheck(TreeItemData *, Qt::CheckState)), this,
                SLOT(count(TreeItemData *, Qt::CheckState)));
    }
    int heard = 0;

private slots:
    void count(TreeItemData *, Qt::CheckState) { ++heard; }
};

// ---- checks

void checkAllOurs(benchmark::State &state)
{
    for (auto _ : state) // all, none, all ...
        Page::instance().checkAll()->click();
}

void checkEachRow(benchmark::State &state)
{
    QAbstractItemModel *model = Page::instance().model();
    Qt::CheckState next = Qt::Checked;
    for (auto _ : state) {
        for (int row = 0; row < MillionFiles::Count; ++row)
            model->setData(model->index(row, 0), next, Qt::CheckStateRole);
        next = next == Qt::Checked ? Qt::Unchecked : Qt::Checked;
    }
}

void spaceOnEverything(benchmark::State &state)
{
    QListView *grid = Page::instance().grid();
    grid->selectAll();
    for (auto _ : state)
        pressKey(grid, Qt::Key_Space);
}

/// The last item is left out: each of the others reaches the host by a signal of its own.
void spaceOnAllButOne(benchmark::State &state)
{
    QListView *grid = Page::instance().grid();
    const QAbstractItemModel *model = grid->model();
    grid->selectionModel()->select(
        QItemSelection(model->index(0, 0), model->index(MillionFiles::Count - 2, 0)),
        QItemSelectionModel::ClearAndSelect);
    Host host;
    for (auto _ : state)
        pressKey(grid, Qt::Key_Space);
    state.counters["s_per_item"] = benchmark::Counter(
        host.heard, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

// ---- selection

void selectAllByKey(benchmark::State &state, QAbstractItemView *view)
{
    for (auto _ : state) {
        state.PauseTiming();
        view->setCurrentIndex(view->model()->index(0, 0));
        QCoreApplication::processEvents();
        state.ResumeTiming();
        pressKey(view, Qt::Key_A, Qt::ControlModifier);
    }
    if (!view->selectionModel()->isSelected(view->model()->index(MillionFiles::Count - 1, 0)))
        state.SkipWithError("not everything is selected");
}

void shiftEnd(benchmark::State &state, QAbstractItemView *view)
{
    for (auto _ : state) {
        state.PauseTiming();
        view->setCurrentIndex(view->model()->index(0, 0));
        QCoreApplication::processEvents();
        state.ResumeTiming();
        pressKey(view, Qt::Key_End, Qt::ShiftModifier);
    }
    if (view->currentIndex().row() != MillionFiles::Count - 1)
        state.SkipWithError("the last row was not reached");
}

void selectedItems(benchmark::State &state)
{
    Page &page = Page::instance();
    page.grid()->selectAll();
    for (auto _ : state)
        benchmark::DoNotOptimize(page.operations()->getSelectedItems(Plugin::ScanSide).size());
}

void selectedIndexes(benchmark::State &state)
{
    QListView *grid = Page::instance().grid();
    grid->selectAll();
    for (auto _ : state) {
        QList<TreeItemData *> items;
        const QModelIndexList indexes = grid->selectionModel()->selectedIndexes();
        for (const QModelIndex &index : indexes)
            items.append(static_cast<TreeItemData *>(index.internalPointer()));
        benchmark::DoNotOptimize(items);
    }
}

// ---- type-ahead: names that do not exist, so that all are looked through

void typeOurs(benchmark::State &state, const char *text)
{
    const QAbstractItemModel *model = Page::instance().model();
    const QModelIndex start = model->index(0, 0);
    for (auto _ : state)
        benchmark::DoNotOptimize(model->match(start, Qt::DisplayRole, QLatin1String(text), 1,
                                              Qt::MatchStartsWith | Qt::MatchWrap));
}

void typeStock(benchmark::State &state, const char *text)
{
    const QAbstractItemModel *model = Page::instance().model();
    const QModelIndex start = model->index(0, 0);
    for (auto _ : state)
        benchmark::DoNotOptimize(model->QAbstractItemModel::match(
            start, Qt::DisplayRole, QLatin1String(text), 1, Qt::MatchStartsWith | Qt::MatchWrap));
}

// ---- what a sort and a growing scan do to a selection

/// By the clock: two threads compare the rows of before.
template <typename Work>
double millisecondsOf(Work work)
{
    QElapsedTimer clock;
    clock.start();
    work();
    return double(clock.nsecsElapsed()) / 1e6;
}

void sortSelected(benchmark::State &state, int first)
{
    QListView *grid = Page::instance().grid();
    const QAbstractItemModel *model = grid->model();
    grid->clearSelection();
    grid->selectionModel()->select(
        QItemSelection(model->index(first, 0), model->index(MillionFiles::Count - 1, 0)),
        QItemSelectionModel::ClearAndSelect);
    for (auto _ : state) // up, down, up ...
        Page::instance().sortBySize()->click();
}

/// The host hands its tree over again and again while it grows to a million.
void growingUpdates(benchmark::State &state)
{
    constexpr int Updates = 100;
    Plugin *plugin = Page::instance().operations();
    double worst = 0;
    for (auto _ : state) {
        plugin->clearData(Plugin::ScanSide);
        double all = 0;
        for (int update = 1; update <= Updates; ++update) {
            TreeItemData &root = MillionFiles::instance().folder(MillionFiles::Count / Updates
                                                                 * update);
            const double took = millisecondsOf([&] { plugin->updateScanData(&root); });
            if (update == Updates / 10)
                Page::instance().grid()->selectAll();
            all += took;
            worst = std::max(worst, took);
        }
        state.SetIterationTime(all / 1e3);
    }
    state.counters["worst_ms"] = worst;
}

/// A list of guarded pointers made anew each time.
void growingRebuilds(benchmark::State &state)
{
    constexpr int Updates = 100;
    for (auto _ : state) {
        QList<QPointer<TreeItemData>> rows;
        double all = 0;
        for (int update = 1; update <= Updates; ++update) {
            const TreeItemData &root = MillionFiles::instance().folder(MillionFiles::Count / Updates
                                                                       * update);
            all += millisecondsOf([&] {
                rows.clear();
                for (TreeItemData *item : root.childFiles)
                    rows.append(item);
            });
        }
        state.SetIterationTime(all / 1e3);
    }
}

/// Bytes in use by the allocator, large blocks included; 0 where that cannot be asked.
double heapBytes()
{
#ifdef __GLIBC__
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
#else
    return 0;
#endif
}

/// What the plug-in takes for each listed item at the most: in an order of the user's, and with the
/// table shown. Nothing is looked at or selected.
void memoryPerItem(benchmark::State &state)
{
    Plugin *plugin = Page::instance().operations();
    TreeItemData &root = MillionFiles::instance().folder(MillionFiles::Count);
    plugin->setViewMode(Plugin::ListView);
    const auto taken = [&] {
        plugin->clearData(Plugin::ScanSide);
        QCoreApplication::processEvents();
        const double before = heapBytes();
        plugin->updateScanData(&root);
        Page::instance().sortBySize()->click();
        QCoreApplication::processEvents();
        return heapBytes() - before;
    };
    for (auto _ : state) {
        taken(); // once, pictures and fonts as well
        state.counters["bytes"] = taken() / MillionFiles::Count;
    }
    plugin->setViewMode(Plugin::GridView);
}

// ---- rubber band

/// From one corner of the viewport to the other; each step is shown before the next.
void rubberBand(benchmark::State &state, QListView *view)
{
    constexpr int Steps = 40;
    constexpr double Frame = 16.7;
    view->clearSelection();
    view->scrollToTop();
    QCoreApplication::processEvents();
    const QSize room = view->viewport()->size() - QSize(6, 6);
    const auto send = [view](QEvent::Type type, QPoint pos) {
        QMouseEvent event(type, pos, view->viewport()->mapToGlobal(pos),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(view->viewport(), &event);
    };
    double worst = 0;
    bool warm = false; // the first time thumbnails are asked for
    for (auto _ : state) {
        send(QEvent::MouseButtonPress, {3, 3}); // in the gap before the first card
        double all = 0;
        for (int step = 1; step <= Steps; ++step) {
            const std::clock_t start = std::clock(); // of the processor: others may use it too
            send(QEvent::MouseMove,
                 {3 + room.width() * step / Steps, 3 + room.height() * step / Steps});
            QCoreApplication::processEvents();
            const double took = 1e3 * double(std::clock() - start) / CLOCKS_PER_SEC;
            all += took;
            worst = warm ? std::max(worst, took) : 0;
        }
        if (!view->selectionModel()->isSelected(
                view->indexAt({room.width() / 2, room.height() / 2})))
            state.SkipWithError("the band has not selected what it covers");
        send(QEvent::MouseButtonRelease, {room.width(), room.height()});
        view->clearSelection();
        QCoreApplication::processEvents();
        warm = true;
        state.SetIterationTime(all / Steps / 1e3);
    }
    state.counters["worst_ms"] = worst;
    state.counters["frames"] = worst / Frame;
}

/// In the list, and back to the grid for those after it.
template <void (*Work)(benchmark::State &, QAbstractItemView *)>
void inOurTable(benchmark::State &state)
{
    Page::instance().operations()->setViewMode(Plugin::ListView);
    QCoreApplication::processEvents();
    Work(state, Page::instance().table());
    Page::instance().operations()->setViewMode(Plugin::GridView);
}

template <void (*Work)(benchmark::State &, QAbstractItemView *)>
void inStockTable(benchmark::State &state)
{
    QTableView stock;
    stock.setSelectionBehavior(QAbstractItemView::SelectRows);
    stock.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    stock.setModel(Page::instance().model());
    stock.resize(WindowSize);
    stock.show();
    QCoreApplication::processEvents();
    Work(state, &stock);
}

template <typename View, void (*Work)(benchmark::State &, View *)>
void inOurs(benchmark::State &state)
{
    Work(state, Page::instance().grid());
}

template <typename View, void (*Work)(benchmark::State &, View *)>
void inStock(benchmark::State &state)
{
    StockGrid stock;
    Work(state, stock.view());
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));

    const auto add = [](const char *name, auto work) {
        return benchmark::RegisterBenchmark(name, work)->Unit(benchmark::kMillisecond);
    };
    add("checkAll/ours", checkAllOurs);
    add("checkAll/stock", checkEachRow);
    add("spaceOnEverything/ours", spaceOnEverything);
    add("spaceOnEverything/stock", checkEachRow);
    add("spaceOnAllButOne/ours", spaceOnAllButOne);
    add("spaceOnAllButOne/stock", checkEachRow);
    add("ctrlA/ours", inOurs<QAbstractItemView, selectAllByKey>);
    add("ctrlA/stock", inStock<QAbstractItemView, selectAllByKey>);
    add("shiftEnd/ours", inOurs<QAbstractItemView, shiftEnd>);
    add("shiftEnd/stock", inStock<QAbstractItemView, shiftEnd>);
    add("ctrlAInList/ours", inOurTable<selectAllByKey>);
    add("ctrlAInList/stock", inStockTable<selectAllByKey>);
    add("shiftEndInList/ours", inOurTable<shiftEnd>); // a stock table goes along the row
    add("getSelectedItems/ours", selectedItems);
    add("getSelectedItems/stock", selectedIndexes);
    for (const char *text : {"z", "img_4711x"}) {
        const std::string name = std::string("type-") + text;
        add((name + "/ours").c_str(), [text](auto &state) { typeOurs(state, text); });
        add((name + "/stock").c_str(), [text](auto &state) { typeStock(state, text); });
    }
    add("sortNothingSelected", [](auto &state) { sortSelected(state, MillionFiles::Count - 1); });
    add("sortEverythingSelected", [](auto &state) { sortSelected(state, 0); });
    add("sortAllButOneSelected", [](auto &state) { sortSelected(state, 1); });
    benchmark::RegisterBenchmark("hundredGrowingUpdates/ours", growingUpdates)
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime();
    benchmark::RegisterBenchmark("hundredGrowingUpdates/stock", growingRebuilds)
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime();
    add("memoryPerItem", memoryPerItem)->Iterations(1);
    for (const auto &entry :
         {std::make_pair("rubberBandStep/ours", &inOurs<QListView, rubberBand>),
          std::make_pair("rubberBandStep/stock", &inStock<QListView, rubberBand>)})
        benchmark::RegisterBenchmark(entry.first, entry.second)
            ->Unit(benchmark::kMillisecond)
            ->UseManualTime();

    benchmark::Initialize(&argc, argv);
    Page::instance(); // not in anyone's time
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}

#include "bench_bulk.moc"
