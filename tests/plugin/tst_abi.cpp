#include "model/headerviewsorttype.h"
#include "plugin/sdcardscancontentplugininterface.h"
#include "support/datarow.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonObject>
#include <QMap>
#include <QMetaMethod>
#include <QPluginLoader>
#include <QSysInfo>
#include <QTest>

#include <cstring>

namespace {

using Interface = SDCardScanContentPluginInterface;
using Facts = QMap<QString, QString>;

/// A pointer to a virtual member function holds twice the place in the table, and one, where the
/// Itanium C++ ABI rules; MSVC's is the address of a stub, of which nothing can be read.
template <typename Member>
QString slotOf(Member member)
{
    quintptr first = 0;
    static_assert(sizeof(member) >= sizeof(first));
    std::memcpy(&first, &member, sizeof(first));
    return QString::number((first - 1) / sizeof(void *));
}
constexpr bool SlotsCanBeRead = sizeof(&Interface::updateTheme) == 2 * sizeof(void *);

template <typename Class, typename Member>
QString placeOf(Member Class::*member)
{
    const Class object{};
    const auto *start = reinterpret_cast<const char *>(&object);
    const auto *place = reinterpret_cast<const char *>(&(object.*member));
    return QStringLiteral("%1, %2").arg(place - start).arg(sizeof(Member));
}

template <typename Type>
QString sizeOf()
{
    return QStringLiteral("%1, %2").arg(sizeof(Type)).arg(alignof(Type));
}

QString number(int value)
{
    return QString::number(value);
}

void addOperations(Facts *facts)
{
#define SLOT_OF(name) facts->insert(QStringLiteral(#name), slotOf(&Interface::name))
    SLOT_OF(updateTheme);
    SLOT_OF(getScanContentFrame);
    SLOT_OF(getSearchResultFrame);
    SLOT_OF(setViewMode);
    SLOT_OF(setScanState);
    SLOT_OF(updateScanData);
    SLOT_OF(updateSearchData);
    SLOT_OF(updateSearchDataNoKeyword);
    SLOT_OF(refreshSearchCheckAllState);
    SLOT_OF(refreshScanCheckState);
    SLOT_OF(refreshSearchCheckState);
    SLOT_OF(clearData);
    SLOT_OF(locateItemByFileId);
    SLOT_OF(locateItemBySecondaryId);
    SLOT_OF(setFilterCondition);
    SLOT_OF(updateThumbnail);
    SLOT_OF(updateThumbnailWithPath);
    SLOT_OF(setListDelegateFlag);
    SLOT_OF(showLoadingPage);
    SLOT_OF(getSelectedItems);
#undef SLOT_OF
}

void addRecords(Facts *facts)
{
    facts->insert(QStringLiteral("TreeItemData"), sizeOf<TreeItemData>());
    facts->insert(QStringLiteral("FilterCondition"), sizeOf<FilterCondition>());
#define PLACE_OF(Class, name)                                                                      \
    facts->insert(QStringLiteral(#Class "::" #name), placeOf(&Class::name))
    PLACE_OF(TreeItemData, checkState);
    PLACE_OF(TreeItemData, path);
    PLACE_OF(TreeItemData, name);
    PLACE_OF(TreeItemData, extension);
    PLACE_OF(TreeItemData, volumeRoot);
    PLACE_OF(TreeItemData, fileId);
    PLACE_OF(TreeItemData, secondaryId);
    PLACE_OF(TreeItemData, itemCount);
    PLACE_OF(TreeItemData, folderSize);
    PLACE_OF(TreeItemData, extraCount);
    PLACE_OF(TreeItemData, fileSize);
    PLACE_OF(TreeItemData, modifiedTime);
    PLACE_OF(TreeItemData, kind);
    PLACE_OF(TreeItemData, rootType);
    PLACE_OF(TreeItemData, fileCategory);
    PLACE_OF(TreeItemData, parent);
    PLACE_OF(TreeItemData, childFolders);
    PLACE_OF(TreeItemData, childFiles);
    PLACE_OF(TreeItemData, exists);
    PLACE_OF(TreeItemData, aiScenes);
    PLACE_OF(TreeItemData, metaData);
    PLACE_OF(FilterCondition, minSize);
    PLACE_OF(FilterCondition, maxSize);
    PLACE_OF(FilterCondition, minTime);
    PLACE_OF(FilterCondition, maxTime);
    PLACE_OF(FilterCondition, text1);
    PLACE_OF(FilterCondition, text2);
    PLACE_OF(FilterCondition, list1);
    PLACE_OF(FilterCondition, list2);
    PLACE_OF(FilterCondition, mode);
    PLACE_OF(FilterCondition, aiSearch);
#undef PLACE_OF
}

void addValues(Facts *facts)
{
    facts->insert(QStringLiteral("THEMETYPE"), sizeOf<THEMETYPE>());
    facts->insert(QStringLiteral("HeaderViewSortType"), sizeOf<HeaderViewSortType>());
    facts->insert(QStringLiteral("Qt::CheckState"), sizeOf<Qt::CheckState>());
#define VALUE_OF(name) facts->insert(QStringLiteral(#name), number(int(name)))
    VALUE_OF(LightTheme);
    VALUE_OF(DarkTheme);
    VALUE_OF(NoSort);
    VALUE_OF(NameAscending);
    VALUE_OF(NameDescending);
    VALUE_OF(SizeAscending);
    VALUE_OF(SizeDescending);
    VALUE_OF(TypeAscending);
    VALUE_OF(TypeDescending);
    VALUE_OF(DateAscending);
    VALUE_OF(DateDescending);
    VALUE_OF(Interface::BothSides);
    VALUE_OF(Interface::ScanSide);
    VALUE_OF(Interface::SearchSide);
    VALUE_OF(Interface::GridView);
    VALUE_OF(Interface::ListWithDetailView);
    VALUE_OF(Interface::ListView);
    VALUE_OF(Interface::ScanStarted);
    VALUE_OF(Interface::ScanFinished);
    VALUE_OF(Interface::ScanAnimationStopped);
    VALUE_OF(FilterCondition::Unset);
    VALUE_OF(FilterCondition::NoMode);
#undef VALUE_OF
}

/// A signal's number within its class: what a connection of the string form settles on.
void addSignals(const QMetaObject &meta, Facts *facts)
{
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            facts->insert(QString::fromLatin1(meta.method(i).methodSignature()),
                          number(i - meta.methodOffset()));
    }
}

/// The rows "| `key` | on Linux | on Windows |" of the page that host developers read.
Facts writtenDown(const QString &page, int column)
{
    Facts facts;
    const QStringList lines = page.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QStringList cells = line.split(QLatin1Char('|'));
        const QString key = cells.value(1).trimmed();
        if (cells.size() > column && key.size() > 2 && key.count(QLatin1Char('`')) == 2
            && key.startsWith(QLatin1Char('`')) && key.endsWith(QLatin1Char('`')))
            facts.insert(key.mid(1, key.size() - 2), cells.at(column).trimmed());
    }
    return facts;
}

} // namespace

