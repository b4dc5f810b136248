#include "plugin/sdcardscancontentplugin.h"

#include "common/fontmanager.h"
#include "common/thememanager.h"
#include "common/zvlangmanager.h"
#include "platform/system/system.h"
#include "thumbnails/highdpipixmapsmanager.h"
#include "thumbnails/scanpluginpreviewmanager.h"

#include <QCoreApplication>
#include <QVBoxLayout>

namespace {

constexpr int FileKind = 2;

using Content = SDCardContentDataWidget;

SDCardScanContentPlugin *s_plugin = nullptr;
bool s_used = false; // the process-wide objects have been made

QFrame *makeFrame(const char *name, int side, QPointer<SDCardContentDataWidget> *content)
{
    s_used = true;
    ThemeManager::instance(); // decides the theme, by which everything below is made
    // From now on a host finds them and can set the language.
    FontManager::instance();
    ZVLangManager::instance();
    auto *frame = new QFrame;
    frame->setObjectName(QLatin1String(name));
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    *content = new SDCardContentDataWidget(side, frame);
    layout->addWidget(content->data());
    HighDpiPixmapsManager::instance()->preloadAfterFirstPaint(frame);
    return frame;
}

} // namespace

SDCardScanContentPlugin::SDCardScanContentPlugin(QObject *parent)
    : QObject(parent)
{
    qRegisterMetaType<TreeItemData *>("TreeItemData*");
    qRegisterMetaType<Qt::CheckState>("Qt::CheckState");
    qRegisterMetaType<HeaderViewSortType>("HeaderViewSortType");
    qRegisterMetaType<THEMETYPE>("THEMETYPE");
    // The process-wide objects outlive this one, and so their code has to.
    System::pinModule(reinterpret_cast<const void *>(&SDCardScanContentPlugin::staticMetaObject));
    s_plugin = this;
    qAddPostRoutine(&beforeApplicationGoes);
}

SDCardScanContentPlugin::~SDCardScanContentPlugin()
{
    qRemovePostRoutine(&beforeApplicationGoes);
    if (s_plugin == this)
        s_plugin = nullptr;
    deleteFrames();
    if (s_used)
        ScanPluginPreviewManager::instance()->stop();
}

void SDCardScanContentPlugin::deleteFrames()
{
    delete m_scanFrame;
    delete m_searchFrame;
}

void SDCardScanContentPlugin::beforeApplicationGoes()
{
    // A host that leaves the unloading to Qt unloads us when widgets can no longer be deleted.
    if (s_plugin)
        s_plugin->deleteFrames();
}

void SDCardScanContentPlugin::updateTheme(THEMETYPE theme)
{
    // The delegates follow the manager, and a host may have no other way to reach it.
    ThemeManager::instance()->setThemeType(theme);
    if (m_scanContent)
        m_scanContent->updateTheme(theme);
    if (m_searchContent)
        m_searchContent->updateTheme(theme);
}

QFrame *SDCardScanContentPlugin::getScanContentFrame()
{
    if (m_scanFrame)
        return m_scanFrame;
    m_scanFrame = makeFrame("sdcardScanContentInnerFrame", ScanSide, &m_scanContent);
    using Plugin = SDCardScanContentPlugin;
    connect(m_scanContent, &Content::signalItemDataCheck, this, &Plugin::signalTreeItemCheck);
    connect(m_scanContent, &Content::signalDoubleClicked, this, &Plugin::open);
    connect(m_scanContent, &Content::signalSortClicked, this, &Plugin::signalSortClicked);
    connect(m_scanContent, &Content::signalLocateFile, this, &Plugin::signalLocateFile);
    connect(m_scanContent, &Content::signalGetThumPixmap, this, &Plugin::signalSaveThumbnail);
    connect(m_scanContent, &Content::signalGetMetaData, this, &Plugin::signalGetMetaData);
    connect(m_scanContent, &Content::signalRightMenuRecover, this, &Plugin::signalRightMenuRecover);
    connect(m_scanContent, &Content::signalScanViewShowTooltip, this, &Plugin::signalShowTooltip);
    return m_scanFrame;
}

