#include "host/scan/filecategory.h"
#include "host/tree/itemdescription.h"
#include "host/tree/itemrecord.h"
#include "support/datarow.h"

#include <QDateTime>
#include <QLocale>
#include <QTest>

/// One photo of 5 MB from 17 May 2024, "IMG_0815.JPG", known to show a beach.
class TestItemDescription : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void matches_data();
    void matches();
    void folders();
    void monthsInTheUsersLanguage();

private:
    ItemRecord m_photo;
};

void TestItemDescription::init()
{
    m_photo.kind = ItemRecord::FileKind;
    m_photo.name = QStringLiteral("IMG_0815.JPG");
    m_photo.extension = QStringLiteral("JPG");
    m_photo.fileCategory = PhotoCategory;
    m_photo.fileSize = 5 * 1024 * 1024;
    m_photo.modifiedTime = QDateTime(QDate(2024, 5, 17), QTime(12, 0)).toSecsSinceEpoch();
    m_photo.aiScenes = QStringList{QStringLiteral("beach")};
}

void TestItemDescription::cleanup()
{
    QLocale::setDefault(QLocale::c());
}

void TestItemDescription::matches_data()
{
    addColumns<QString, bool>({"description", "matches"});
    const auto row = [](const char *description, bool matches) {
        QTest::newRow(description) << QString::fromLatin1(description) << matches;
    };
    row("photo", true);
    row("Photos", true);
    row("ph", false); // too short for a kind, and in no name
    row("video", false);
    row("jpg", true);
    row("2024", true);
    row("2023", false);
    row("may", true);
    row("june", false);
    row("photos from May 2024", true);
    row("photos from May 2023", false);
    row("photos, at the beach", true);
    row("mountain", false);
    row("5mb", true);
    row("4 MB", true);
    row("20mb", false);
    row("> 2 mb", true);
    row(">5mb", false);
    row("<5mb", false);
    row("photos < 10 MB", true);
    row("0815 beach", true);
    row("from the", false); // says nothing
    row("", false);
    row("999999999gb", false);
}

void TestItemDescription::matches()
{
    QFETCH(QString, description);
    QTEST(ItemDescription(description).matches(m_photo), "matches");
}

void TestItemDescription::folders()
{
    ItemRecord folder;
    folder.kind = ItemRecord::FolderKind;
    folder.name = QStringLiteral("Photo album");
    folder.modifiedTime = 0;
    QVERIFY(ItemDescription(QStringLiteral("album")).matches(folder));
    QVERIFY(!ItemDescription(QStringLiteral("archive")).matches(folder));
    QVERIFY(!ItemDescription(QStringLiteral("1970")).matches(folder)); // unknown date
    QVERIFY(!ItemDescription(QStringLiteral("<5mb")).matches(folder));
}

void TestItemDescription::monthsInTheUsersLanguage()
{
    QLocale::setDefault(QLocale(QLocale::German));
    QVERIFY(ItemDescription(QStringLiteral("Mai")).matches(m_photo));
    QVERIFY(ItemDescription(QStringLiteral("may")).matches(m_photo));
    QLocale::setDefault(QLocale(QLocale::Japanese));
    QVERIFY(ItemDescription(QStringLiteral("5月")).matches(m_photo));
    QVERIFY(!ItemDescription(QStringLiteral("6月")).matches(m_photo));
}

QTEST_MAIN(TestItemDescription)
#include "tst_item_description.moc"
