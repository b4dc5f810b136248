#include "delegates/listdelegate.h"

#include "common/fontmanager.h"
#include "common/scanviewmanager.h"
#include "common/thememanager.h"
#include "delegates/delegateitem.h"
#include "delegates/devicegrid.h"
#include "delegates/hoveredcell.h"
#include "delegates/locationtext.h"
#include "delegates/painterstate.h"
#include "model/itemtext.h"
#include "model/scandatamodel.h"
#include "platform/item/treeitemdata.h"
#include "thumbnails/scanpluginpreviewmanager.h"

#include <QHeaderView>
#include <QPainter>
#include <QTableView>
#include <QTextBrowser>

namespace {

constexpr qint64 TooltipPauseMs = 5000;
constexpr int NameFontSize = 13;
constexpr int TextFontSize = 12;
constexpr int FontWeight = 400;
constexpr Qt::Alignment BeginningOfLine = Qt::AlignLeft | Qt::AlignVCenter;

void drawIfAny(QPainter *painter, const DeviceGrid &grid, const QRect &rect, const QPixmap &pixmap)
{
    if (!pixmap.isNull())
        grid.draw(painter, rect, pixmap);
}

QFont bold(QFont font)
{
    font.setBold(true);
    return font;
}

/// A path runs from left to right, in whatever surroundings: E:\ is not to become \:E.
QString asPath(const QString &text, Qt::LayoutDirection direction)
{
    constexpr ushort LeftToRightEmbedding = 0x202A;
    constexpr ushort PopDirection = 0x202C;
    return direction == Qt::LeftToRight ? text
                                        : QChar(LeftToRightEmbedding) + text + QChar(PopDirection);
}

/// How many items a folder holds; nothing where nobody knows.
QString countSuffix(const TreeItemData &item)
{
    if (!ItemKind::isFolderLike(item.kind) || item.itemCount < 0)
        return {};
    return QStringLiteral(" (%1)").arg(item.itemCount);
}

} // namespace

struct ListDelegate::Cell
{
    RowLayout layout;
    const QModelIndex &index;
    TreeItemData &item;
    bool sorted;
    bool rowHovered;
};

ListDelegate::ListDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , m_tip(TooltipPauseMs)
{
    loadThemeResources();
    connect(ThemeManager::instance(), &ThemeManager::singleThemeChanged, this,
            &ListDelegate::loadThemeResources);
    m_names.renderer()->installEventFilter(this);
}

ListDelegate::~ListDelegate() = default;

void ListDelegate::loadThemeResources()
{
    m_colors = RowColors(ThemeManager::instance()->getThemeType());
    m_pictures.load();
    m_names.setColors(m_colors);
    retranslate();
}

void ListDelegate::retranslate() const
{
    const FontManager *fonts = FontManager::instance();
    m_fontFamily = fonts->family();
    m_nameFont = fonts->getFont(NameFontSize, FontWeight);
    m_boldNameFont = bold(m_nameFont);
    const QFont textFont = fonts->getFont(TextFontSize, FontWeight);
    m_texts.setFont(textFont);
    m_boldTexts.setFont(bold(textFont));
    m_rowTexts.setDirty();
}

void ListDelegate::setTableView(QTableView *newView)
{
    if (const QTableView *before = view())
        before->viewport()->removeEventFilter(this);
    m_view = newView;
    if (newView)
        newView->viewport()->installEventFilter(this);
}

QTableView *ListDelegate::view() const
{
    return qobject_cast<QTableView *>(m_view.data());
}

void ListDelegate::setSearchKeyword(const QString &keyword)
{
    m_names.setKeyword(keyword);
}

QSize ListDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    Q_UNUSED(option)
    Q_UNUSED(index)
    return RowLayout::sizeHint();
}

bool ListDelegate::isRowHovered(int row) const
{
    const auto *hovered = qobject_cast<HoveredCell *>(m_view.data());
    return hovered && hovered->hoverRow() == row;
}

bool ListDelegate::isCellHovered(const QModelIndex &index) const
{
    const auto *hovered = qobject_cast<HoveredCell *>(m_view.data());
    return hovered && hovered->hoverRow() == index.row()
        && hovered->hoverColumn() == index.column();
}

bool ListDelegate::isSorted(int column) const
{
    const QTableView *table = view();
    return table && table->horizontalHeader()->sortIndicatorSection() == column;
}

int ListDelegate::viewportWidth(const QStyleOptionViewItem &option) const
{
    const QTableView *table = view();
    return table ? table->viewport()->width() : option.rect.right() + 1;
}

void ListDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    if (ScanViewManager::instance()->plainPainting) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    TreeItemData *item = itemOf(index);
    if (!item)
        return;
    if (m_fontFamily != FontManager::instance()->family())
        retranslate();

    const int column = index.column();
    const Cell cell{RowLayout(option.rect, column, option.direction), index, *item,
                    isSorted(column), isRowHovered(index.row())};
    const DeviceGrid grid(painter);
    {
        const PainterState state(painter);
        painter->setLayoutDirection(option.direction);
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        if (selected || cell.rowHovered)
            m_background.draw(painter, option.rect, column, viewportWidth(option),
                              selected ? m_colors.selectedRow : m_colors.hoverRow);
        switch (column) {
        case ScanDataModel::NameColumn:
            drawIcon(painter, grid, cell);
            drawName(painter, grid, cell);
            break;
        case ScanDataModel::SizeColumn:
            drawText(painter, cell, m_rowTexts.size(index.data(SizeRole).toLongLong()),
                     m_colors.secondaryText);
            break;
        case ScanDataModel::TypeColumn:
            drawText(painter, cell, ItemText::type(*item), m_colors.text);
            break;
        case ScanDataModel::DateColumn:
            drawTime(painter, grid, cell);
            break;
        case ScanDataModel::PathColumn:
            drawLocation(painter, cell);
            break;
        default:
            break;
        }
    }
    // last, because whoever listens may destroy the record
    if (m_requester && column == ScanDataModel::NameColumn && item->kind == ItemKind::File
        && !ScanPluginPreviewManager::instance()->hasGridThumbnail(item->fileId))
        m_requester(item);
}

void ListDelegate::drawIcon(QPainter *painter, const DeviceGrid &grid, const Cell &cell) const
{
    const QRect &rect = cell.layout.icon;
    if (cell.item.kind != ItemKind::File) {
        if (ItemKind::isFolderLike(cell.item.kind))
            drawIfAny(painter, grid, rect, m_pictures.folderIcon);
        return;
    }
    const int side = grid.isAligned() ? grid.deviceRect(rect).width() : rect.width();
    drawIfAny(painter, grid, rect, m_thumbnails.picture(&cell.item, side));
    if (cell.rowHovered)
        drawIfAny(painter, grid, rect, m_pictures.playButton);
    if (cell.item.property("previewRepaired").toBool())
        drawIfAny(painter, grid, cell.layout.repairBadge(), m_pictures.repairBadge);
}

void ListDelegate::drawName(QPainter *painter, const DeviceGrid &grid, const Cell &cell) const
{
    drawIfAny(painter, grid, cell.layout.checkBox,
              m_pictures.checkBox.picture(CheckBox::lookOf(
                  cell.item, cell.index.data(Qt::CheckStateRole).toInt(), m_emptyFolderCheckable)));

    const QFont &font = cell.sorted ? m_boldNameFont : m_nameFont;
    if (m_names.font() != font) {
        m_names.setFont(font);
        m_suffixes.setFont(font);
        m_elidedNames.clear();
    }
    const QFontMetrics metrics(font);
    const QString suffix = countSuffix(cell.item);
    const int suffixWidth = suffix.isEmpty() ? 0 : metrics.horizontalAdvance(suffix);
    const QRect nameRect = cell.layout.nameText(suffixWidth);
    const QString name = m_names.elided(&m_elidedNames, ItemText::displayName(cell.item),
                                        nameRect.width());
    m_names.draw(painter, nameRect, name, BeginningOfLine);
    if (suffix.isEmpty())
        return;
    painter->setPen(m_colors.text);
    m_suffixes.draw(painter, cell.layout.suffix(metrics.horizontalAdvance(name), suffixWidth),
                    suffix, BeginningOfLine);
}

void ListDelegate::drawText(QPainter *painter, const Cell &cell, const QString &text,
                            const QColor &color) const
{
    ColumnTexts &texts = cell.sorted ? m_boldTexts : m_texts;
    painter->setPen(color);
    const RowLayout &layout = cell.layout;
    texts.draw(painter, layout.text,
               layout.textWidth > 0
                   ? texts.elided(text, layout.textWidth, Qt::ElideRight, layout.direction)
                   : text);
}

void ListDelegate::drawTime(QPainter *painter, const DeviceGrid &grid, const Cell &cell) const
{
    drawText(painter, cell, m_rowTexts.time(cell.index.data(ModifiedTimeRole).toLongLong()),
             m_colors.secondaryText);
    if (showsLocationImage(cell.item))
        drawIfAny(painter, grid, cell.layout.locationImage,
                  m_hoveredImage == cell.index ? m_pictures.locationHover : m_pictures.location);
}

void ListDelegate::drawLocation(QPainter *painter, const Cell &cell) const
{
    ColumnTexts &texts = cell.sorted ? m_boldTexts : m_texts;
    const QString text = locationOf(cell.item);
    const QString shown = asPath(
        texts.elided(text, cell.layout.textWidth, Qt::ElideMiddle, cell.layout.direction),
        cell.layout.direction);
    const bool link = m_pathColumnsActive && isCellHovered(cell.index)
        && LocationText::isKnown(text);
    if (!link) {
        painter->setPen(m_colors.secondaryText);
        texts.draw(painter, cell.layout.text, shown);
        return;
    }
    QFont font = texts.font();
    font.setUnderline(true);
    painter->setFont(font);
    painter->setPen(m_colors.link);
    const Qt::Alignment alignment = QStyle::visualAlignment(cell.layout.direction, BeginningOfLine);
    painter->drawText(cell.layout.text, int(alignment) | Qt::AlignAbsolute | Qt::TextSingleLine,
                      shown);
}

QString ListDelegate::locationOf(const TreeItemData &item) const
{
    return LocationText::of(&item,
                            m_foldersHavePlaceholder ? LocationText::Folders::Placeholder
                                                     : LocationText::Folders::Located);
}

bool ListDelegate::showsLocationImage(const TreeItemData &item) const
{
    return m_pathColumnsActive && !m_locationIconSuppressed
        && LocationText::isKnown(locationOf(item));
}
