#include "platform/system/system.h"

#include <QTest>

class TestSystem : public QObject
{
    Q_OBJECT

private slots:
    void memoryIsPlausible();
    void pinningForeignAddressesIsHarmless();
};

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

QTEST_MAIN(TestSystem)
#include "tst_system.moc"
