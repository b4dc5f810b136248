#pragma once

#include "plugin/sdcardscancontentplugininterface.h"

#include <QMap>
#include <QObject>
#include <QPluginLoader>

/// The plug-in as the host holds it: found, checked, loaded; its signals with types. The frames
/// go when it goes: take them out of their window first. GUI thread.
class ContentPlugin : public QObject
{
    Q_OBJECT

public:
    explicit ContentPlugin(QObject *parent = nullptr);
    ~ContentPlugin() override;

    /// Loads \a file or, when that is empty, the first plug-in in the usual places. False with a
    /// sentence for the user in \a error.
    bool load(const QString &file, QString *error);

    SDCardScanContentPluginInterface *operator->() const { return m_interface; }

    /// How often each signal of the plug-in has come.
    QMap<QString, int> signalCounts() const { return m_counts; }

signals:
    void treeItemChecked(TreeItemData *item, Qt::CheckState state);
    void searchItemChecked(TreeItemData *item, Qt::CheckState state);
    void searchAllChecked(Qt::CheckState state);
    void folderOpened(TreeItemData *item);
    void fileOpened(TreeItemData *item, const QString &source);
    void locateRequested(TreeItemData *item);
    void thumbnailRequested(TreeItemData *item);
    void metadataRequested(TreeItemData *item);
    void recoverRequested(TreeItemData *item);
    void tooltipRequested(const QString &text);

private slots:
    void countSignal();

private:
    bool loadFile(const QString &file, QString *error);
    void connectSignals();

    QPluginLoader m_loader;
    QObject *m_object = nullptr;
    SDCardScanContentPluginInterface *m_interface = nullptr;
    QMap<QString, int> m_counts;
};
