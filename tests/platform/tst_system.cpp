#include "platform/system/storage.h"
#include "platform/system/system.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>

class TestSystem : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void memoryIsPlausible();
    void pinningForeignAddressesIsHarmless();
    void placesOnDisk_data();
    void placesOnDisk();
    void oneFileTwoNames();
    void diskOfAPlace();

private:
    QString at(const QString &name) const { return m_place.filePath(name); }

    QTemporaryDir m_place;
};

void TestSystem::initTestCase()
{
    QVERIFY(m_place.isValid());
    for (const char *folder : {"card/DCIM/100", "card/фото写真", "cards", "other"})
        QVERIFY(QDir(m_place.path()).mkpath(QString::fromUtf8(folder)));
    QFile photo(at("card/photo.jpg"));
    QVERIFY(photo.open(QIODevice::WriteOnly));
}

void TestSystem::memoryIsPlausible()
{
    const quint64 available = System::availablePhysicalMemory();
    QVERIFY(available > quint64(1024) * 1024); // bytes, not kilobytes
    QVERIFY(available < quint64(1) << 50);
}

void TestSystem::pinningForeignAddressesIsHarmless()
{
    const int onTheStack = 0;
    System::pinModule(&onTheStack);
    System::pinModule(nullptr);
    static const int inTheProgram = 0;
    System::pinModule(&inTheProgram);
}

void TestSystem::placesOnDisk_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("other");
    QTest::addColumn<bool>("same");
    QTest::addColumn<bool>("inside");
    const auto row = [](const char *name, const char *path, const char *other, bool same,
                        bool inside) {
        QTest::newRow(name) << QString::fromUtf8(path) << QString::fromUtf8(other) << same
                            << inside;
    };
    row("itself", "card", "card", true, true);
    row("slashes and dots", "card//DCIM/", "other/.././card/DCIM", true, true);
    row("in it", "card/DCIM/100", "card", false, true);
    row("a file in it", "card/photo.jpg", "card", false, true);
    row("letters of no code page", "card/фото写真", "card", false, true);
    row("the folder above", "card", "card/DCIM", false, false);
    row("a name that only begins alike", "cards", "card", false, false);
    row("that is not there", "nowhere", "card", false, false);
    row("in what is not there", "card", "nowhere", false, false);
}

void TestSystem::placesOnDisk()
{
    QFETCH(QString, path);
    QFETCH(QString, other);
    QTEST(System::isSameFile(at(path), at(other)), "same");
    QTEST(System::isInside(at(path), at(other)), "inside");
}

void TestSystem::oneFileTwoNames()
{
    std::error_code failure;
    std::filesystem::create_hard_link(at("card/photo.jpg").toStdU16String(),
                                      at("twin.jpg").toStdU16String(), failure);
    QVERIFY(!failure);
    QVERIFY(System::isSameFile(at("card/photo.jpg"), at("twin.jpg")));
    QVERIFY(!System::isSameFile(at("card"), at("twin.jpg")));
}

void TestSystem::diskOfAPlace()
{
    const QSet<QByteArray> disks = System::disksOf(at("card"));
    QVERIFY(!disks.isEmpty());
    QCOMPARE(System::disksOf(at("card/photo.jpg")), disks);
    QVERIFY(System::disksOf(at("nowhere")).isEmpty());
    QVERIFY(!System::isOnMedium(at("card"), at("card/photo.jpg"))); // a file, mounted nowhere
    QVERIFY(!System::isOnMedium(at("nowhere"), at("card")));
}

QTEST_MAIN(TestSystem)
#include "tst_system.moc"