/// What a compiled host relies on, against what its developers have been told.
class TestAbi : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void metadataIsReadWithoutLoading(); // first: the others load
    void layout_data();
    void layout();

private:
    static QString file()
    {
        return QCoreApplication::applicationDirPath()
            + QStringLiteral("/plugins/SDCardScanContentPlugin");
    }
    QString m_page;
    int m_column = 0;
};

void TestAbi::initTestCase()
{
    const QMap<QString, int> columns{{QStringLiteral("x86_64-little_endian-lp64"), 2},
                                     {QStringLiteral("x86_64-little_endian-llp64"), 3}};
    m_column = columns.value(QSysInfo::buildAbi());
    if (!m_column)
        QSKIP("nothing is promised for this kind of machine");
    QFile page(QStringLiteral(":/abi.md"));
    QVERIFY(page.open(QIODevice::ReadOnly));
    m_page = QString::fromUtf8(page.readAll());
}

void TestAbi::metadataIsReadWithoutLoading()
{
    QPluginLoader loader(file());
    QVERIFY2(!loader.fileName().isEmpty(), qPrintable(file()));
    const QJsonObject outer = loader.metaData();
    const QJsonObject inner = outer.value(QStringLiteral("MetaData")).toObject();
    QCOMPARE(outer.value(QStringLiteral("IID")).toString(),
             QLatin1String(qobject_interface_iid<Interface *>()));
    QCOMPARE(inner.value(QStringLiteral("name")).toString(),
             QStringLiteral("SDCardScanContentPlugin"));
    // One number for the package and for what a host asks before it calls what came later.
    QCOMPARE(inner.value(QStringLiteral("version")).toString(), QStringLiteral(PRODUCT_VERSION));
    QVERIFY(!loader.isLoaded());
}

void TestAbi::layout_data()
{
    addColumns<QString, QString>({"today", "written"});
    QPluginLoader loader(file());
    const QObject *plugin = loader.instance();
    QVERIFY2(plugin, qPrintable(loader.errorString()));
    Facts today;
    addOperations(&today);
    const Facts operations = today;
    addRecords(&today);
    addValues(&today);
    addSignals(*plugin->metaObject(), &today);
    addSignals(TreeItemData::staticMetaObject, &today);

    const Facts written = writtenDown(m_page, m_column);
    for (auto fact = today.cbegin(); fact != today.cend(); ++fact) {
        if (SlotsCanBeRead || !operations.contains(fact.key()))
            QTest::newRow(qPrintable(fact.key())) << fact.value() << written.value(fact.key());
    }
    for (auto fact = written.cbegin(); fact != written.cend(); ++fact) {
        if (!today.contains(fact.key()))
            QTest::newRow(qPrintable(fact.key())) << QString() << fact.value();
    }
}

void TestAbi::layout()
{
    QFETCH(QString, today);
    QFETCH(QString, written);
    QCOMPARE(today, written);
}

QTEST_MAIN(TestAbi)
#include "tst_abi.moc"
