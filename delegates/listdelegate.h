#pragma once

#include "delegates/columntexts.h"
#include "delegates/elidecache.h"
#include "delegates/namepainter.h"
#include "delegates/rowbackground.h"
#include "delegates/rowcolors.h"
#include "delegates/rowlayout.h"
#include "delegates/rowpictures.h"
#include "delegates/rowtexts.h"
#include "delegates/rowthumbnails.h"
#include "delegates/tooltipthrottle.h"

#include <QPersistentModelIndex>
#include <QPointer>
#include <QStyledItemDelegate>

#include <functional>

class DeviceGrid;
class QMouseEvent;
class QTableView;
class TreeItemData;

/// Paints the rows of the list, column by column, and turns mouse events in a cell into signals.
/// Owns no item; a record that has died is an empty row. Writes check states through the model. Of
/// the table view it wants the hovered cell, the sorted column and the width; it sets the cursor of
/// its viewport. Follows the theme and the language by itself; repainting the view is the owner's.
/// GUI thread.
class ListDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ListDelegate(QObject *parent = nullptr);
    ~ListDelegate() override;

    /// Not owned; may be destroyed at any time. Cells are hovered in one that is a HoveredCell.
    void setTableView(QTableView *newView);
    /// A regular expression; empty: names are plain.
    void setSearchKeyword(const QString &keyword);
    /// Folders may be checked whatever they hold, and show their own state, not their parent's.
    void setEmptyFolderCheckable(bool checkable) { m_emptyFolderCheckable = checkable; }
    /// The time column leads to no location: the location column does.
    void setLocationIconSuppressed(bool suppressed) { m_locationIconSuppressed = suppressed; }
    /// Locations are links. They are from the start.
    void setPathColumnsActive(bool active) { m_pathColumnsActive = active; }
    void setFoldersHavePlaceholder(bool placeholder) { m_foldersHavePlaceholder = placeholder; }
    /// Sizes and times are to be written anew, as after a change of language.
    void setCachesDirty() { m_rowTexts.setDirty(); }
    /// Whether the grid has more than it shows. Rows are laid out by their own view's width, so
    /// nothing here depends on it yet.
    void setGridCanScroll(bool canScroll) { m_gridCanScroll = canScroll; }
    bool gridCanScroll() const { return m_gridCanScroll; }

    /// Called at the end of the painting of a file that has no thumbnail (yet); may destroy it.
    using ThumbnailRequester = std::function<void(TreeItemData *)>;
    void setThumbnailRequester(const ThumbnailRequester &requester) { m_requester = requester; }

    /// The cell of the last plain press.
    QModelIndex pressedIndex() const { return m_pressed; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// The click has written \a state into the model.
    void signalCheckStateChange(QModelIndex index, Qt::CheckState state);
    void signalClickListViewItem(QModelIndex index);
    /// A press on a file's icon.
    void signalPreviewClicked(QModelIndex index);
    void signalShowTooltip(QString tooltip);
    void signalClickRightButton(QModelIndex index);
    void signalClickDouble(QModelIndex index);
    void signalMutilSelectEvent();
    /// A press on a location or on the picture that stands for it.
    void signalPathClicked(QModelIndex index);

private:
    struct Cell;

    /// Of the theme of now: the one that a signal from another thread names may have passed.
    void loadThemeResources();
    /// Fonts and texts of the language; the font family may also change without notice.
    void retranslate() const;

    void drawName(QPainter *painter, const DeviceGrid &grid, const Cell &cell) const;
    void drawIcon(QPainter *painter, const DeviceGrid &grid, const Cell &cell) const;
    void drawTime(QPainter *painter, const DeviceGrid &grid, const Cell &cell) const;
    void drawLocation(QPainter *painter, const Cell &cell) const;
    void drawText(QPainter *painter, const Cell &cell, const QString &text,
                  const QColor &color) const;

    QString locationOf(const TreeItemData &item) const;
    bool leadsToLocation(const RowLayout &layout, const QPoint &pos,
                         const TreeItemData &item) const;
    bool showsLocationImage(const TreeItemData &item) const;

    /// Null also for a view that is in its destructor and still sends events.
    QTableView *view() const;
    bool isRowHovered(int row) const;
    bool isCellHovered(const QModelIndex &index) const;
    bool isSorted(int column) const;
    bool isFirstColumnShown() const;
    int viewportWidth(const QStyleOptionViewItem &option) const;

    /// True: the press has been dealt with, nobody else is to hear of it.
    bool press(const QPoint &pos, QAbstractItemModel *model, const RowLayout &layout,
               const QPersistentModelIndex &index, const TreeItemData &item);
    void hover(const QPoint &pos, const RowLayout &layout, const QModelIndex &index,
               const TreeItemData &item);
    void hoverNothing();
    void setHoveredImage(const QModelIndex &index);
    void setCursor(Qt::CursorShape shape);
    void showTooltip(const QModelIndex &index, const QString &text);

    QPersistentModelIndex m_pressed;
    QPersistentModelIndex m_hoveredImage;
    QPointer<QWidget> m_view;
    RowBackground m_background;
    RowPictures m_pictures;
    RowColors m_colors;
    ThumbnailRequester m_requester;
    TooltipThrottle m_tip;
    bool m_locationIconSuppressed = false;
    bool m_pathColumnsActive = true;
    bool m_emptyFolderCheckable = false;
    bool m_foldersHavePlaceholder = false;
    bool m_gridCanScroll = false;
    // what is prepared for painting, and prepared again when the language has changed
    mutable RowTexts m_rowTexts;
    mutable RowThumbnails m_thumbnails;
    mutable NamePainter m_names;
    mutable ElideCache m_elidedNames{0};
    mutable PlainTexts m_suffixes;
    mutable ColumnTexts m_texts;
    mutable ColumnTexts m_boldTexts;
    mutable QFont m_nameFont;
    mutable QFont m_boldNameFont;
    mutable QString m_fontFamily;
};
