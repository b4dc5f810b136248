#include "model/itemtext.h"
#include "platform/item/treeitemdata.h"
#include "support/datarow.h"

#include <QTest>

class tst_ItemText : public QObject
{
    Q_OBJECT

private slots:
    void unknownValues();
    void typeOfKinds_data();
    void typeOfKinds();
    void displayName_data();
    void displayName();
};

void tst_ItemText::unknownValues()
{
    TreeItemData folder;
    folder.kind = 1;
    folder.fileSize = 5000; // not a folder's size
    QCOMPARE(ItemText::size(folder), QStringLiteral("--"));
    QCOMPARE(ItemText::size(-1), QStringLiteral("--"));
    QVERIFY(ItemText::size(1) != QLatin1String("--"));
    QCOMPARE(ItemText::modified(qint64(0)), QStringLiteral("--"));
    QVERIFY(ItemText::modified(qint64(1)) != QLatin1String("--"));
    QCOMPARE(ItemText::displayPath(nullptr, 0), QStringLiteral("--"));
    QCOMPARE(ItemText::displayPath(nullptr, 3), QStringLiteral("File lost location"));

    TreeItemData unplaced;
    unplaced.volumeRoot = QStringLiteral("E:");
    QVERIFY(ItemText::displayPath(&unplaced, 0).startsWith(QLatin1String("E:")));
}

void tst_ItemText::typeOfKinds_data()
{
    addColumns<int, QString, QString>({"kind", "extension", "expected"});
    addRow("folder with an extension", 1, "app", "folder");
    addRow("file", 2, "jpg", "JPG");
    addRow("file without extension", 2, "", "--");
    addRow("other node", 0, "", "--");
}

void tst_ItemText::typeOfKinds()
{
    QFETCH(int, kind);
    QFETCH(QString, extension);
    TreeItemData item;
    item.kind = kind;
    item.extension = extension;
    QTEST(ItemText::type(item), "expected");
}

void tst_ItemText::displayName_data()
{
    addColumns<QString, int, QString>({"name", "rootType", "expected"});
    QTest::newRow("category of the root wins") << "zenvo_photo" << 11 << "Video";
    QTest::newRow("root without a name of its own") << "DCIM" << 5 << "DCIM";
    QTest::newRow("category key") << "zenvo_photo" << 0 << "Photo";
    QTest::newRow("file that looks like a key") << "zenvo_holiday.jpg" << 0 << "zenvo_holiday.jpg";
}

void tst_ItemText::displayName()
{
    QFETCH(QString, name);
    QFETCH(int, rootType);
    TreeItemData item;
    item.name = name;
    item.rootType = rootType;
    QTEST(ItemText::displayName(item), "expected");
}

QTEST_MAIN(tst_ItemText)
#include "tst_itemtext.moc"
