// A page of 40 rows of the list, thumbnails present: our delegate against QStyledItemDelegate with
// a picture and five texts, in one process.

#include "delegates/listdelegate.h"
#include "model/scandatamodel.h"
#include "platform/system/system.h"
#include "ratio.h"
#include "thumbnails/scanpluginpreviewmanager.h"

#include <QApplication>
#include <QPainter>
#include <QStandardItemModel>

#include <memory>

namespace {

constexpr int Rows = 40;
constexpr int ColumnWidths[ScanDataModel::ColumnCount] = {340, 100, 90, 200, 270};
constexpr int PageWidth = 1000;
constexpr QSize ThumbnailSize(120, 90);
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

/// A page in a folder, the pictures already in the cache, and the same as plain items.
class Page
{
public:
    Page()
    {
        m_root.kind = 1;
        m_root.itemCount = Rows;
        for (int i = 0; i < Rows; ++i) {
            auto item = std::make_unique<TreeItemData>();
            item->kind = FileKind;
            item->fileId = i;
            item->fileCategory = PhotoCategory;
            item->extension = QStringLiteral("jpg");
            item->name = QStringLiteral("DSC_%1 a day at the sea.JPG").arg(4000 + i);
            item->path = QStringLiteral("/Volume/DCIM/100CANON/a day at the sea/%1").arg(i);
            item->volumeRoot = QStringLiteral("E:");
            item->fileSize = 3000000 + i * 12345;
            item->modifiedTime = 1700000000 + i * 123456;
            item->parent = &m_root;
            ScanPluginPreviewManager::instance()->storeThumbnail(i, photo(i));
            m_root.childFiles.append(item.get());
            m_items.push_back(std::move(item));
        }
        m_model.openFolder(&m_root);
        for (int row = 0; row < Rows; ++row) {
            QList<QStandardItem *> texts;
            for (int column = 0; column < ScanDataModel::ColumnCount; ++column)
                texts.append(new QStandardItem(m_model.index(row, column).data().toString()));
            texts.first()->setData(
                ScanPluginPreviewManager::instance()->listThumbnail(m_model.itemAt(row)),
                Qt::DecorationRole);
            m_plain.appendRow(texts);
        }
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
    QImage screen(QSize(PageWidth, Rows * RowLayout::RowHeight) * scale, QImage::Format_RGB32);
    screen.setDevicePixelRatio(scale);
    screen.fill(Qt::white);

    QStyleOptionViewItem option;
    option.palette = QApplication::palette();
    option.state = QStyle::State_Enabled | QStyle::State_Active;
    option.decorationSize = QSize(32, 32);
    option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    option.textElideMode = Qt::ElideMiddle;
    option.font = QApplication::font();

    for (auto _ : state) {
        QPainter painter(&screen);
        for (int row = 0; row < Rows; ++row) {
            int x = 0;
            for (int column = 0; column < ScanDataModel::ColumnCount; ++column) {
                option.rect = {x, row * RowLayout::RowHeight, ColumnWidths[column],
                               RowLayout::RowHeight};
                option.state.setFlag(QStyle::State_Selected, row % 8 == 0);
                delegate.paint(&painter, option, model.index(row, column));
                x += ColumnWidths[column];
            }
        }
    }
}

void ours(benchmark::State &state)
{
    const ListDelegate delegate;
    paintPage(state, delegate, page().model());
}

void stock(benchmark::State &state)
{
    const QStyledItemDelegate delegate;
    paintPage(state, delegate, page().plainModel());
}

BENCHMARK(ours)->Name("page of rows/ours")->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);
BENCHMARK(stock)->Name("page of rows/stock")->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

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
