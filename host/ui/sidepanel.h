#pragma once

#include <QFrame>

class FolderTree;
class ItemTree;
class QTreeWidgetItem;
class Segments;
struct HostTheme;
struct ItemRecord;

/// The way to the results by kind or by place. Shows folders only as far as they are unfolded, so a
/// card with a hundred thousand of them costs nothing.
class SidePanel : public QFrame
{
    Q_OBJECT

public:
    enum Arrangement { ByKind, ByPlace };

    explicit SidePanel(const ItemTree &tree, QWidget *parent = nullptr);

    /// Starts over: the records from before are gone or the filter is another.
    void reload(ItemRecord *shown);
    /// Counts have grown, folders have come.
    void refresh();
    /// Marks what is shown, in the arrangement that it belongs to.
    void follow(ItemRecord *shown);
    void setTheme(const HostTheme &theme);

signals:
    void picked(ItemRecord *root);

protected:
    void changeEvent(QEvent *event) override;

private:
    ItemRecord *recordOf(const QTreeWidgetItem *row) const;
    QTreeWidgetItem *addRow(QTreeWidgetItem *above, ItemRecord *record);
    QTreeWidgetItem *rowOf(ItemRecord *record);
    void fill(QTreeWidgetItem *row);
    void refreshRow(QTreeWidgetItem *row);
    void setArrangement(Arrangement arrangement);
    void retranslate();
    void mirror();
    QIcon iconOf(const ItemRecord &record) const;

    const ItemTree &m_tree;
    Segments *m_arrangements;
    FolderTree *m_rows;
    QColor m_icon;
};
