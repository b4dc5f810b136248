#pragma once

#include "platform/item/treeitemdata.h"

#include <QPointer>
#include <QTimer>
#include <QVector>
#include <QWidget>

#include <memory>
#include <tuple>

class ChipInfoItem;
class DataInfoItem;
class PreviewFrame;
class Restyling;

namespace Ui {
class ItemDetailViewClass;
}

/// The pane beside the list: picture, name and facts of one item. Rows that every item has are made
/// with the first item, for most panes never show one, and stay where they are; what the host still
/// has to tell fills the rows below when it comes. Requests to the host are made for an item on
/// which the user rests, not for each one passed. The item is the host's and may die at any time.
/// GUI thread.
class ItemDetailView : public QWidget
{
    Q_OBJECT

public:
    explicit ItemDetailView(QWidget *parent = nullptr);
    ~ItemDetailView() override;

    /// Null clears the pane.
    void setItem(TreeItemData *item);
    void clear() { setItem(nullptr); }
    /// Fills the pane again from the item that it shows.
    void refresh();
    /// The thumbnail cache has an answer for this file.
    void refreshPicture(qint64 fileId);
    void setAssessmentFinished(bool finished);

    void updateTheme();
    void retranslate();

signals:
    void signalClickedOpen(TreeItemData *itemData);
    void signalGetThumPixmap(TreeItemData *itemData);
    void signalGetMetaData(TreeItemData *itemData);
    void signalPathClicked(TreeItemData *itemData);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeRows();
    void retranslateRows();
    void loadStyleSheet();
    void restyle();
    void mirror();
    void fillPicture();
    void placePreview(bool shown);
    void fillFacts();
    void fillTags();
    void fillMetadata();
    void request();
    DataInfoItem *metadataRow(int index);

    using PictureKey = std::tuple<qint64, QSize, qreal>; // which, into which room, at which scale

    std::unique_ptr<Ui::ItemDetailViewClass> ui;
    QPointer<TreeItemData> m_item;
    QTimer m_rest;
    PictureKey m_pictureKey;        ///< of what is shown
    DataInfoItem *m_path = nullptr; ///< null until there are rows
    DataInfoItem *m_status = nullptr;
    DataInfoItem *m_size = nullptr;
    DataInfoItem *m_resolution = nullptr;
    DataInfoItem *m_recoverability = nullptr;
    ChipInfoItem *m_tags = nullptr;
    PreviewFrame *m_preview = nullptr;      ///< over a file's picture while the mouse is there
    QVector<DataInfoItem *> m_metadataRows; ///< kept and used again
    Restyling *m_restyling = nullptr;
    bool m_assessmentFinished = false;
    bool m_mirrored = false;
};
