#pragma once

#include "content/sdcardcontentdatawidget.h"
#include "model/headerviewsorttype.h"
#include "plugin/sdcardscancontentplugininterface.h"

#include <QObject>
#include <QPointer>

/// The object that the host loads. Builds the two frames on demand, hands the host's calls to the
/// content areas and relays what they report; no behaviour of its own.
class SDCardScanContentPlugin : public QObject, public SDCardScanContentPluginInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.Quarvo.SDCardScanContentPluginInterface" FILE
                          "sdcardscancontentplugin.json")
    Q_INTERFACES(SDCardScanContentPluginInterface)

public:
    explicit SDCardScanContentPlugin(QObject *parent = nullptr);
    ~SDCardScanContentPlugin() override;

    void updateTheme(THEMETYPE theme) override;
    QFrame *getScanContentFrame() override;
    QFrame *getSearchResultFrame() override;
    void setViewMode(int mode) override;
    void setScanState(int state) override;
    void updateScanData(TreeItemData *root) override;
    void updateSearchData(TreeItemData *root, const QString &keyword) override;
    void updateSearchDataNoKeyword(TreeItemData *root) override;
    void refreshSearchCheckAllState(int unused) override;
    void refreshScanCheckState() override;
    void refreshSearchCheckState() override;
    void clearData(int side) override;
    void locateItemByFileId(qint64 fileId) override;
    void locateItemBySecondaryId(qint64 id) override;
    void setFilterCondition(FilterCondition *condition) override;
    void updateThumbnail(qint64 id, QPixmap pixmap) override;
    void updateThumbnailWithPath(qint64 id, const QString &path, QPixmap pixmap) override;
    void setListDelegateFlag(bool flag) override;
    void showLoadingPage(bool show) override;
    QList<TreeItemData *> getSelectedItems(int side) override;

signals:
    void signalTreeItemCheck(TreeItemData *itemData, Qt::CheckState state);
    void signalSearchItemDataCheck(TreeItemData *itemData, Qt::CheckState state);
    void signalSearchSelectAllChecked(Qt::CheckState state);
    void signalFolderDoubleClicked(TreeItemData *itemData);
    void signalFileDoubleClicked(TreeItemData *itemData, QString source);
    void signalSortClicked(TreeItemData *itemData, HeaderViewSortType sortType);
    void signalLocateFile(TreeItemData *itemData);
    void signalSaveThumbnail(TreeItemData *itemData);
    void signalGetMetaData(TreeItemData *itemData);
    void signalRightMenuRecover(TreeItemData *itemData);
    void signalShowTooltip(QString tooltip);

private:
    void open(TreeItemData *itemData, const QString &source);
    void copyScanFinished();

    void deleteFrames();
    static void beforeApplicationGoes();

    // Guarded: a host's window may take a frame with it.
    QPointer<QFrame> m_scanFrame;
    QPointer<SDCardContentDataWidget> m_scanContent;
    QPointer<QFrame> m_searchFrame;
    QPointer<SDCardContentDataWidget> m_searchContent;
};
