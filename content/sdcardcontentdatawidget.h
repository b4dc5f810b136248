#pragma once

#include "common/themetype.h"
#include "model/headerviewsorttype.h"
#include "platform/item/treeitemdata.h"

#include <QPointer>
#include <QVariantMap>
#include <QWidget>

#include <memory>

class CheckAll;
class ContentPages;
class ContentViews;
class ContextMenu;
class CurrentItem;
class ItemChecks;
class Restyling;
class ScanDataModel;
class SortChoice;
class ThumbnailRequests;
struct FilterCondition;

namespace Ui {
class SDCardContentDataWidgetClass;
}

/// The content area of one side: the pages, the grid and the table over one model, select-all and
/// the current item. Owns all that it shows; the records and the filter are the host's, and a
/// record may die between two calls. Failures are logged and stay here. GUI thread.
class SDCardContentDataWidget : public QWidget
{
    Q_OBJECT

public:
    explicit SDCardContentDataWidget(int side, QWidget *parent = nullptr);
    ~SDCardContentDataWidget() override;

    /// Shows the children of \a root; \a keyword is marked in the names. A null root changes
    /// nothing. Selection, current item and scroll position stay with their items when it is the
    /// tree that is shown already.
    void updateData(TreeItemData *root, const QString &keyword);
    /// 0 grid, 1 list with detail pane, 2 list.
    void setViewMode(int mode);
    /// 1 started, 4 finished, 5 stop the animation.
    void setScanState(int state);
    bool scanFinished() const;
    void setScanFinished(bool finished);
    void setSearchMode(bool searchMode);
    void reset();
    void showLoadingPage(bool show);
    /// Stays the caller's; must outlive its use here or be replaced.
    void setFilterCondition(FilterCondition *condition);
    /// Folders show "--" as their location in the list.
    void setFoldersHavePlaceholder(bool placeholder);

    void initScaningLottie();
    void startScanAnimation();
    void stopScanAnimation();

    void setCheckAllState(int state);
    /// The host has changed check states: shows them, and the root's on the select-all control.
    void refreshCheckState();
    /// The state of select-all from the states of the root's children.
    void refreshCheckAllState();
    void locateFileId(qint64 fileId);
    void locateSecondaryId(qint64 id);
    QList<TreeItemData *> selectedItems() const;

    /// What is out of sight follows when it is shown, or a moment later.
    void updateTheme(THEMETYPE theme);
    void retranslate();

signals:
    void signalDoubleClicked(TreeItemData *itemData, QString source);
    void signalItemDataCheck(TreeItemData *itemData, Qt::CheckState state);
    void signalSearchSelectAllChecked(Qt::CheckState state);
    void signalSortClicked(TreeItemData *itemData, HeaderViewSortType sortType);
    void signalScanViewShowTooltip(QString tooltip);
    void signalQueryMoreData(TreeItemData *itemData);
    void signalRightMenuRecover(TreeItemData *itemData);
    void signalGetThumPixmap(TreeItemData *itemData);
    void signalGetMetaData(TreeItemData *itemData);
    void signalLocateFile(TreeItemData *itemData);
    void signalSensorsData(QString action, QVariantMap map);
    void signalCurrentItemChanged(TreeItemData *itemData);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void createParts();
    void connectParts();
    void connectViews();
    void loadStyleSheet();
    void restyle();

    void locate(int row);
    void openItem(TreeItemData *item, const QString &source);
    void goToLocation(TreeItemData *item);
    void onSortChosen(HeaderViewSortType type);

    std::unique_ptr<Ui::SDCardContentDataWidgetClass> ui;
    ScanDataModel *m_model = nullptr;
    ContentPages *m_pages = nullptr;
    ContentViews *m_views = nullptr;
    CheckAll *m_checkAll = nullptr;
    ItemChecks *m_checks = nullptr;
    SortChoice *m_sort = nullptr;
    CurrentItem *m_current = nullptr;
    ContextMenu *m_menu = nullptr;
    ThumbnailRequests *m_thumbnails = nullptr;
    Restyling *m_restyling = nullptr;
    QPointer<TreeItemData> m_root;
    int m_updates = 0; ///< a slot of the host may update while an update is under way
};
