#include "host/ui/sidepanel.h"

#include "host/tree/itemkinds.h"
#include "host/tree/itemtree.h"
#include "host/tree/texts.h"
#include "host/ui/foldertree.h"
#include "host/ui/glyphs.h"
#include "host/ui/hosttheme.h"
#include "host/ui/segments.h"

#include <QEvent>
#include <QHash>
#include <QHeaderView>
#include <QSet>
#include <QStyle>
#include <QVBoxLayout>

namespace {
constexpr int RecordRole = Qt::UserRole;
constexpr int PanelWidth = 224;
constexpr int IconSide = 18;
constexpr int NameColumn = FolderTree::NameColumn;
constexpr int CountColumn = FolderTree::CountColumn;

/// Of a record that may be gone.
const TreeItemData *addressOf(const QTreeWidgetItem *row)
{
    return static_cast<TreeItemData *>(row->data(NameColumn, RecordRole).value<void *>());
}

bool isBelow(const QTreeWidgetItem *row, const QTreeWidgetItem *folder)
{
    while (row && row != folder)
        row = row->parent();
    return row == folder;
}
} // namespace

SidePanel::SidePanel(const ItemTree &tree, QWidget *parent)
    : QFrame(parent)
    , m_tree(tree)
    , m_arrangements(new Segments(this))
    , m_rows(new FolderTree(this))
{
    setObjectName(QStringLiteral("sidePanel"));
    setFixedWidth(PanelWidth);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 12, 0, 0);
    column->setSpacing(10);
    auto *head = new QHBoxLayout;
    head->setContentsMargins(12, 0, 12, 0);
    head->addWidget(m_arrangements);
    column->addLayout(head);
    auto *body = new QHBoxLayout;
    body->setContentsMargins(8, 0, 8, 0);
    body->addWidget(m_rows);
    column->addLayout(body, 1);

    m_arrangements->addText(ByKind, QString());
    m_arrangements->addText(ByPlace, QString());
    m_arrangements->setChosen(ByKind);
    connect(m_arrangements, &Segments::picked, this, [this](int arrangement) {
        setArrangement(Arrangement(arrangement));
        emit picked(arrangement == ByKind ? m_tree.allFiles() : m_tree.placeRoot());
    });

    m_rows->setHeaderHidden(true);
    m_rows->header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    m_rows->setIconSize({IconSide, IconSide});
    m_rows->setUniformRowHeights(true);
    m_rows->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(m_rows, &QTreeWidget::itemExpanded, this, &SidePanel::fill);
    connect(m_rows, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *row) {
        if (row)
            emit picked(recordOf(row));
    });
    retranslate();
    mirror();
}

ItemRecord *SidePanel::recordOf(const QTreeWidgetItem *row) const
{
    return m_tree.records().find(addressOf(row));
}

QIcon SidePanel::iconOf(const ItemRecord &record) const
{
    Glyph glyph = Glyph::OpenFolder;
    if (record.rootType != 0)
        glyph = glyphOfKind(record.rootType);
    else if (record.isRoot)
        glyph = Glyph::Disk;
    return glyphIcon(glyph, m_icon);
}

QTreeWidgetItem *SidePanel::addRow(QTreeWidgetItem *above, ItemRecord *record)
{
    auto *row = new QTreeWidgetItem;
    row->setData(NameColumn, RecordRole,
                 QVariant::fromValue<void *>(static_cast<TreeItemData *>(record)));
    if (above)
        above->addChild(row);
    else
        m_rows->addTopLevelItem(row);
    refreshRow(row);
    return row;
}

void SidePanel::refreshRow(QTreeWidgetItem *row)
{
    const ItemRecord *record = recordOf(row);
    if (!record)
        return;
    row->setText(NameColumn, Texts::titleOf(*record));
    row->setToolTip(NameColumn, row->text(NameColumn));
    row->setIcon(NameColumn, iconOf(*record));
    row->setText(CountColumn, Texts::number(record->itemCount));
    row->setData(NameColumn, Qt::AccessibleTextRole,
                 QStringLiteral("%1, %2").arg(row->text(NameColumn), row->text(CountColumn)));
    if (record->rootType == 0) {
        row->setChildIndicatorPolicy(record->childFolders.isEmpty()
                                         ? QTreeWidgetItem::DontShowIndicator
                                         : QTreeWidgetItem::ShowIndicator);
    } else if (record->rootType != ItemKinds::AllFilesRootType) {
        row->setHidden(record->itemCount == 0);
    }
    if (row->isExpanded())
        fill(row);
    for (int i = 0; i < row->childCount(); ++i)
        refreshRow(row->child(i));
}

