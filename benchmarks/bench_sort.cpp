#include "benchmarks/ratio.h"
#include "model/itemtext.h"
#include "model/rowsort.h"
#include "model/scandatamodel.h"
#include "model/scanitemrole.h"
#include "platform/item/treeitemdata.h"

#include <QPointer>
#include <QRandomGenerator>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

constexpr int RecordCount = 1'000'000;
constexpr int Updates = 100;

/// A card of a million files as cameras and people name them.
struct Scan
{
    Scan()
    {
        static const char *const words[] = {"IMG_", "DSC_", "Holiday ", "scan-", "VID_", "Report "};
        QRandomGenerator random(1);
        records.reserve(RecordCount);
        for (int i = 0; i < RecordCount; ++i) {
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
            all.append(record.get());
            records.push_back(std::move(record));
        }
    }

    std::vector<std::unique_ptr<TreeItemData>> records;
    QList<TreeItemData *> all;
};

const Scan &scan()
{
    static const Scan instance;
    return instance;
}

TreeItemData &folder(int files)
{
    static TreeItemData root;
    root.childFiles = scan().all.mid(0, files);
    return root;
}

template <typename Less>
void sortStock(benchmark::State &state, Less less)
{
    for (auto _ : state) {
        QList<TreeItemData *> rows = scan().all;
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

void checkAllOurs(benchmark::State &state)
{
    ScanDataModel model;
    model.openFolder(&folder(RecordCount));
    for (auto _ : state)
        model.setAllCheckStates(Qt::Checked);
}

void checkAllStock(benchmark::State &state)
{
    ScanDataModel model;
    model.openFolder(&folder(RecordCount));
    for (auto _ : state) {
        for (int row = 0; row < RecordCount; ++row)
            model.setData(model.index(row, 0), Qt::Checked, Qt::CheckStateRole);
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
    add("sortSizes/stock", [](auto &state) {
        sortStock(state, [](const TreeItemData *a, const TreeItemData *b) {
            return QVariant(ItemText::bytes(*a)).toLongLong()
                < QVariant(ItemText::bytes(*b)).toLongLong();
        });
    });
    add("fivePercentNewNames/ours", growSorted);
    add("fivePercentNewNames/stock", sortNamesStock);
    add("hundredGrowingUpdates/ours", growOurs);
    add("hundredGrowingUpdates/stock", growStock);
    add("checkAll/ours", checkAllOurs);
    add("checkAll/stock", checkAllStock);

    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
}
