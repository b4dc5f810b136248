// The list's table against a stock table view, in one process and over one model.
#include "benchmarks/ratio.h"
#include "content/scantableview.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QMouseEvent>
#include <QStyledItemDelegate>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int Rounds = 9;
constexpr int Million = 1000000;
constexpr int RowHeight = 44;

class FiveColumns : public QAbstractTableModel
{
public:
    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : m_rows;
    }
    int columnCount(const QModelIndex & = {}) const override { return 5; }
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override
    {
        return role == Qt::DisplayRole ? QVariant(QStringLiteral("item %1").arg(index.row()))
                                       : QVariant();
    }
    void reset(int rows)
    {
        beginResetModel();
        m_rows = rows;
        endResetModel();
    }

private:
    int m_rows = 0;
};

/// Counts the cells that are painted.
class CountingDelegate : public QStyledItemDelegate
{
public:
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        ++painted;
    }
    mutable int painted = 0;
};

void setRowHeight(ScanTableView &view)
{
    view.setRowHeight(RowHeight);
}

void setRowHeight(QTableView &view)
{
    view.verticalHeader()->setDefaultSectionSize(RowHeight);
    view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

template <class View>
struct Bench
{
    Bench()
    {
        view.setShowGrid(false);
        view.setSelectionBehavior(QAbstractItemView::SelectRows);
        view.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        view.setMouseTracking(true);
        view.verticalHeader()->hide();
        setRowHeight(view);
        view.setItemDelegate(&delegate);
        view.setModel(&model);
        view.resize(1000, 800);
        view.show();
        QCoreApplication::processEvents();
    }

    /// Milliseconds; the median of some rounds.
    double resetToFrame(int rows)
    {
        std::vector<double> times;
        for (int round = 0; round < Rounds; ++round) {
            QElapsedTimer timer;
            timer.start();
            delegate.painted = 0;
            model.reset(rows);
            while (delegate.painted == 0)
                QCoreApplication::processEvents();
            times.push_back(timer.nsecsElapsed() / 1e6);
        }
        std::nth_element(times.begin(), times.begin() + Rounds / 2, times.end());
        return times[Rounds / 2];
    }

    /// The mouse passes over \a cells cells; milliseconds for all of them.
    double hover(int cells)
    {
        QElapsedTimer timer;
        timer.start();
        delegate.painted = 0;
        for (int i = 0; i < cells; ++i) {
            const QPoint pos(50 + i % 5 * 100, 10 + i / 5 % 16 * RowHeight);
            QMouseEvent move(QEvent::MouseMove, pos, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(view.viewport(), &move);
            QCoreApplication::processEvents();
        }
        return timer.nsecsElapsed() / 1e6;
    }

    FiveColumns model;
    CountingDelegate delegate;
    View view;
};

void printRatios()
{
    Bench<ScanTableView> ours;
    Bench<QTableView> stock;
    std::printf("%-32s %10s %10s %10s\n", "", "ours", "stock", "ours/stock");
    for (int rows : {10000, Million}) {
        const double theirs = stock.resetToFrame(rows);
        const double mine = ours.resetToFrame(rows);
        std::printf("reset to first frame, %-9d  %7.2f ms %7.2f ms %10.2f\n", rows, mine, theirs,
                    mine / theirs);
    }
    const double mine = ours.hover(1000);
    std::printf("hover over 1000 cells: %.1f ms, %d cells painted (a viewport has %d)\n\n", mine,
                ours.delegate.painted, 5 * (ours.view.viewport()->height() / RowHeight + 1));
}

template <class View>
void resetToFirstFrame(benchmark::State &state)
{
    Bench<View> bench;
    for (auto _ : state)
        state.SetIterationTime(bench.resetToFrame(int(state.range(0))) / 1e3);
}
BENCHMARK_TEMPLATE(resetToFirstFrame, ScanTableView)->Arg(Million)->UseManualTime();
BENCHMARK_TEMPLATE(resetToFirstFrame, QTableView)->Arg(Million)->UseManualTime();

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const bool namesOnly = listsNamesOnly(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (!namesOnly)
        printRatios();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
