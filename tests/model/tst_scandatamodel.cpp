#include "model/scandatamodel.h"
#include "support/datarow.h"

#include <QAbstractItemModelTester>
#include <QIcon>
#include <QIdentityProxyModel>
#include <QItemSelectionModel>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <memory>
#include <new>

namespace {

constexpr int FolderKind = 1;
constexpr int FileKind = 2;

/// The model says the same of every parent, as its contract has it; the tester wants a flat model.
class FlatProxy : public QIdentityProxyModel
{
public:
    using QIdentityProxyModel::QIdentityProxyModel;
    int rowCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : QIdentityProxyModel::rowCount(parent);
    }
    bool hasChildren(const QModelIndex &parent) const override { return rowCount(parent) > 0; }
};

/// A folder of a host whose records die, and whose new ones take the places in memory of dead ones.
class Host
{
public:
    ~Host()
    {
        for (TreeItemData *record : qAsConst(m_alive))
            record->~TreeItemData();
    }

    TreeItemData *make(int kind)
    {
        if (m_free.empty())
            m_slots.push_back(std::make_unique<Slot>());
        void *place = m_free.empty() ? m_slots.back().get() : m_free.back();
        if (!m_free.empty())
            m_free.pop_back();
        auto *record = new (place) TreeItemData;
        record->kind = kind;
        record->fileId = m_nextId++;
        record->secondaryId = 10 * record->fileId;
        record->name = QString::number(m_random.bounded(40), 16).toUpper();
        record->fileSize = m_random.bounded(30);
        record->parent = &root;
        m_alive.append(record);
        return record;
    }
    TreeItemData *addFile()
    {
        root.childFiles.append(make(FileKind));
        return root.childFiles.constLast();
    }
    TreeItemData *addFolder()
    {
        root.childFolders.append(make(FolderKind));
        return root.childFolders.constLast();
    }
    void destroy(TreeItemData *record)
    {
        root.childFiles.removeAll(record);
        root.childFolders.removeAll(record);
        kill(record);
    }
    /// Without telling anyone: the lists still hold the pointer.
    void kill(TreeItemData *record)
    {
        m_alive.removeAll(record);
        record->~TreeItemData();
        m_free.push_back(record);
    }
    QList<TreeItemData *> children() const { return root.childFolders + root.childFiles; }
    const QList<TreeItemData *> &alive() const { return m_alive; }
    QRandomGenerator &random() { return m_random; }

    TreeItemData root;

private:
    struct alignas(TreeItemData) Slot
    {
        unsigned char bytes[sizeof(TreeItemData)];
    };
    QRandomGenerator m_random{7};
    qint64 m_nextId = 1;
    QList<TreeItemData *> m_alive;
    std::vector<std::unique_ptr<Slot>> m_slots;
    std::vector<void *> m_free;
};

QVector<qint64> idsOf(const ScanDataModel &model)
{
    QVector<qint64> ids;
    for (int row = 0; row < model.rowCount(); ++row) {
        const TreeItemData *const item = model.itemAt(row);
        ids.append(item ? item->fileId : -1);
    }
    return ids;
}

} // namespace

class tst_ScanDataModel : public QObject
{
    Q_OBJECT

private slots:
    void opening_data();
    void opening();
    void rootTypeOfTheTop();
    void keepsTheContract();
    void growthIsLikeOpeningAnew();
    void manyRowsAreLikeOpenedAnew_data()
    {
        addRows<bool>("sorted", {{"in the host's order", false}, {"sorted", true}});
    }
    void manyRowsAreLikeOpenedAnew();
    void deadRecordSaysNothing();
    void implausibleChildren();
    void roles();
    void setDataWritesCheckStatesOnly();
    void checkAllAnnouncesOneRange();
    void clearSortKeepsTheRows();
    void rowsOfIds_data();
    void rowsOfIds();
    void idsAreFoundAsByAScan();
    void rowsFollowTheirRecords();
    void decoration();
    void folderDiesWhileOpened();
};

void tst_ScanDataModel::opening_data()
{
    addColumns<qint64, qint64, int>({"itemCount", "extraCount", "rows"});
    QTest::newRow("known count") << qint64(1) << qint64(0) << 1;
    QTest::newRow("count 0") << qint64(0) << qint64(0) << 1;
    QTest::newRow("nothing known") << qint64(-1) << qint64(0) << 0;
    QTest::newRow("second count known") << qint64(-1) << qint64(1) << 1;
}

