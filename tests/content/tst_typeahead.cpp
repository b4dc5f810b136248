#include "content/scantableview.h"
#include "model/scandatamodel.h"
#include "support/datarow.h"
#include "support/recordtree.h"

#include <QApplication>
#include <QRandomGenerator>
#include <QTest>

namespace {

QString randomName(QRandomGenerator &random, const QString &alphabet, int longest)
{
    QString name;
    for (int size = 1 + random.bounded(longest); size > 0; --size)
        name += alphabet.at(random.bounded(alphabet.size()));
    return name;
}

/// The next letter has nothing to do with those before.
void startAnew()
{
    QApplication::setKeyboardInputInterval(0);
    QTest::qSleep(2);
}

} // namespace

class TestTypeAhead : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QApplication::setKeyboardInputInterval(400); }
    void modelFindsWhatReadingFinds_data()
    {
        addRows<QString>("alphabet",
                         {{"letters of both cases", "aAbB"},
                          {"digits", "IMG_0123456789"},
                          {"longer when lowered", QString::fromUtf8("İiIı̇ßẞsS")},
                          {"many scripts", QString::fromUtf8("ÄäéΩωςσЖж文件ü9")},
                          {"beyond the basic plane", QString::fromUtf8("😀𐐀𐐨𞤀𞤢z")}});
    }
    void modelFindsWhatReadingFinds();
    void listIsSearchedByName();
};

void TestTypeAhead::modelFindsWhatReadingFinds()
{
    QFETCH(QString, alphabet);
    QRandomGenerator random(3);
    RecordTree tree;
    for (int i = 0; i < 300; ++i)
        tree.addFile(randomName(random, alphabet, 14));
    ScanDataModel model;
    model.openFolder(&tree.root);
    tree.addFiles(20, QStringLiteral("b%1"));
    model.openFolder(&tree.root); // grown
    for (int i = 5; i < 300; i += 9)
        tree.kill(tree.root.childFiles.at(i));

    const Qt::MatchFlags flags = Qt::MatchStartsWith | Qt::MatchWrap;
    for (const bool sorted : {false, true}) {
        if (sorted)
            model.sort(ScanDataModel::SizeColumn, Qt::DescendingOrder);
        for (int i = 0; i < 500; ++i) {
            const QModelIndex start = model.index(random.bounded(model.rowCount()), 0);
            if (!start.isValid())
                continue;
            // often the beginning of a name that is there, in whatever case
            const TreeItemData *some = model.itemAt(random.bounded(model.rowCount()));
            QString text = some && random.bounded(2) > 0
                ? some->name.left(1 + random.bounded(some->name.size()))
                : randomName(random, alphabet, 3);
            if (random.bounded(2) > 0)
                text = text.toUpper();
            QCOMPARE(model.match(start, Qt::DisplayRole, text, 1, flags),
                     model.QAbstractItemModel::match(start, Qt::DisplayRole, text, 1, flags));
        }
    }
}

void TestTypeAhead::listIsSearchedByName()
{
    RecordTree tree;
    for (const char *name : {"zulu", "1998.jpg", "echo"})
        tree.addFile(QLatin1String(name));
    ScanDataModel model;
    model.openFolder(&tree.root);
    ScanTableView table;
    table.setModel(&model);
    table.setCurrentIndex(model.index(0, ScanDataModel::SizeColumn));
    QTest::keyClick(&table, Qt::Key_1);
    startAnew();
    QCOMPARE(table.currentIndex().row(), 1);
    QTest::keyClick(&table, Qt::Key_E);
    QCOMPARE(table.currentIndex().row(), 2);
}

QTEST_MAIN(TestTypeAhead)
#include "tst_typeahead.moc"
