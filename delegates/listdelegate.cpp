#include "delegates/listdelegate.h"

#include "common/fontmanager.h"
#include "common/scanviewmanager.h"
#include "common/thememanager.h"
#include "common/translation.h"
#include "content/scantableview.h"
#include "delegates/delegateitem.h"
#include "delegates/devicegrid.h"
#include "delegates/locationtext.h"
#include "delegates/painterstate.h"
#include "model/itemtext.h"
#include "model/scandatamodel.h"
#include "platform/item/treeitemdata.h"
#include "thumbnails/scanpluginpreviewmanager.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QTextBrowser>

namespace {

constexpr qint64 TooltipPauseMs = 5000;
constexpr int NameFontSize = 13;
constexpr int TextFontSize = 12;
constexpr int FontWeight = 400;
constexpr int MostTexts = 1024;
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
    , m_sizeTexts(MostTexts)
    , m_timeTexts(MostTexts)
{
    ThemeManager *themes = ThemeManager::instance();
    loadThemeResources(themes->getThemeType());
    connect(themes, &ThemeManager::singleThemeChanged, this, &ListDelegate::loadThemeResources);
    m_names.renderer()->installEventFilter(this);
}

ListDelegate::~ListDelegate() = default;

void ListDelegate::loadThemeResources(THEMETYPE theme)
{
    m_colors = RowColors(theme);
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
    m_cachesDirty = true;
}

void ListDelegate::setTableView(ScanTableView *view)
{
    if (m_view)
        m_view->viewport()->removeEventFilter(this);
    m_view = view;
    if (view)
        view->viewport()->installEventFilter(this);
}

void ListDelegate::setSearchKeyword(const QString &keyword)
{
    m_names.setKeyword(keyword);
}

bool ListDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_names.renderer()) {
        if (event->type() == QEvent::LanguageChange)
            retranslate();
        return false;
    }
    if (!m_view || watched != m_view->viewport())
        return QStyledItemDelegate::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::Paint:
        m_background.beginPaint(static_cast<QPaintEvent *>(event)->region());
        break;
    case QEvent::MouseMove:
        // between and below the rows no cell gets to see the mouse
        if (!m_view->indexAt(static_cast<QMouseEvent *>(event)->pos()).isValid())
            hoverNothing();
        break;
    case QEvent::Leave:
        hoverNothing();
        break;
    default:
        break;
    }
    return false;
}

QSize ListDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    Q_UNUSED(option)
    Q_UNUSED(index)
    return RowLayout::sizeHint();
}

bool ListDelegate::isSorted(int column) const
{
    return m_view && m_view->horizontalHeader()->sortIndicatorSection() == column;
}

int ListDelegate::viewportWidth(const QStyleOptionViewItem &option) const
{
    return m_view ? m_view->viewport()->width() : option.rect.right() + 1;
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
                    isSorted(column), m_view && m_view->hoverRow() == index.row()};
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
            drawText(painter, cell, sizeText(index.data(SizeRole).toLongLong()),
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
        && ScanPluginPreviewManager::instance()->gridThumbnail(item->fileId).isNull())
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
    drawIfAny(painter, grid, rect, m_thumbnails.picture(&cell.item, grid.deviceRect(rect).width()));
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
    const QString name = m_elidedNames.elided(ItemText::displayName(cell.item), nameRect.width(),
                                              metrics);
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
               layout.textWidth > 0 ? texts.elided(text, layout.textWidth, Qt::ElideRight) : text);
}

void ListDelegate::drawTime(QPainter *painter, const DeviceGrid &grid, const Cell &cell) const
{
    drawText(painter, cell, timeText(cell.index.data(ModifiedTimeRole).toLongLong()),
             m_colors.secondaryText);
    if (showsLocationImage(cell.item))
        drawIfAny(painter, grid, cell.layout.locationImage,
                  m_hoveredImage == cell.index ? m_pictures.locationHover : m_pictures.location);
}