void tst_ScanDataModel::opening()
{
    QFETCH(qint64, itemCount);
    QFETCH(qint64, extraCount);
    Host host;
    host.addFile();
    host.root.itemCount = itemCount;
    host.root.extraCount = extraCount;
    ScanDataModel model;
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    model.openFolder(&host.root);
    QTEST(model.rowCount(), "rows");
    QCOMPARE(resets.count(), model.rowCount());
    model.openFolder(nullptr);
    QTEST(model.rowCount(), "rows");
}

void tst_ScanDataModel::rootTypeOfTheTop()
{
    TreeItemData top;
    top.rootType = 3;
    Host host;
    host.root.parent = &top;
    host.root.rootType = 9;
    host.addFile()->path = QStringLiteral("DCIM");
    ScanDataModel model;
    model.openFolder(&host.root);
    QCOMPARE(model.rootType(), 3);
    QCOMPARE(model.index(0, ScanDataModel::PathColumn).data().toString(),
             model.index(0, 0).data(PathTextRole).toString());
    QCOMPARE(model.index(0, 0).data(PathTextRole).toString(), QStringLiteral("File lost location"));

    top.parent = &host.root; // a ring
    model.openFolder(&host.root);
    QCOMPARE(model.rowCount(), 1);
}

void tst_ScanDataModel::keepsTheContract()
{
    Host host;
    ScanDataModel model;
    FlatProxy proxy;
    proxy.setSourceModel(&model);
    const QAbstractItemModelTester tester(&proxy,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    for (int i = 0; i < 30; ++i) {
        host.addFile();
        model.openFolder(&host.root);
        model.sort(i % 5, i % 2 ? Qt::AscendingOrder : Qt::DescendingOrder);
        model.setAllCheckStates(i % 3);
        model.setData(model.index(i / 2, 0), 1, Qt::CheckStateRole);
    }
    model.clear();
    QCOMPARE(model.rowCount(), 0);
}

void tst_ScanDataModel::growthIsLikeOpeningAnew()
{
    Host host;
    ScanDataModel model;
    QRandomGenerator &random = host.random();
    for (int step = 0; step < 1500; ++step) {
        const QList<TreeItemData *> &alive = host.alive();
        bool hasOnlyGrown = true;
        switch (random.bounded(14)) {
        case 0:
            host.addFolder();
            break;
        case 1:
            hasOnlyGrown = false;
            if (alive.size() > 60)
                host.destroy(alive.at(random.bounded(alive.size())));
            break;
        case 2: // dies, and the newcomer is at its address and in its place
            hasOnlyGrown = false;
            if (!alive.isEmpty()) {
                TreeItemData *const old = alive.at(random.bounded(alive.size()));
                const int kind = old->kind;
                host.kill(old);
                QCOMPARE(host.make(kind), old);
            }
            break;
        case 3:
            model.sort(random.bounded(5),
                       random.bounded(2) ? Qt::AscendingOrder : Qt::DescendingOrder);
            break;
        case 4:
            model.clearSort();
            break;
        case 5:
            host.root.childFiles.append(nullptr);
            break;
        case 6: // what rows are sorted by changes while they are listed
            if (!alive.isEmpty()) {
                TreeItemData *const changed = alive.at(random.bounded(alive.size()));
                changed->fileSize = changed->folderSize = changed->modifiedTime = random.bounded(
                    30);
                changed->name = changed->path = changed->extension = QString::number(
                    random.bounded(40), 16);
            }
            break;
        case 7: // nothing
            break;
        default:
            for (int count = random.bounded(4); count > 0; --count)
                host.addFile();
        }

        const QVector<qint64> before = idsOf(model);
        model.openFolder(&host.root);
        const QVector<qint64> after = idsOf(model);

        ScanDataModel fresh;
        if (model.isSorted())
            fresh.sort(model.sortRole() == SizeRole               ? ScanDataModel::SizeColumn
                           : model.sortRole() == KindRole         ? ScanDataModel::TypeColumn
                           : model.sortRole() == ModifiedTimeRole ? ScanDataModel::DateColumn
                           : model.sortRole() == PathTextRole     ? ScanDataModel::PathColumn
                                                                  : ScanDataModel::NameColumn,
                       model.sortOrder());
        fresh.openFolder(&host.root);
        QCOMPARE(after, idsOf(fresh));
        QCOMPARE(fresh.unchangedPrefix(), 0);
        const int prefix = model.unchangedPrefix();
        QVERIFY(prefix <= before.size() && prefix <= after.size());
        QVERIFY(std::equal(after.begin(), after.begin() + prefix, before.begin()));
        if (hasOnlyGrown && prefix < before.size() && prefix < after.size())
            QVERIFY(before.at(prefix) != after.at(prefix) || after.at(prefix) < 0);
    }
    QVERIFY(model.rowCount() > 100);
}

/// So many that two threads look at them.
void tst_ScanDataModel::manyRowsAreLikeOpenedAnew()
{
    QFETCH(bool, sorted);
    constexpr int Many = 150'000;
    Host host;
    ScanDataModel model;
    const auto opensAsAnew = [&] {
        const QVector<qint64> before = idsOf(model);
        ScanDataModel fresh;
        for (ScanDataModel *each : {&model, &fresh}) {
            if (sorted && !each->isSorted())
                each->sort(ScanDataModel::SizeColumn, Qt::DescendingOrder);
            each->openFolder(&host.root);
        }
        const QVector<qint64> after = idsOf(model);
        const int same = model.unchangedPrefix();
        return after == idsOf(fresh) && same <= before.size()
            && std::equal(before.begin(), before.begin() + same, after.begin());
    };
    QList<TreeItemData *> &files = host.root.childFiles;
    for (int update = 0; update < 2; ++update) {
        for (int i = 0; i < Many; ++i)
            host.addFile();
        QVERIFY(opensAsAnew());
        for (const int place : {Many / 3, Many - 5}) {
            host.destroy(files.at(place));
            TreeItemData *const old = files.at(place + 2);
            host.kill(old);
            QCOMPARE(host.make(FileKind), old); // another one at its address
        }
    }
    QVERIFY(opensAsAnew());
    QVERIFY(opensAsAnew()); // the same again
    QCOMPARE(model.unchangedPrefix(), files.size());
    files.at(Many + 7)->fileSize = 100; // and again, but for a key that no address tells of
    QVERIFY(opensAsAnew());
    const QList<TreeItemData *> all = files;
    for (const bool remembered : {false, true}) {
        for (const int each : {2, 1}) { // another place with half of them, and back
            TreeItemData *const stays = all.at(Many);
            const int row = model.rowOf(stays);
            if (remembered)
                model.rememberRows();
            files.clear();
            for (int i = 0; i < all.size(); i += each)
                files.append(all.at(i));
            QVERIFY(opensAsAnew());
            const int now = model.rowOf(stays);
            QCOMPARE(model.itemAt(now), stays);
            if (remembered)
                QCOMPARE(model.rowsNow({{row, row}}), EarlierRows::Runs({{now, now}}));
        }
    }
    model.setAllCheckStates(Qt::Checked);
    QVERIFY(std::all_of(files.begin(), files.end(),
                        [](const TreeItemData *file) { return file->checkState == Qt::Checked; }));
}

void tst_ScanDataModel::deadRecordSaysNothing()
{
    Host host;
    host.addFile();
    TreeItemData *const doomed = host.addFile();
    host.addFile();
    ScanDataModel model;
    model.openFolder(&host.root);
    const QModelIndex held = model.index(1, 0);
    const QPersistentModelIndex persistent = held;
    host.kill(doomed);

    QCOMPARE(model.rowCount(), 3);
    QVERIFY(!model.index(1, 0).isValid());
    QVERIFY(!model.itemAt(1));
    for (int role = 0; role <= CountRole; ++role)
        QVERIFY(!held.data(role).isValid());
    QVERIFY(!model.setData(held, Qt::Checked, Qt::CheckStateRole));
    model.setAllCheckStates(Qt::Checked);
    model.sort(ScanDataModel::NameColumn);
    QVERIFY(!model.itemAt(persistent.row()));
}

void tst_ScanDataModel::implausibleChildren()
{
    Host host;
    const quintptr values[] = {0,
                               8,
                               0xFFFF,
                               ~quintptr(0) - 8,
                               quintptr(0xCDCDCDCDCDCDCDCDull),
                               quintptr(0xDDDDDDDDDDDDDDDDull)};
    for (const quintptr value : values)
        host.root.childFolders.append(reinterpret_cast<TreeItemData *>(value));
    host.addFile();
    ScanDataModel model;
    model.openFolder(&host.root);
    model.sort(ScanDataModel::SizeColumn, Qt::DescendingOrder);
    model.openFolder(&host.root);
    QCOMPARE(model.rowCount(), 7);
    int living = 0;
    model.visitRows(0, 6, [&living](const TreeItemData &) { ++living; });
    QCOMPARE(living, 1);
    model.openFolder(reinterpret_cast<TreeItemData *>(quintptr(0xDDDDDDDDDDDDDDDDull)));
    QCOMPARE(model.rowCount(), 7);
}

void tst_ScanDataModel::roles()
{
    Host host;
    TreeItemData *const folder = host.addFolder();
    folder->folderSize = 7000;
    folder->fileSize = 1;
    folder->itemCount = 12;
    folder->modifiedTime = 1700000000;
    folder->checkState = Qt::PartiallyChecked;
    ScanDataModel model;
    model.openFolder(&host.root);
    const auto value = [&](int column, int role) { return model.index(0, column).data(role); };
    QCOMPARE(value(0, Qt::DisplayRole), QVariant(folder->name));
    QCOMPARE(value(2, Qt::DisplayRole), QVariant(QStringLiteral("folder")));
    QCOMPARE(value(1, SizeRole), QVariant(qint64(7000)));
    QCOMPARE(value(0, CountRole), QVariant(qint64(12)));
    QCOMPARE(value(4, ModifiedTimeRole), QVariant(qint64(1700000000)));
    QCOMPARE(value(0, KindRole), QVariant(1));
    QCOMPARE(value(0, FileIdRole), QVariant(folder->fileId));
    QCOMPARE(value(0, SecondaryIdRole), QVariant(folder->secondaryId));
    QCOMPARE(value(3, Qt::CheckStateRole), QVariant(1));
    QCOMPARE(value(1, Qt::TextAlignmentRole), QVariant(130));
    QCOMPARE(value(0, Qt::TextAlignmentRole), QVariant(129));
    QVERIFY(!value(0, Qt::ToolTipRole).isValid());
    QVERIFY(!value(0, Qt::UserRole + 8).isValid());
    QCOMPARE(model.flags(model.index(0, 0)), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    QCOMPARE(model.flags({}), Qt::NoItemFlags);
    QCOMPARE(model.headerData(3, Qt::Horizontal, Qt::DisplayRole),
             QVariant(QStringLiteral("date_modified")));
    QVERIFY(!model.headerData(5, Qt::Horizontal, Qt::DisplayRole).isValid());
    QVERIFY(!model.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
}

void tst_ScanDataModel::setDataWritesCheckStatesOnly()
{
    Host host;
    TreeItemData *const file = host.addFile();
    ScanDataModel model;
    model.openFolder(&host.root);
    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    const QModelIndex index = model.index(0, 0);
    QVERIFY(!model.setData(index, 2, Qt::DisplayRole));
    QVERIFY(!model.setData(index, QStringLiteral("yes"), Qt::CheckStateRole));
    QVERIFY(!model.setData({}, 2, Qt::CheckStateRole));
    QCOMPARE(file->checkState, 0);
    QCOMPARE(changes.count(), 0);
    QVERIFY(!model.setData(index, 2, Qt::CheckStateRole)); // written all the same
    QCOMPARE(file->checkState, 2);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).toModelIndex(), index);
}

void tst_ScanDataModel::checkAllAnnouncesOneRange()
{
    Host host;
    for (int i = 0; i < 4; ++i)
        host.addFile();
    ScanDataModel model;
    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    model.setAllCheckStates(Qt::Checked);
    QCOMPARE(changes.count(), 0);
    model.openFolder(&host.root);
    host.kill(host.root.childFiles.takeFirst());
    host.kill(host.root.childFiles.takeLast());
    model.setAllCheckStates(Qt::Checked);
    QCOMPARE(changes.count(), 1);
    const auto first = changes.at(0).at(0).toModelIndex();
    const auto last = changes.at(0).at(1).toModelIndex();
    QVERIFY(first.isValid() && last.isValid()); // though the records at both ends are dead
    QCOMPARE(last.row() - first.row(), 3);
    QCOMPARE(last.column() - first.column(), 4);
    QCOMPARE(host.root.childFiles.constFirst()->checkState, 2);
}

void tst_ScanDataModel::clearSortKeepsTheRows()
{
    Host host;
    for (int i = 0; i < 30; ++i)
        host.addFile();
    ScanDataModel model;
    model.openFolder(&host.root);
    const QVector<qint64> asGiven = idsOf(model);
    model.sort(ScanDataModel::NameColumn);
    const QVector<qint64> sorted = idsOf(model);
    QVERIFY(sorted != asGiven);
    model.clearSort();
    QCOMPARE(idsOf(model), sorted);
    model.openFolder(&host.root);
    QCOMPARE(idsOf(model), asGiven);
}

void tst_ScanDataModel::rowsOfIds_data()
{
    addColumns<int, bool>({"rows", "sorted"});
    QTest::newRow("few") << 30 << false;
    QTest::newRow("few, sorted") << 30 << true;
    QTest::newRow("many") << 120000 << false; // two threads look
    QTest::newRow("many, sorted") << 120000 << true;
}

void tst_ScanDataModel::rowsOfIds()
{
    QFETCH(int, rows);
    QFETCH(bool, sorted);
    Host host;
    for (int i = 0; i < rows; ++i)
        host.addFile();
    ScanDataModel model;
    model.openFolder(&host.root);
    if (sorted)
        model.sort(ScanDataModel::NameColumn, Qt::DescendingOrder);
    for (const int row : {0, 4, rows / 2, rows - 1}) {
        QCOMPARE(model.rowOfFileId(model.itemAt(row)->fileId), row);
        QCOMPARE(model.rowOfSecondaryId(model.itemAt(row)->secondaryId), row);
        QCOMPARE(model.rowOf(model.itemAt(row)), row);
    }
    QCOMPARE(model.rowOfFileId(-5), -1);
    model.itemAt(3)->fileId = model.itemAt(rows - 2)->fileId = -7;
    QCOMPARE(model.rowOfFileId(-7), 3); // the upper one
}

/// Ids that several records have, records that die or get another id, growth and sorts.
void tst_ScanDataModel::idsAreFoundAsByAScan()
{
    Host host;
    ScanDataModel model;
    QRandomGenerator &random = host.random();
    const auto scan = [&model](int role, qint64 id) {
        for (int row = 0; row < model.rowCount(); ++row) {
            const QVariant value = model.index(row, 0).data(role);
            if (value.isValid() && value.toLongLong() == id)
                return row;
        }
        return -1;
    };
    constexpr qint64 FirstLateId = 1'000'000; // no record is listed with one
    qint64 lateId = FirstLateId;
    for (int step = 0; step < 600; ++step) {
        const QList<TreeItemData *> alive = host.alive();
        TreeItemData *const any = alive.isEmpty() ? nullptr
                                                  : alive.at(random.bounded(alive.size()));
        switch (random.bounded(9)) {
        case 0:
            host.addFolder()->secondaryId = random.bounded(20);
            break;
        case 1:
            if (any)
                host.destroy(any);
            break;
        case 2:
            if (any) {
                host.kill(any);
                host.make(FileKind); // not listed under its own id before the next time
            }
            break;
        case 3:
            if (any) // after it was listed
                (random.bounded(2) ? any->fileId : any->secondaryId) = ++lateId;
            break;
        case 4:
            model.sort(random.bounded(3), Qt::SortOrder(random.bounded(2)));
            break;
        case 5:
            model.clearSort();
            break;
        default:
            for (int i = 0; i < 3; ++i) {
                TreeItemData *const file = host.addFile();
                file->secondaryId = random.bounded(20);
                if (any && any->fileId < FirstLateId && random.bounded(4) == 0)
                    file->fileId = any->fileId;
            }
        }
        if (random.bounded(3) > 0)
            model.openFolder(&host.root);
        for (const qint64 id : {any && host.alive().contains(any) ? any->fileId : lateId, lateId})
            QCOMPARE(model.rowOfFileId(id), scan(FileIdRole, id));
        for (const qint64 id : {qint64(random.bounded(20)), lateId})
            QCOMPARE(model.rowOfSecondaryId(id), scan(SecondaryIdRole, id));
        if (const TreeItemData *listed = model.itemAt(random.bounded(model.rowCount() + 1)))
            QCOMPARE(model.itemAt(model.rowOf(listed)), listed);
    }
    QVERIFY(model.rowCount() > 50);
}

/// Whatever the host and the user do, remembered rows lead to the records that they showed.
void tst_ScanDataModel::rowsFollowTheirRecords()
{
    QRandomGenerator random(5);
    Host host;
    ScanDataModel model;
    for (int i = 0; i < 20; ++i)
        host.addFile();
    model.openFolder(&host.root);
    const auto anyOf = [&random](const QList<TreeItemData *> &list) {
        return list.isEmpty() ? nullptr : list.at(random.bounded(list.size()));
    };
    for (int step = 0; step < 3000; ++step) {
        EarlierRows::Runs before;
        QVector<QPointer<TreeItemData>> asked;
        for (int row = random.bounded(3); row < model.rowCount(); row += 1 + random.bounded(6)) {
            const int last = std::min(row + random.bounded(5), model.rowCount() - 1);
            before.append({row, last});
            for (; row <= last; ++row)
                asked.append(model.itemAt(row));
        }
        model.rememberRows();
        switch (random.bounded(8)) {
        case 0:
            host.addFolder();
            break;
        case 1:
            host.root.childFiles.insert(random.bounded(host.root.childFiles.size() + 1),
                                        host.make(FileKind));
            break;
        case 2:
            if (TreeItemData *record = anyOf(host.children()))
                host.destroy(record);
            break;
        case 3: // another record where one has died, maybe at its address
            if (TreeItemData *record = anyOf(host.root.childFiles)) {
                const int at = host.root.childFiles.indexOf(record);
                host.kill(record);
                host.root.childFiles[at] = host.make(FileKind);
            }
            break;
        case 4:
            std::reverse(host.root.childFiles.begin(), host.root.childFiles.end());
            break;
        case 5:
            model.sort(random.bounded(3), Qt::SortOrder(random.bounded(2)));
            break;
        case 6:
            model.clearSort();
            break;
        default:
            for (int i = 0; i < 3; ++i)
                host.addFile();
        }
        before = model.rowsNow(before); // after a sort; else they are the same still
        model.rememberRows();
        model.openFolder(&host.root);

        QVector<TreeItemData *> expected;
        for (const auto &record : qAsConst(asked)) {
            if (record && model.rowOf(record) >= 0)
                expected.append(record);
        }
        QVector<TreeItemData *> found;
        int free = 0; // the first row that no run has taken
        const EarlierRows::Runs now = model.rowsNow(before);
        for (const auto &run : now) {
            QVERIFY(run.first >= free && run.second >= run.first);
            free = run.second + 1;
            for (int row = run.first; row <= run.second; ++row) {
                if (TreeItemData *record = model.itemAt(row))
                    found.append(record);
            }
        }
        std::sort(expected.begin(), expected.end());
        std::sort(found.begin(), found.end());
        QCOMPARE(found, expected);
        model.forgetRows();
    }
}

void tst_ScanDataModel::decoration()
{
    Host host;
    TreeItemData *const item = host.addFolder();
    ScanDataModel model;
    model.openFolder(&host.root);
    const auto icon = [&] { return model.index(0, 0).data(Qt::DecorationRole); };

    item->path = QStringLiteral("/no/such");
    item->name = QStringLiteral("folder");
    QVERIFY(icon().canConvert<QIcon>());
    QVERIFY(icon().value<QIcon>().isNull());
    const QFileInfo here(QCoreApplication::applicationFilePath());
    item->path = here.path();
    item->name = here.fileName();
    QVERIFY(icon().value<QIcon>().isNull());
    item->path = QFileInfo(here.path()).path().replace(QLatin1Char('/'), QLatin1Char('\\'));
    item->name = QFileInfo(here.path()).fileName();
    const QIcon folder = icon().value<QIcon>();
    QVERIFY(!folder.isNull());
    // a folder in the root of the disk is no server
    const QStringList top = QDir(QStringLiteral("/")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    item->path = QStringLiteral("\\");
    item->name = top.constFirst();
    QCOMPARE(icon().value<QIcon>().pixmap(64).toImage(), folder.pixmap(64).toImage());
}

void tst_ScanDataModel::folderDiesWhileOpened()
{
    ScanDataModel model;
    Host host;
    host.addFile();
    model.openFolder(&host.root);
    auto *const doomed = new TreeItemData;
    doomed->childFiles.append(host.root.childFiles.constFirst());
    connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, [doomed] { delete doomed; });
    model.openFolder(doomed);
    QCOMPARE(model.rowCount(), 0);
}

QTEST_MAIN(tst_ScanDataModel)
#include "tst_scandatamodel.moc"
