// A page of 96 cards, thumbnails present: our delegate against QStyledItemDelegate with a picture
// and a text, in one process. Prints the ratio of the two at the end.

#include "delegates/icondelegate.h"
#include "model/scandatamodel.h"
#include "platform/system/system.h"
#include "thumbnails/scanpluginpreviewmanager.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPainter>
#include <QStandardItemModel>

#include <cstdio>
#include <map>
#include <memory>
#include <string>

namespace {

constexpr int Columns = 12;
constexpr int Rows = 8;
constexpr int CellWidth = 158;
constexpr int CellHeight = 132;
constexpr QSize CardSize(150, 124);
constexpr QSize ThumbnailSize(110, 83);
constexpr int PhotoCategory = 8;
constexpr int FileKind = 2;

QPixmap photo(int seed)
{
    QImage image(ThumbnailSize, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x * 2 + seed, y * 3, x * y / 50 + seed * 7));
    }
    return QPixmap::fromImage(image);
}

/// A page in a folder, the pictures already in the cache.
class Page
{
public:
    Page()
    {
        m_root.kind = 1;
        m_root.itemCount = Columns * Rows;
        for (int i = 0; i < Columns * Rows; ++i) {
            auto item = std::make_unique<TreeItemData>();
            item->kind = FileKind;
            item->fileId = i;
            item->fileCategory = PhotoCategory;
            item->extension = QStringLiteral("JPG");
            item->name = QStringLiteral("DSC_%1 a day at the sea.JPG").arg(4000 + i);
            item->parent = &m_root;
            const QPixmap thumbnail = photo(i);
            ScanPluginPreviewManager::instance()->storeThumbnail(i, thumbnail);
            auto *row = new QStandardItem(item->name);
            row->setData(thumbnail, Qt::DecorationRole);
            m_plain.appendRow(row);
            m_root.childFiles.append(item.get());
            m_items.push_back(std::move(item));
        }
        m_model.openFolder(&m_root);
    }

    QAbstractItemModel &model() { return m_model; }
    QAbstractItemModel &plainModel() { return m_plain; }

private:
    TreeItemData m_root;
    std::vector<std::unique_ptr<TreeItemData>> m_items;
    ScanDataModel m_model;
    QStandardItemModel m_plain;
};

Page &page()
{
    static Page thePage;
    return thePage;
}

void paintPage(benchmark::State &state, const QAbstractItemDelegate &delegate,
               const QAbstractItemModel &model)
{
    const int scale = int(state.range(0));
    QImage screen(QSize(Columns * CellWidth, Rows * CellHeight) * scale, QImage::Format_RGB32);
    screen.setDevicePixelRatio(scale);
    screen.fill(Qt::white);

    QStyleOptionViewItem option;
    option.palette = QApplication::palette();
    option.palette.setColor(QPalette::Base, Qt::white);
    option.state = QStyle::State_Enabled | QStyle::State_Active;
    option.decorationPosition = QStyleOptionViewItem::Top;
    option.decorationSize = CardSize;
    option.displayAlignment = Qt::AlignCenter;
    option.textElideMode = Qt::ElideMiddle;
    option.font = QApplication::font();

    for (auto _ : state) {
        QPainter painter(&screen);
        for (int i = 0; i < Columns * Rows; ++i) {
            option.rect = {QPoint(i % Columns * CellWidth, i / Columns * CellHeight), CardSize};
            delegate.paint(&painter, option, model.index(i, 0));
        }
    }
}

void cards(benchmark::State &state)
{
    const IconDelegate delegate;
    paintPage(state, delegate, page().model());
}

void styledItems(benchmark::State &state)
{
    const QStyledItemDelegate delegate;
    paintPage(state, delegate, page().plainModel());
}

void firstPaint(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        const IconDelegate delegate;
        QImage screen(CardSize, QImage::Format_RGB32);
        QStyleOptionViewItem option;
        option.rect = {QPoint(), CardSize};
        state.ResumeTiming();
        for (int i = 0; i < Columns * Rows; ++i) {
            QPainter painter(&screen);
            delegate.paint(&painter, option, page().model().index(i, 0));
        }
    }
}

BENCHMARK(styledItems)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);
BENCHMARK(cards)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);
BENCHMARK(firstPaint)->Unit(benchmark::kMicrosecond);

/// The usual table, and what the reader wants to know below it.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run &run : runs)
            m_times[run.benchmark_name()] = run.GetAdjustedRealTime();
    }
    void Finalize() override
    {
        for (const char *scale : {"1", "2"}) {
            const double rival = m_times[std::string("styledItems/") + scale];
            const double ours = m_times[std::string("cards/") + scale];
            if (rival > 0 && ours > 0)
                std::printf("%sx: QStyledItemDelegate / cards = %.2f\n", scale, rival / ours);
        }
    }

private:
    std::map<std::string, double> m_times;
};

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    System::registerFontSubstitutes();
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    ScanPluginPreviewManager::instance()->stop();
    return 0;
}
