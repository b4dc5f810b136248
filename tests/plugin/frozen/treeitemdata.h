#pragma once

#include "quarvoitem_export.h"

#include <QList>
#include <QObject>
#include <QPair>
#include <QStringList>
#include <QVector>

/// One file or folder that a scan has found. The host creates, fills and destroys records, on the
/// GUI thread, and may destroy one at any time. The plug-in writes `checkState` and the dynamic
/// properties "previewRepaired" (bool) and "previewRepairedPath" (QString), nothing else.
class QUARVOITEM_EXPORT TreeItemData : public QObject
{
    Q_OBJECT

public:
    explicit TreeItemData(QObject *owner = nullptr);
    ~TreeItemData() override;

    qint32 checkState = 0; ///< a Qt::CheckState
    QString path;       ///< directory that holds the item, without its name; '/' or '\\' separates
    QString name;       ///< with extension
    QString extension;  ///< without the dot
    QString volumeRoot; ///< what `path` is relative to; empty when `path` is complete
    qint64 fileId = -1; ///< unique within a scan
    qint64 secondaryId = -1;
    qint64 itemCount = 0;  ///< folders: items below; negative: unknown
    qint64 folderSize = 0; ///< folders: bytes of all that is below
    qint64 extraCount = 0;
    qint64 fileSize = 0;            ///< files: bytes
    qint64 modifiedTime = 0;        ///< seconds since the epoch; below 1: unknown
    qint32 kind = 0;                ///< 1 folder, 2 file, 0 another folder-like node
    qint32 rootType = 0;            ///< on the top item: the kind of root that its tree shows
    qint32 fileCategory = 0;        ///< family of the file type
    TreeItemData *parent = nullptr; ///< the folder that holds the item; hides QObject::parent()
    QList<TreeItemData *> childFolders;
    QList<TreeItemData *> childFiles;

    bool exists = false;                       ///< still on the medium, not deleted
    QStringList aiScenes;                      ///< scene ids, such as "beach"
    QVector<QPair<QString, QString>> metaData; ///< key, value; the answer to a metadata request

Q_SIGNALS:
    /// The host has filled `metaData`.
    void metaDataChanged();
};

Q_DECLARE_METATYPE(TreeItemData *)
