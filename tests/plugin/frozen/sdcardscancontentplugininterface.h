#pragma once

#include "themetype.h"
#include "filtercondition.h"
#include "treeitemdata.h"

#include <QFrame>
#include <QList>
#include <QPixmap>
#include <QString>
#include <QtPlugin>

/// What a host drives. All operations run on the GUI thread; none reports an error. Records and the
/// filter stay the host's; the frames stay the plug-in's and go with the plug-in object.
/// The order of the operations is part of the contract.
class SDCardScanContentPluginInterface
{
public:
    enum ContentSide { BothSides = 0, ScanSide = 1, SearchSide = 2 };
    enum ViewMode { GridView = 0, ListWithDetailView = 1, ListView = 2 };
    enum ScanState { ScanStarted = 1, ScanFinished = 4, ScanAnimationStopped = 5 };

    virtual ~SDCardScanContentPluginInterface() = default;

    virtual void updateTheme(THEMETYPE theme) = 0;
    virtual QFrame *getScanContentFrame() = 0;
    virtual QFrame *getSearchResultFrame() = 0;
    virtual void setViewMode(int mode) = 0;
    virtual void setScanState(int state) = 0;
    virtual void updateScanData(TreeItemData *root) = 0;
    virtual void updateSearchData(TreeItemData *root, const QString &keyword) = 0;
    virtual void updateSearchDataNoKeyword(TreeItemData *root) = 0;
    virtual void refreshSearchCheckAllState(int unused) = 0;
    virtual void refreshScanCheckState() = 0;
    virtual void refreshSearchCheckState() = 0;
    virtual void clearData(int side) = 0;
    virtual void locateItemByFileId(qint64 fileId) = 0;
    virtual void locateItemBySecondaryId(qint64 id) = 0;
    virtual void setFilterCondition(FilterCondition *condition) = 0;
    virtual void updateThumbnail(qint64 id, QPixmap pixmap) = 0;
    virtual void updateThumbnailWithPath(qint64 id, const QString &path, QPixmap pixmap) = 0;
    virtual void setListDelegateFlag(bool flag) = 0;
    virtual void showLoadingPage(bool show) = 0;
    virtual QList<TreeItemData *> getSelectedItems(int side) = 0;
};

Q_DECLARE_INTERFACE(SDCardScanContentPluginInterface, "com.Quarvo.SDCardScanContentPluginInterface")