void ListDelegate::drawLocation(QPainter *painter, const Cell &cell) const
{
    ColumnTexts &texts = cell.sorted ? m_boldTexts : m_texts;
    const QString text = locationOf(cell.item);
    const QString shown = asPath(texts.elided(text, cell.layout.textWidth, Qt::ElideMiddle),
                                 cell.layout.direction);
    const bool link = m_pathColumnsActive && cell.rowHovered
        && m_view->hoverColumn() == ScanDataModel::PathColumn && LocationText::isKnown(text);
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

QString ListDelegate::sizeText(qint64 bytes) const
{
    return remembered(m_sizeTexts, bytes, [](qint64 value) { return ItemText::size(value); });
}

QString ListDelegate::timeText(qint64 timestamp) const
{
    return remembered(m_timeTexts, timestamp,
                      [](qint64 value) { return ItemText::modified(value); });
}

QString ListDelegate::remembered(QCache<qint64, QString> &cache, qint64 value,
                                 QString (*format)(qint64)) const
{
    if (value == 0)
        return LocationText::unknown();
    if (m_cachesDirty) {
        m_sizeTexts.clear();
        m_timeTexts.clear();
        m_cachesDirty = false;
    }
    if (const QString *known = cache.object(value))
        return *known;
    QString text = format(value);
    if (text.isEmpty()) // a time that no calendar reaches
        text = LocationText::unknown();
    cache.insert(value, new QString(text), 1);
    return text;
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

bool ListDelegate::leadsToLocation(const RowLayout &layout, const QPoint &pos,
                                   const TreeItemData &item) const
{
    if (layout.column == ScanDataModel::PathColumn)
        return m_pathColumnsActive && LocationText::isKnown(locationOf(item));
    return layout.hitsLocationImage(pos) && showsLocationImage(item);
}

bool ListDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                               const QStyleOptionViewItem &option, const QModelIndex &index)
{
    // whoever listens to us may reset the model
    const QPersistentModelIndex cell(index);
    const auto base = [&] { return QStyledItemDelegate::editorEvent(event, model, option, cell); };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        break;
    default:
        return base();
    }
    const auto *mouse = static_cast<QMouseEvent *>(event);
    const TreeItemData *item = itemOf(index);
    if (!item) { // the record has died under the mouse
        hoverNothing();
        return base();
    }
    if (!option.rect.contains(mouse->pos()))
        return base();

    const RowLayout layout(option.rect, index.column(), option.direction);
    if (event->type() == QEvent::MouseMove) {
        hover(mouse->pos(), layout, index, *item);
    } else if (event->type() == QEvent::MouseButtonDblClick) {
        if (mouse->button() == Qt::LeftButton) {
            emit signalClickDouble(index);
            return true;
        }
    } else if (mouse->button() == Qt::RightButton) {
        if (index.data(KindRole).toInt() == ItemKind::File) {
            emit signalClickRightButton(index);
            return false;
        }
    } else if (press(mouse->pos(), model, layout, cell, *item)) {
        return true;
    }
    return base();
}

bool ListDelegate::press(const QPoint &pos, QAbstractItemModel *model, const RowLayout &layout,
                         const QPersistentModelIndex &index, const TreeItemData &item)
{
    if (item.kind == ItemKind::File && layout.hitsIcon(pos)) {
        emit signalPreviewClicked(index);
        return true;
    }
    if (leadsToLocation(layout, pos, item)) {
        emit signalPathClicked(index);
        return true;
    }
    if (layout.hitsCheckArea(pos)) {
        // through the cell that shows the box: the view repaints what has changed
        const QModelIndex box = index.sibling(index.row(), ScanDataModel::NameColumn);
        const Qt::CheckState state = CheckBox::toggled(box.data(Qt::CheckStateRole).toInt());
        model->setData(box, state, Qt::CheckStateRole);
        emit signalCheckStateChange(index, state);
        return false;
    }
    emit signalMutilSelectEvent();
    m_pressed = index;
    emit signalClickListViewItem(index);
    return false;
}

void ListDelegate::hover(const QPoint &pos, const RowLayout &layout, const QModelIndex &index,
                         const TreeItemData &item)
{
    const bool onLocation = leadsToLocation(layout, pos, item);
    const bool onImage = onLocation && layout.column == ScanDataModel::DateColumn;
    const bool onIcon = item.kind == ItemKind::File && layout.hitsIcon(pos);
    setCursor(onIcon || onLocation ? Qt::PointingHandCursor : Qt::ArrowCursor);
    setHoveredImage(onImage ? index : QModelIndex());

    switch (layout.column) {
    case ScanDataModel::NameColumn:
        showTooltip(index, ItemText::displayName(item));
        break;
    case ScanDataModel::TypeColumn:
        showTooltip(index, ItemText::type(item));
        break;
    case ScanDataModel::DateColumn:
        if (onImage)
            showTooltip(index, translatedKey("view_in_path"));
        break;
    case ScanDataModel::PathColumn:
        showTooltip(index, locationOf(item));
        break;
    default:
        break;
    }
}

void ListDelegate::hoverNothing()
{
    setCursor(Qt::ArrowCursor);
    setHoveredImage({});
}

void ListDelegate::setHoveredImage(const QModelIndex &index)
{
    if (m_hoveredImage == index)
        return;
    const QModelIndex before = m_hoveredImage;
    m_hoveredImage = index;
    if (!m_view)
        return;
    m_view->update(before);
    m_view->update(index);
}

void ListDelegate::setCursor(Qt::CursorShape shape)
{
    if (m_view && m_view->viewport()->cursor().shape() != shape)
        m_view->viewport()->setCursor(shape);
}

void ListDelegate::showTooltip(const QModelIndex &index, const QString &text)
{
    if (text.isEmpty() || !m_tip.allows(index))
        return;
    m_tip.shown(index);
    emit signalShowTooltip(text);
}
