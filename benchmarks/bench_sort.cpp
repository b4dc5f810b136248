#include "benchmarks/millionfiles.h"
#include "benchmarks/ratio.h"
#include "model/itemtext.h"
#include "model/rowsort.h"
#include "model/scandatamodel.h"

#include <QPointer>
#include <QSortFilterProxyModel>

#include <algorithm>
#include <vector>

namespace {

constexpr int RecordCount = MillionFiles::Count;
constexpr int Updates = 100;

const MillionFiles &scan()
{
    return MillionFiles::instance();
}

TreeItemData &folder(int files)
{
    return scan().folder(files);
}

template <typename Less>
void sortStock(benchmark::State &state, Less less)
{
    for (auto _ : state) {
        QList<TreeItemData *> rows = scan().all();
        std::sort(rows.begin(), rows.end(), less);
        benchmark::DoNotOptimize(rows);
    }
}

void sortNamesStock(benchmark::State &state)
{
    sortStock(state, [](const TreeItemData *a, const TreeItemData *b) {
        return a->name.toLower() < b->name.toLower();
    });
}

void sortOurs(benchmark::State &state, int column)
{
    ScanDataModel model;
    model.openFolder(&folder(RecordCount));
    for (auto _ : state)
        model.sort(column);
}

/// The way of a stock view: a proxy that asks for values.
void sortProxy(benchmark::State &state, int role)
{
    ScanDataModel model;
    model.openFolder(&folder(RecordCount));
    for (auto _ : state) {
        QSortFilterProxyModel proxy;
        proxy.setSortRole(role);
        proxy.setSourceModel(&model);
        proxy.sort(0);
        benchmark::DoNotOptimize(proxy.index(0, 0));
    }
}

void growSorted(benchmark::State &state)
{
    constexpr int Known = RecordCount / 100 * 95;
    for (auto _ : state) {
        state.PauseTiming();
        ScanDataModel model;
        model.sort(ScanDataModel::NameColumn);
        model.openFolder(&folder(Known));
        TreeItemData &grown = folder(RecordCount);
        state.ResumeTiming();
        model.openFolder(&grown);
    }
}

void growOurs(benchmark::State &state)
{
    for (auto _ : state) {
        ScanDataModel model;
        for (int update = 1; update <= Updates; ++update) {
            state.PauseTiming();
            TreeItemData &grown = folder(RecordCount / Updates * update);
            state.ResumeTiming();
            model.openFolder(&grown);
        }
    }
}

void growStock(benchmark::State &state)
{
    for (auto _ : state) {
        QList<QPointer<TreeItemData>> rows;
        for (int update = 1; update <= Updates; ++update) {
            state.PauseTiming();
            const TreeItemData &grown = folder(RecordCount / Updates * update);
            state.ResumeTiming();
            rows.clear();
            for (TreeItemData *item : grown.childFiles)
                rows.append(item);
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    using benchmark::RegisterBenchmark;
    const auto add = [](const char *name, auto work) {
        RegisterBenchmark(name, work)->Unit(benchmark::kMillisecond)->UseRealTime();
    };
    add("sortNames/ours", [](auto &state) { sortOurs(state, ScanDataModel::NameColumn); });
    add("sortNames/stock", sortNamesStock);
    add("sortTypes/ours", [](auto &state) { sortOurs(state, ScanDataModel::TypeColumn); });
    add("sortTypes/stock", [](auto &state) {
        sortStock(state, [](const TreeItemData *a, const TreeItemData *b) {
            return a->extension.toLower() < b->extension.toLower();
        });
    });
    add("sortPaths/ours", [](auto &state) { sortOurs(state, ScanDataModel::PathColumn); });
    add("sortPaths/stock", [](auto &state) {
        sortStock(state, [](const TreeItemData *a, const TreeItemData *b) {
            return a->path.toLower() < b->path.toLower();
        });
    });
    // without lowering, which our order of paths does not need either
    add("sortPathsPlain/ours", [](auto &state) { sortOurs(state, ScanDataModel::PathColumn); });
    add("sortPathsPlain/stock", [](auto &state) {
        sortStock(state,
                  [](const TreeItemData *a, const TreeItemData *b) { return a->path < b->path; });
    });
    add("sortSizes/ours", [](auto &state) { sortOurs(state, ScanDataModel::SizeColumn); });
    add("sortSizes/stock", [](auto &state) { sortProxy(state, ScanItemRole::SizeRole); });
    add("sortTimes/ours", [](auto &state) { sortOurs(state, ScanDataModel::DateColumn); });
    add("sortTimes/stock", [](auto &state) { sortProxy(state, ScanItemRole::ModifiedTimeRole); });
    add("fivePercentNewNames/ours", growSorted);
    add("fivePercentNewNames/stock", sortNamesStock);
    add("hundredGrowingUpdates/ours", growOurs);
    add("hundredGrowingUpdates/stock", growStock);

    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
}
