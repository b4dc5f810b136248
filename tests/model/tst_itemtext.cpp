#include "model/itemtext.h"
#include "model/recoverability.h"
#include "platform/item/treeitemdata.h"
#include "support/datarow.h"

#include <QTest>

class tst_ItemText : public QObject
{
    Q_OBJECT

private slots:
    void displayPath_data();
    void displayPath();
    void unknownValues();
    void typeOfKinds_data();
    void typeOfKinds();
    void displayName_data();
    void displayName();
    void recoverability_data();
    void recoverability();
};

void tst_ItemText::displayPath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("volumeRoot");
    QTest::addColumn<int>("rootType");
    QTest::addColumn<QString>("expected");

    addRow("drive letter without separator", "/Volume/DCIM/100", "E:", 0, "E:\\DCIM\\100");
    addRow("drive letter with separator", "/Volume/DCIM/100", "E:\\", 0, "E:\\DCIM\\100");
    addRow("slash as separator of the root", "DCIM", "E:/", 0, "E:/DCIM");
    addRow("complete path", "DCIM/100", "", 0, "DCIM\\100");
    addRow("leading separator", "/DCIM", "", 0, "DCIM");
    QTest::newRow("only one leading separator goes") << "//DCIM"
                                                     << "" << 0 << "\\DCIM";
    addRow("a complete path keeps its volume", "/Volume/DCIM", "", 0, "Volume\\DCIM");
    addRow("folder named Volume", "Volume", "E:", 0, "E:\\Volume");
    addRow("volume alone", "/Volume", "E:", 0, "E:\\");
    addRow("nothing known", "", "", 0, "--");
    addRow("lost location", "/Volume/DCIM", "E:", 3, "File lost location");
}

void tst_ItemText::displayPath()
{
    QFETCH(QString, path);
    QFETCH(QString, volumeRoot);
    QFETCH(int, rootType);
    TreeItemData item;
    item.path = path;
    item.volumeRoot = volumeRoot;
    QTEST(ItemText::displayPath(&item, rootType), "expected");
}

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
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("expected");
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
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("rootType");
    QTest::addColumn<QString>("expected");
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

void tst_ItemText::recoverability_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<bool>("hasThumbnail");
    QTest::addColumn<bool>("finished");
    QTest::addColumn<QString>("expected");
    QTest::newRow("photo, scanning") << 8 << false << false << "recoverability_assessing";
    QTest::newRow("photo, done") << 8 << false << true << "recoverability_medium";
    QTest::newRow("photo with a picture") << 8 << true << false << "recoverability_high";
    QTest::newRow("video, done") << 3 << false << true << "recoverability_medium";
    QTest::newRow("camera video, scanning") << 4 << false << false << "recoverability_assessing";
    QTest::newRow("document") << 5 << false << false << "recoverability_high";
}

void tst_ItemText::recoverability()
{
    QFETCH(int, category);
    QFETCH(bool, hasThumbnail);
    QFETCH(bool, finished);
    TreeItemData item;
    item.fileCategory = category;
    const Recoverability level = recoverabilityOf(&item, hasThumbnail, finished);
    QTEST(QString::fromLatin1(recoverabilityKey(level)), "expected");
    QVERIFY(recoverabilityOf(nullptr, hasThumbnail, finished) == Recoverability::High);
}

QTEST_MAIN(tst_ItemText)
#include "tst_itemtext.moc"
