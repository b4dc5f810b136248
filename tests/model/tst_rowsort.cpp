#include "model/itemtext.h"
#include "model/rowsort.h"
#include "model/scanitemrole.h"
#include "platform/item/treeitemdata.h"
#include "support/datarow.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <limits>
#include <memory>
#include <numeric>

namespace {

using Records = std::vector<const TreeItemData *>;

/// The order as anyone would write it down.
bool isLess(const TreeItemData *a, const TreeItemData *b, int role)
{
    static const TreeItemData none;
    const TreeItemData &left = a ? *a : none;
    const TreeItemData &right = b ? *b : none;
    switch (role) {
    case PathTextRole:
        return left.path < right.path;
    case NameRole:
        return left.name.toLower() < right.name.toLower();
    case KindRole:
        return left.extension.toLower() < right.extension.toLower();
    case ModifiedTimeRole:
        return left.modifiedTime < right.modifiedTime;
    case SizeRole:
        return ItemText::bytes(left) < ItemText::bytes(right);
    default:
        return false;
    }
}

RowSort::Order plainlySorted(const Records &records, int role, Qt::SortOrder order)
{
    RowSort::Order rows(records.size());
    std::iota(rows.begin(), rows.end(), 0u);
    std::stable_sort(rows.begin(), rows.end(), [&](quint32 a, quint32 b) {
        return order == Qt::AscendingOrder ? isLess(records[a], records[b], role)
                                           : isLess(records[b], records[a], role);
    });
    return rows;
}

QString randomText(QRandomGenerator &random, const QString &alphabet, int maxSize)
{
    QString text;
    for (int size = random.bounded(maxSize + 1); size > 0; --size)
        text += alphabet.at(random.bounded(alphabet.size()));
    return text;
}

qint64 randomNumber(QRandomGenerator &random)
{
    switch (random.bounded(5)) {
    case 0:
        return random.bounded(4);
    case 4:
        return random.bounded(2) ? std::numeric_limits<qint64>::min()
                                 : std::numeric_limits<qint64>::max();
    case 1:
        return -qint64(random.generate());
    case 2:
        return qint64(random.generate64());
    default:
        return random.generate();
    }
}

class Sample
{
public:
    Sample(int size, const QString &prefix, const QString &alphabet, int maxSize)
        : m_random(quint32(size + maxSize))
    {
        for (int i = 0; i < size; ++i) {
            auto record = std::make_unique<TreeItemData>();
            record->name = prefix + randomText(m_random, alphabet, maxSize);
            record->path = prefix + randomText(m_random, alphabet, maxSize);
            record->extension = randomText(m_random, alphabet, 2);
            record->kind = m_random.bounded(3);
            record->fileSize = randomNumber(m_random);
            record->folderSize = randomNumber(m_random);
            record->modifiedTime = randomNumber(m_random);
            // a dead one has no text, and then all would share no beginning
            const bool isDead = prefix.isEmpty() && m_random.bounded(50) == 0;
            records.push_back(isDead ? nullptr : record.get());
            owned.push_back(std::move(record));
        }
    }

    Records records;
    std::vector<std::unique_ptr<TreeItemData>> owned;

private:
    QRandomGenerator m_random;
};

const int s_roles[] = {NameRole, SizeRole, KindRole, ModifiedTimeRole, PathTextRole, FileIdRole};

} // namespace

class tst_RowSort : public QObject
{
    Q_OBJECT

private slots:
    void sameAsPlain_data();
    void sameAsPlain();
    void knownOrderChangesNothing_data();
    void knownOrderChangesNothing();
};

void tst_RowSort::sameAsPlain_data()
{
    addColumns<int, QString, QString, int>({"size", "prefix", "alphabet", "maxSize"});

    const QString ascii = QStringLiteral("abcXYZ019_-. ~@[`{");
    QTest::newRow("none") << 0 << "" << ascii << 8;
    QTest::newRow("one") << 1 << "" << ascii << 8;
    QTest::newRow("two") << 2 << "" << ascii << 8;
    QTest::newRow("letters of both cases") << 3000 << "" << ascii << 8;
    QTest::newRow("long texts") << 3000 << "" << QStringLiteral("aB") << 40;
    QTest::newRow("a beginning shared by all") << 3000 << "/Volume/DCIM/100CANON" << ascii << 20;
    QTest::newRow("texts that only grow") << 3000 << "" << QStringLiteral("a") << 40;
    QTest::newRow("zero characters") << 3000 << "" << (QString(QChar(0)) + QLatin1Char('a')) << 20;
    QTest::newRow("longer when lowered") << 3000 << "" << QString::fromUtf8("İiIı̇ßẞ") << 20;
    QTest::newRow("beyond the basic plane")
        << 3000 << "" << (QString::fromUtf8("😀𐐀z") + QChar(0xFFFD) + QChar(0xE000)) << 20;
    QTest::newRow("where the encoding changes") << 3000 << "" << [] {
        QString units;
        for (const ushort unit : {0x7F, 0x80, 0x7FF, 0x800, 0xFFF, 0x1000, 0x2FC0, 0x3000, 0xD7FF,
                                  0xD800, 0xDFFF, 0xE000, 0xFFFF})
            units += QChar(unit);
        return units;
    }() << 6;
    QTest::newRow("many scripts") << 3000 << "" << QString::fromUtf8("ÄäéΩωЖж文件ü9") << 20;
    // few texts for so many records: these are compared once each
    QTest::newRow("texts that many share") << 9000 << "/Volume/" << QStringLiteral("aAb") << 4;
    QTest::newRow("shared, longer when lowered") << 9000 << "" << QString::fromUtf8("İiIı̇ẞ") << 3;
    QTest::newRow("enough for two threads") << 20001 << "" << ascii << 12;
    QTest::newRow("two threads, a shared beginning") << 20001 << "/Volume/DCIM/IMG_" << ascii << 12;
}

void tst_RowSort::sameAsPlain()
{
    QFETCH(int, size);
    QFETCH(QString, prefix);
    QFETCH(QString, alphabet);
    QFETCH(int, maxSize);
    const Sample sample(size, prefix, alphabet, maxSize);
    for (const int role : s_roles) {
        for (const auto order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
            QVERIFY2(RowSort::sorted(sample.records, role, order)
                         == plainlySorted(sample.records, role, order),
                     qPrintable(QStringLiteral("role %1, order %2").arg(role).arg(order)));
        }
    }
}

void tst_RowSort::knownOrderChangesNothing_data()
{
    addColumns<int, bool>({"knownSize", "changed"});
    QTest::newRow("some new") << 1900 << false;
    QTest::newRow("nearly all new") << 3 << false;
    QTest::newRow("none new") << 2000 << false;
    QTest::newRow("changed since") << 1900 << true;
}

void tst_RowSort::knownOrderChangesNothing()
{
    QFETCH(int, knownSize);
    QFETCH(bool, changed);
    const Sample sample(2000, QString(), QStringLiteral("abC"), 6);
    for (const int role : s_roles) {
        for (const auto order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
            const Records old(sample.records.begin(), sample.records.begin() + knownSize);
            const RowSort::Order known = RowSort::sorted(old, role, order);
            if (changed) {
                sample.owned[7]->name += QLatin1Char('x');
                sample.owned[7]->fileSize = sample.owned[7]->modifiedTime = 17;
            }
            QVERIFY(RowSort::sorted(sample.records, role, order, known)
                    == plainlySorted(sample.records, role, order));
        }
    }
}

QTEST_GUILESS_MAIN(tst_RowSort)
#include "tst_rowsort.moc"
