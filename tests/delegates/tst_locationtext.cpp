#include "delegates/locationtext.h"

#include "platform/item/treeitemdata.h"
#include "support/datarow.h"

#include <QtTest>

#include <memory>
#include <vector>

namespace {

constexpr int Folder = 1;
constexpr int File = 2;
const QString Unknown = QStringLiteral("--");

} // namespace

class TestLocationText : public QObject
{
    Q_OBJECT

private slots:
    void ofOneItem_data();
    void ofOneItem();
    void throughParents_data();
    void throughParents();
    void ringOfParents();
};

void TestLocationText::ofOneItem_data()
{
    addColumns<int, QString, QString, bool, QString>(
        {"kind", "path", "volumeRoot", "placeholder", "expected"});

    const auto row = [](const char *name, int kind, const char *path, const char *volume,
                        bool placeholder, const QString &expected) {
        QTest::newRow(name) << kind << QString(path) << QString(volume) << placeholder << expected;
    };
    row("file with a path", File, "/Volume/DCIM", "E:", false, "E:\\DCIM");
    row("a complete path", File, "DCIM/100", "", false, "DCIM\\100");
    row("file of a volume", File, "", "E:\\", false, "E:\\");
    row("file from nowhere", File, "", "", false, Unknown);
    row("files have no placeholder", File, "/DCIM", "E:", true, "E:\\DCIM");
    row("folder with a path", Folder, "/DCIM", "E:", false, "E:\\DCIM");
    row("folder, placeholder", Folder, "/DCIM", "E:", true, Unknown);
    row("folder-like, placeholder", 0, "/DCIM", "E:", true, Unknown);
    row("folder of a volume only", Folder, "", "E:", false, Unknown);
    row("top of the medium", Folder, "/", "", false, Unknown);
}

void TestLocationText::ofOneItem()
{
    QFETCH(int, kind);
    QFETCH(QString, path);
    QFETCH(QString, volumeRoot);
    QFETCH(bool, placeholder);
    TreeItemData item;
    item.kind = kind;
    item.path = path;
    item.volumeRoot = volumeRoot;
    const QString text = LocationText::of(
        &item, placeholder ? LocationText::Folders::Placeholder : LocationText::Folders::Located);
    QTEST(text, "expected");
    QCOMPARE(LocationText::isKnown(text), text != Unknown);
}

void TestLocationText::throughParents_data()
{
    addColumns<QString, int, int, QString>(
        {"pathOfParent", "kindOfParent", "rootTypeOfParent", "expected"});

    QTest::newRow("names from the top down") << "/DCIM" << Folder << 0 << "E:\\outer\\inner\\";
    QTest::newRow("a category is named as such") << "/DCIM" << 0 << 55 << "E:\\outer\\OneDrive\\";
    QTest::newRow("nothing above lies anywhere") << "" << Folder << 0 << Unknown;
    QTest::newRow("only folders lead up") << "/DCIM" << File << 0 << Unknown;
}

void TestLocationText::throughParents()
{
    QFETCH(QString, pathOfParent);
    QFETCH(int, kindOfParent);
    QFETCH(int, rootTypeOfParent);

    TreeItemData top;
    TreeItemData outer;
    TreeItemData inner;
    TreeItemData item;
    top.kind = outer.kind = item.kind = Folder;
    outer.parent = &top;
    outer.name = QStringLiteral("outer");
    outer.volumeRoot = QStringLiteral("E:");
    inner.kind = kindOfParent;
    inner.rootType = rootTypeOfParent;
    inner.parent = &outer;
    inner.name = QStringLiteral("inner");
    inner.path = pathOfParent;
    item.parent = &inner;
    QTEST(LocationText::of(&item), "expected");
}

void TestLocationText::ringOfParents()
{
    std::vector<std::unique_ptr<TreeItemData>> ring;
    for (int i = 0; i < 3; ++i) {
        ring.push_back(std::make_unique<TreeItemData>());
        ring.back()->kind = Folder;
        ring.back()->name = QString(1000, QLatin1Char('x'));
        ring.back()->parent = i > 0 ? ring[size_t(i - 1)].get() : nullptr;
    }
    ring.front()->parent = ring.back().get();
    ring[1]->path = QStringLiteral("/DCIM");
    QCOMPARE(LocationText::of(ring.back().get()), Unknown);
}

QTEST_APPLESS_MAIN(TestLocationText)
#include "tst_locationtext.moc"