QFrame *SDCardScanContentPlugin::getSearchResultFrame()
{
    if (m_searchFrame)
        return m_searchFrame;
    m_searchFrame = makeFrame("sdcardScanSearchResultInnerFrame", SearchSide, &m_searchContent);
    copyScanFinished();
    using Plugin = SDCardScanContentPlugin;
    connect(m_searchContent, &Content::signalItemDataCheck, this,
            &Plugin::signalSearchItemDataCheck);
    connect(m_searchContent, &Content::signalSearchSelectAllChecked, this,
            &Plugin::signalSearchSelectAllChecked);
    connect(m_searchContent, &Content::signalDoubleClicked, this, &Plugin::open);
    connect(m_searchContent, &Content::signalLocateFile, this, &Plugin::signalLocateFile);
    connect(m_searchContent, &Content::signalGetThumPixmap, this, &Plugin::signalSaveThumbnail);
    connect(m_searchContent, &Content::signalGetMetaData, this, &Plugin::signalGetMetaData);
    connect(m_searchContent, &Content::signalRightMenuRecover, this,
            &Plugin::signalRightMenuRecover);
    connect(m_searchContent, &Content::signalScanViewShowTooltip, this, &Plugin::signalShowTooltip);
    return m_searchFrame;
}

void SDCardScanContentPlugin::setViewMode(int mode)
{
    getScanContentFrame();
    m_scanContent->setViewMode(mode);
    if (m_searchContent)
        m_searchContent->setViewMode(mode);
}

void SDCardScanContentPlugin::setScanState(int state)
{
    getScanContentFrame();
    m_scanContent->setScanState(state);
    copyScanFinished();
}

void SDCardScanContentPlugin::updateScanData(TreeItemData *root)
{
    getScanContentFrame();
    m_scanContent->updateData(root, QString());
}

void SDCardScanContentPlugin::updateSearchData(TreeItemData *root, const QString &keyword)
{
    getSearchResultFrame();
    m_searchContent->setSearchMode(true);
    copyScanFinished();
    m_searchContent->updateData(root, keyword);
}

void SDCardScanContentPlugin::updateSearchDataNoKeyword(TreeItemData *root)
{
    getSearchResultFrame();
    copyScanFinished();
    m_searchContent->updateData(root, QString());
}

void SDCardScanContentPlugin::refreshSearchCheckAllState(int)
{
    if (m_searchContent)
        m_searchContent->refreshCheckAllState();
}

void SDCardScanContentPlugin::refreshScanCheckState()
{
    if (m_scanContent)
        m_scanContent->refreshCheckState();
}

void SDCardScanContentPlugin::refreshSearchCheckState()
{
    if (m_searchContent)
        m_searchContent->refreshCheckState();
}

void SDCardScanContentPlugin::clearData(int side)
{
    if (m_scanContent && (side == BothSides || side == ScanSide)) {
        m_scanContent->reset();
        ScanPluginPreviewManager::instance()->stop();
    }
    if (m_searchContent && (side == BothSides || side == SearchSide))
        m_searchContent->reset();
}

void SDCardScanContentPlugin::locateItemByFileId(qint64 fileId)
{
    getScanContentFrame();
    m_scanContent->locateFileId(fileId);
}

void SDCardScanContentPlugin::locateItemBySecondaryId(qint64 id)
{
    getScanContentFrame();
    m_scanContent->locateSecondaryId(id);
}

void SDCardScanContentPlugin::setFilterCondition(FilterCondition *condition)
{
    getScanContentFrame();
    m_scanContent->setFilterCondition(condition);
    getSearchResultFrame();
    m_searchContent->setFilterCondition(condition);
}

void SDCardScanContentPlugin::updateThumbnail(qint64 id, QPixmap pixmap)
{
    ScanPluginPreviewManager::instance()->storeThumbnail(id, pixmap);
}

void SDCardScanContentPlugin::updateThumbnailWithPath(qint64 id, const QString &path,
                                                      QPixmap pixmap)
{
    ScanPluginPreviewManager::instance()->storeThumbnail(id, path, pixmap);
}

void SDCardScanContentPlugin::setListDelegateFlag(bool flag)
{
    if (m_scanContent)
        m_scanContent->setFoldersHavePlaceholder(flag);
}

void SDCardScanContentPlugin::showLoadingPage(bool show)
{
    getScanContentFrame();
    m_scanContent->showLoadingPage(show);
}

QList<TreeItemData *> SDCardScanContentPlugin::getSelectedItems(int side)
{
    const auto &content = side == SearchSide ? m_searchContent : m_scanContent;
    return content ? content->selectedItems() : QList<TreeItemData *>();
}

void SDCardScanContentPlugin::open(TreeItemData *itemData, const QString &source)
{
    if (!itemData)
        return;
    const bool folderLike = itemData->kind == 0 || itemData->kind == 1;
    // A folder opened from the menu is dropped on purpose.
    if (folderLike
        && (source == QLatin1String("double_click") || source == QLatin1String("preview_btn")))
        emit signalFolderDoubleClicked(itemData);
    else if (itemData->kind == FileKind)
        emit signalFileDoubleClicked(itemData, source);
}

void SDCardScanContentPlugin::copyScanFinished()
{
    if (m_scanContent && m_searchContent)
        m_searchContent->setScanFinished(m_scanContent->scanFinished());
}
