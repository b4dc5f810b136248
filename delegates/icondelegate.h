#pragma once

#include "common/themetype.h"
#include "delegates/cardbackground.h"
#include "delegates/cardpictures.h"
#include "delegates/currentcard.h"
#include "delegates/elidecache.h"
#include "delegates/itemcolors.h"
#include "delegates/markedcards.h"
#include "delegates/namepainter.h"
#include "delegates/namestrips.h"
#include "delegates/recoverabilitylabel.h"
#include "delegates/repairedpreviewcheck.h"
#include "delegates/scaledthumbnails.h"
#include "delegates/tooltipthrottle.h"
#include "thumbnails/thumbnailstore.h"

#include <QCursor>
#include <QStyledItemDelegate>

class DeviceGrid;
class QMouseEvent;

/// Paints the cards of the thumbnail grid and turns mouse events on a card into signals. Owns no
/// item; a record that has died is an empty card. Writes check states through the model. The view
/// hands it mouse events with tracking on, and a QEvent::Leave when the mouse leaves the grid.
/// Follows the theme and the language by itself; repainting the view is the owner's. GUI thread.
class IconDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit IconDelegate(QObject *parent = nullptr);
    ~IconDelegate() override;

    /// A regular expression; empty: names are plain.
    void setSearchKeyword(const QString &keyword);
    /// Folders may be checked whatever they hold, and show their own state, not their parent's.
    void setEmptyFolderCheckable(bool checkable) { m_emptyFolderCheckable = checkable; }
    /// What has not been assessed by now is of medium recoverability.
    void setAssessmentFinished(bool finished) { m_assessmentFinished = finished; }

    /// Cards of one model that show the selected look beside those the view has selected.
    void setMarkedIndexes(const QModelIndexList &indexes) { m_marked.set(indexes); }
    /// The same by ranges of rows, for a selection of any length.
    void setMarkedSelection(const QItemSelection &selection) { m_marked.set(selection); }
    void clearMarkedIndexes() { m_marked.clear(); }
    /// By rows, without those that have gone from the model.
    QModelIndexList markedIndexes() const { return m_marked.indexes(); }
    QItemSelection markedSelection() const { return m_marked.selection(); }

    /// The current card. Set by presses; to be set by the owner when the current item changes in
    /// another way (keyboard), and to an invalid index when another folder is shown: then the first
    /// card painted becomes current. A model reset needs no call: the card is found by its record.
    void setPressedIndex(const QModelIndex &index);
    QModelIndex pressedIndex() const { return m_pressed.index(); }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Shapes and scales what a card at \a cell will show, \a scale device pixels to a unit, for it
    /// to be painted sooner. Asks for nothing that is missing.
    void prepareCard(const QStyleOptionViewItem &option, const QRect &cell, qreal scale,
                     const QModelIndex &index) const;
    /// The same for the picture of \a fileId, on another thread: it has come, and no card of it is
    /// on the screen.
    void preparePicture(const QSize &cell, qreal scale, qint64 fileId) const;

    /// \a text cut in the middle to \a width pixels. Off the GUI thread it comes back as it is.
    QString getElidedText(const QString &text, int width) const;

signals:
    /// The click has written \a state into the model.
    void signalCheckStateChange(QModelIndex index, Qt::CheckState state);
    /// A press on a file's preview button.
    void signalClickListViewItem(QModelIndex index);
    void signalClickRightButton(QModelIndex index);
    void signalClickDouble(QModelIndex index);
    void signalSetCursor(QCursor cursor);
    /// A file without a thumbnail has been painted; emitted from within paint().
    void signalGetThumItem(TreeItemData *itemData);
    void signalMutilSelectEvent();
    void signalShowTooltip(QString tooltip);

private:
    /// Of the theme of now: the one that a signal from another thread names may have passed.
    void loadThemeResources();
    /// Texts and fonts of the language, when they are needed and not the last ones: no card may
    /// ever be shown, and the font family also changes without notice.
    void prepare() const;
    void retranslate() const;

    /// Painting is const, and what it finds missing is told all the same.
    void reportMissingThumbnail(TreeItemData *item) const;
    void paintCard(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                   TreeItemData *item, int kind, const ThumbnailStore::Info &thumbnail) const;
    CardBackground::Look lookOf(const QStyleOptionViewItem &option, const QModelIndex &index,
                                TreeItemData *item) const;
    /// The item's \a thumbnail in the device pixels of \a rect; null when there is not one of them.
    QPixmap fitted(const DeviceGrid &grid, const QRect &rect, const TreeItemData &item,
                   const ThumbnailStore::Info &thumbnail) const;
    QPixmap iconOf(const TreeItemData &item, int kind) const;
    QString nameOn(const CardLayout &layout, const TreeItemData &item) const;
    void drawOverlays(QPainter *painter, const DeviceGrid &grid, const CardLayout &layout,
                      const QRect &picture, const TreeItemData &item, bool hovered) const;
    /// \a place: where the name stands and what lies under it.
    void drawTexts(QPainter *painter, const DeviceGrid &grid, const CardLayout &layout,
                   const NameStrips::Place &place, const TreeItemData &item) const;

    /// These two tell whether the press has been dealt with.
    bool press(const QMouseEvent &event, QAbstractItemModel *model, const CardLayout &layout,
               const QModelIndex &index, int kind);
    bool toggleCheck(QAbstractItemModel *model, const QModelIndex &index, int kind);
    void hover(const QPoint &pos, const CardLayout &layout, const QModelIndex &index);

    mutable CurrentCard m_pressed;
    MarkedCards m_marked;
    CardPictures m_pictures;
    // what is prepared for painting, and prepared again when the language has changed
    mutable CardBackground m_background;
    mutable RecoverabilityLabel m_label;
    mutable ScaledThumbnails m_scaledThumbnails;
    mutable RepairedPreviewCheck m_repairedCheck;
    mutable NamePainter m_names;
    mutable NameStrips m_nameStrips;
    mutable ElideCache m_elideCache;
    bool m_emptyFolderCheckable = false;
    bool m_assessmentFinished = false;
    TooltipThrottle m_nameTip;
    TooltipThrottle m_labelTip;
    THEMETYPE m_theme = LightTheme;
    ItemColors m_colors;
    mutable QString m_fontFamily; ///< that is prepared; empty: none
    mutable QFont m_countFont;
};
