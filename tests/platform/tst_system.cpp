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
    void oneFileTwoNames();
    void diskOfAPlace();

private:
    QString at(const QString &name) const { return m_place.filePath(name); }

    QTemporaryDir m_place;
};

void TestSystem::initTestCase()
{
    QVERIFY(m_place.isValid());
    QVERIFY(QDir(m_place.path()).mkpath(QStringLiteral("card")));
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