/// While a scan runs folders are only appended; another filter takes some away and gives others
/// another place.
void SidePanel::fill(QTreeWidgetItem *row)
{
    const ItemRecord *record = recordOf(row);
    if (!record)
        return;
    const QList<TreeItemData *> &folders = record->childFolders;
    int same = 0;
    while (same < row->childCount() && same < folders.size()
           && addressOf(row->child(same)) == folders[same])
        ++same;

    const QSignalBlocker quiet(m_rows); // a row that moves is no choice of the user
    QTreeWidgetItem *current = m_rows->currentItem();
    QHash<const TreeItemData *, QTreeWidgetItem *> moving;
    QSet<const QTreeWidgetItem *> unfolded;
    while (row->childCount() > same) {
        QTreeWidgetItem *child = row->child(row->childCount() - 1);
        moving.insert(addressOf(child), child);
        if (child->isExpanded())
            unfolded.insert(child);
        row->removeChild(child);
    }
    for (int i = same; i < folders.size(); ++i) {
        QTreeWidgetItem *child = moving.take(folders[i]);
        if (!child) {
            addRow(row, static_cast<ItemRecord *>(folders[i]));
            continue;
        }
        row->addChild(child);
        child->setExpanded(unfolded.contains(child));
        if (isBelow(current, child))
            m_rows->setCurrentItem(current);
    }
    qDeleteAll(moving);
}

void SidePanel::setArrangement(Arrangement arrangement)
{
    const QSignalBlocker quiet(m_rows);
    m_arrangements->setChosen(arrangement);
    m_rows->clear();
    m_rows->setRootIsDecorated(arrangement == ByPlace);
    if (arrangement == ByKind) {
        addRow(nullptr, m_tree.allFiles());
        for (ItemRecord *kind : m_tree.kindRoots())
            addRow(nullptr, kind);
    } else if (m_tree.placeRoot()) {
        QTreeWidgetItem *root = addRow(nullptr, m_tree.placeRoot());
        root->setExpanded(true);
        fill(root);
    }
}

void SidePanel::reload(ItemRecord *shown)
{
    setArrangement(shown && shown->rootType == 0 ? ByPlace : ByKind);
    follow(shown);
}

void SidePanel::refresh()
{
    const QSignalBlocker quiet(m_rows);
    for (int i = 0; i < m_rows->topLevelItemCount(); ++i)
        refreshRow(m_rows->topLevelItem(i));
}

QTreeWidgetItem *SidePanel::rowOf(ItemRecord *record)
{
    QTreeWidgetItem *above = nullptr;
    if (ItemRecord *folder = record->folder()) {
        above = rowOf(folder);
        if (!above)
            return nullptr;
        fill(above);
        above->setExpanded(true);
    }
    const int count = above ? above->childCount() : m_rows->topLevelItemCount();
    for (int i = 0; i < count; ++i) {
        QTreeWidgetItem *row = above ? above->child(i) : m_rows->topLevelItem(i);
        if (recordOf(row) == record)
            return row;
    }
    return nullptr;
}

void SidePanel::follow(ItemRecord *shown)
{
    if (!shown)
        return;
    const Arrangement arrangement = shown->rootType == 0 ? ByPlace : ByKind;
    if (m_arrangements->chosen() != arrangement || m_rows->topLevelItemCount() == 0)
        setArrangement(arrangement);
    const QSignalBlocker quiet(m_rows);
    if (QTreeWidgetItem *row = rowOf(shown)) {
        m_rows->setCurrentItem(row);
        m_rows->scrollToItem(row);
    }
}

void SidePanel::retranslate()
{
    m_arrangements->setText(ByKind, tr("By kind"));
    m_arrangements->setText(ByPlace, tr("By place"));
    m_rows->setAccessibleName(tr("Where to look"));
    refresh();
}

void SidePanel::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    if (event->type() == QEvent::LayoutDirectionChange)
        mirror();
}

/// Stylesheets know left and right only.
void SidePanel::mirror()
{
    for (QWidget *each : {static_cast<QWidget *>(this), static_cast<QWidget *>(m_rows)}) {
        each->setProperty("mirrored", isRightToLeft());
        each->style()->unpolish(each);
        each->style()->polish(each);
    }
}

void SidePanel::setTheme(const HostTheme &theme)
{
    theme.applyTo(this);
    m_icon = theme.icon;
    m_rows->setColors(theme.faintText, theme.accentText);
    m_arrangements->setTheme(theme);
    refresh();
}
