#include "host/tree/itemtree.h"
#include "host/ui/sidepanel.h"

#include <QTest>
#include <QTreeWidget>

#include <memory>

namespace {

FoundItem found(qint64 id, qint64 parentId, const QString &name, bool deleted = false)
{
    FoundItem item;
    item.id = id;
    item.parentId = parentId;
    item.name = name;
    item.folder = !name.contains(QLatin1Char('.'));
    item.deleted = deleted;
    return item;
}

QStringList namesBelow(const QTreeWidgetItem *row)
{
    QStringList names;
    for (int i = 0; i < row->childCount(); ++i)
        names.append(row->child(i)->text(0));
    return names;
}

QStringList namesBelow(const ItemRecord *folder)
{
    QStringList names;
    for (const TreeItemData *child : folder->childFolders)
        names.append(child->name);
    return names;
}

} // namespace

/// The folders in the panel are those of the tree, whatever the filter does to them.
class TestSidePanel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void folders_data();
    void folders();
    void unfoldedAndCurrentFolderStay();

private:
    void filter(int mode);

    std::unique_ptr<ItemTree> m_tree;
    std::unique_ptr<SidePanel> m_panel;
    QTreeWidgetItem *m_card = nullptr;
    int m_picked = 0;
};

void TestSidePanel::init()
{
    m_panel.reset();
    m_tree = std::make_unique<ItemTree>();
    m_tree->setVolumes({VolumeInfo()});
    m_tree->add({found(1, -1, "DCIM"), found(2, -1, "Trip"), found(3, -1, "MISC"),
                 found(4, -1, "PRIVATE"), found(11, 1, "100CARD"), found(12, 1, "101CARD"),
                 found(21, 2, "a.jpg", true), found(31, 3, "b.jpg"), found(41, 4, "c.jpg", true),
                 found(111, 11, "d.jpg"), found(121, 12, "e.jpg", true)});
    m_panel = std::make_unique<SidePanel>(*m_tree);
    m_panel->follow(m_tree->placeRoot());
    m_card = m_panel->findChild<QTreeWidget *>()->topLevelItem(0);
}

void TestSidePanel::filter(int mode)
{
    FilterCondition condition;
    condition.mode = mode;
    m_tree->beginFilter(ItemFilter(condition));
    m_tree->filterMore(m_tree->records().size());
    m_panel->refresh();
}

void TestSidePanel::folders_data()
{
    QTest::addColumn<QVector<int>>("modes");
    constexpr int Deleted = ItemFilter::DeletedOnly;
    constexpr int Existing = ItemFilter::ExistingOnly;
    constexpr int Any = ItemFilter::AnyState;
    QTest::newRow("some go") << QVector<int>{Deleted};
    QTest::newRow("some come back, in between") << QVector<int>{Deleted, Any};
    QTest::newRow("others") << QVector<int>{Deleted, Existing};
    QTest::newRow("to and fro") << QVector<int>{Existing, Any, Deleted, Existing, Any};
}

void TestSidePanel::folders()
{
    QFETCH(QVector<int>, modes);
    for (int mode : modes)
        filter(mode);
    QCOMPARE(namesBelow(m_card), namesBelow(m_tree->placeRoot()));
    m_tree->add({found(5, -1, "LATE"), found(51, 5, "f.jpg"), found(52, 5, "g.jpg", true)});
    m_panel->refresh();
    QCOMPARE(namesBelow(m_card), namesBelow(m_tree->placeRoot()));
}

void TestSidePanel::unfoldedAndCurrentFolderStay()
{
    auto *rows = m_panel->findChild<QTreeWidget *>();
    auto *inside = static_cast<ItemRecord *>(m_tree->placeRoot()->childFolders[0]->childFolders[1]);
    QCOMPARE(inside->name, QStringLiteral("101CARD"));
    m_panel->follow(inside);
    connect(m_panel.get(), &SidePanel::picked, this, [this] { ++m_picked; });
    filter(ItemFilter::DeletedOnly);
    QCOMPARE(rows->currentItem()->text(0), inside->name);
    QVERIFY(rows->currentItem()->parent()->isExpanded());
    QCOMPARE(namesBelow(rows->currentItem()->parent()), QStringList{"101CARD"});
    QCOMPARE(m_picked, 0);
}

QTEST_MAIN(TestSidePanel)
#include "tst_sidepanel.moc"
