#pragma once

#include "host/media/mediapool.h"
#include "platform/item/treeitemdata.h"

#include <QImage>
#include <QPointer>
#include <QWidget>

class QToolButton;
struct ItemRecord;

/// Shows pictures of a source one at a time, fitted to the window. The helper program decodes them,
/// no larger than the screen needs.
class PictureViewer : public QWidget
{
    Q_OBJECT

public:
    explicit PictureViewer(std::shared_ptr<const ScanSource> source, QWidget *parent = nullptr);
    ~PictureViewer() override;

    /// Begins with \a current and goes through the photos that \a root lists, as long as it lives.
    void open(const TreeItemData *root, const ItemRecord *current);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void lookForPhotos();
    const ItemRecord *photoAt(int number) const;
    void step(int by);
    void load();
    void take(int request, const MediaAnswer &answer);
    void placeButtons();
    void retranslate();

    std::shared_ptr<const ScanSource> m_source;
    QPointer<const TreeItemData> m_root;
    QVector<int> m_photos; // their places in the root's list
    int m_listed = 0;      // how many files that list had then
    int m_current = 0;     // among the photos
    FoundItem m_item;
    std::shared_ptr<MediaPool> m_media = MediaPool::shared();
    int m_request = 0;
    MediaAnswer m_loaded;
    QToolButton *m_previous;
    QToolButton *m_next;
};
