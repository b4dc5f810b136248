#include "platform/item/treeitemdata.h"
#include "support/datarow.h"
#include "thumbnails/filetypeicons.h"

#include <QTest>

using FileTypeIcons::Size;

class tst_FileTypeIcons : public QObject
{
    Q_OBJECT

private slots:
    void families_data();
    void families();
    void everyFamilyHasItsPictures();
};

void tst_FileTypeIcons::families_data()
{
    addColumns<int, int, QString, QString>({"kind", "category", "extension", "expected"});
    addRow("folder", 1, 8, "jpg", "icon64_File_Folder");
    addRow("folder-like", 0, 0, "", "icon64_File_Folder");
    addRow("first category", 2, 2, "", "icon64_File_Audio");
    addRow("last category", 2, 10, "", "icon64_File_Archive");
    addRow("one past the last", 2, 11, "", "icon64_File_Default");
    addRow("photo", 2, 8, "jpg", "icon64_File_Photo");
    addRow("camera raw among photos", 2, 8, "cr2", "icon64_File_Raw");
    addRow("document of a known kind", 2, 5, "Docx", "icon64_File_Word");
    addRow("other document", 2, 5, "epub", "icon64_File_Document");
    addRow("known without category", 2, 0, "MP4", "icon64_File_Video");
    addRow("part of a known extension", 2, 0, "M", "icon64_File_Default");
    addRow("two extensions", 2, 0, "PDF TXT", "icon64_File_Default");
}

void tst_FileTypeIcons::families()
{
    QFETCH(int, kind);
    QFETCH(int, category);
    QFETCH(QString, extension);
    TreeItemData item;
    item.kind = kind;
    item.fileCategory = category;
    item.extension = extension;
    QTEST(FileTypeIcons::imageName(item, Size::Card), "expected");
    QVERIFY(!FileTypeIcons::icon(item, Size::Card).isNull());
}

void tst_FileTypeIcons::everyFamilyHasItsPictures()
{
    const QString extensions[] = {"mp3", "mp4", "mts", "doc", "xls", "ppt", "pdf",
                                  "txt", "eml", "db",  "jpg", "arw", "htm", "zip"};
    for (const Size size : {Size::List, Size::Card, Size::Pane}) {
        const QImage general = FileTypeIcons::generalIcon(size).toImage();
        QCOMPARE(general.width() / general.devicePixelRatio(), qreal(int(size)));
        for (const QString &extension : extensions) {
            TreeItemData item;
            item.kind = 2;
            item.extension = extension;
            const QImage icon = FileTypeIcons::icon(item, size).toImage();
            QVERIFY2(icon != general, qPrintable(FileTypeIcons::imageName(item, size)));
            QCOMPARE(icon.size(), general.size());
        }
    }
}

QTEST_MAIN(tst_FileTypeIcons)
#include "tst_filetypeicons.moc"
