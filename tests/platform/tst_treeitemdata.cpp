#include "treeitemdata.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <memory>

class Sender : public QObject
{
    Q_OBJECT

signals:
    void signalSaveThumbnail(TreeItemData *itemData);
};

class Receiver : public QObject
{
    Q_OBJECT

public slots:
    void take(TreeItemData *itemData) { taken = itemData; }

public:
    TreeItemData *taken = nullptr;
};

class TestTreeItemData : public QObject
{
    Q_OBJECT

private slots:
    void pointerTravelsInQueuedSignals();
    void pointersInVariantsStayTyped();
    void deathIsNoticed();
};

void TestTreeItemData::pointerTravelsInQueuedSignals()
{
    QCOMPARE(qRegisterMetaType<TreeItemData *>("TreeItemData*"), qMetaTypeId<TreeItemData *>());
    QCOMPARE(QMetaType::type("TreeItemData*"), qMetaTypeId<TreeItemData *>());

    // by name, as hosts connect that do not have our class at hand
    Sender sender;
    Receiver receiver;
    QVERIFY(QObject::connect(&sender, SIGNAL(signalSaveThumbnail(TreeItemData *)), &receiver,
                             SLOT(take(TreeItemData *)), Qt::QueuedConnection));
    TreeItemData item;
    emit sender.signalSaveThumbnail(&item);
    QVERIFY(!receiver.taken);
    QTRY_COMPARE(receiver.taken, &item);
}

void TestTreeItemData::pointersInVariantsStayTyped()
{
    TreeItemData item;
    const QVariant variant = QVariant::fromValue(&item);
    QCOMPARE(variant.value<TreeItemData *>(), &item);
    QCOMPARE(variant.value<QObject *>(), static_cast<QObject *>(&item));
}

void TestTreeItemData::deathIsNoticed()
{
    auto parent = std::make_unique<TreeItemData>();
    auto *child = new TreeItemData(parent.get());
    QVERIFY(!child->parent); // the folder is not the owner
    const QPointer<TreeItemData> guard(child);
    parent.reset();
    QVERIFY(!guard);
}

QTEST_GUILESS_MAIN(TestTreeItemData)
#include "tst_treeitemdata.moc"
