#include "thumbnailfixture.h"
#include "thumbnails/getthumbnailthread.h"
#include "thumbnails/scanpluginpreviewmanager.h"

#include <QProcess>
#include <QTest>
#include <QThread>

#include <memory>
#include <mutex>
#include <vector>

namespace {

/// A worker in a thread of its own, as the cache keeps one.
class RunningWorker
{
public:
    RunningWorker()
        : worker(ScanPluginPreviewManager::instance())
    {
        worker.moveToThread(&thread);
        QObject::connect(&thread, &QThread::started, &worker, &GetThumbnailThread::startThread);
        // not QSignalSpy: it would write in the worker's thread what the test reads in its own
        QObject::connect(&worker, &GetThumbnailThread::signalLocalThumbnailMiss, &receiver,
                         [this](qint64 fileId) { misses.append(fileId); });
        // a lock that race detectors know: QThread::wait() says nothing to them
        QObject::connect(
            &thread, &QThread::finished, &worker,
            [this] { const std::lock_guard<std::mutex> lock(m_finished); }, Qt::DirectConnection);
    }
    ~RunningWorker() { join(); }

    void join()
    {
        worker.pause();
        thread.requestInterruption();
        thread.quit();
        thread.wait();
        const std::lock_guard<std::mutex> lock(m_finished);
    }

    GetThumbnailThread worker;
    QThread thread;
    QObject receiver;
    QVector<qint64> misses;

private:
    std::mutex m_finished;
};

} // namespace

class tst_GetThumbnailThread : public QObject
{
    Q_OBJECT

private slots:
    void queueing();
    void missesComeInOrder();
    void pauseEmptiesTheQueue();
    void pauseWakesTheSleeper();
    void pauseBeforeTheLoopBegins();
    void aPipeHoldsNothingUp();

private:
    TemporaryRoot m_root;
};

void tst_GetThumbnailThread::queueing()
{
    GetThumbnailThread worker(ScanPluginPreviewManager::instance());
    Photo photo(1);
    Photo other(1);
    QVERIFY(!worker.enqueue(nullptr));
    QVERIFY(worker.enqueue(&photo));
    QVERIFY(!worker.enqueue(&photo));
    QVERIFY(worker.enqueue(&other));
    photo.fileId = 2; // as if another record had come to live at the address
    QVERIFY(worker.enqueue(&photo));
    worker.pause();
    QVERIFY(worker.enqueue(&other));
}

void tst_GetThumbnailThread::missesComeInOrder()
{
    RunningWorker running;
    QVector<TreeItemData *> wanted;
    connect(&running.worker, &GetThumbnailThread::signalSaveThumbnail, this,
            [&](TreeItemData *item) { wanted.append(item); });
    Photo first(11);
    Photo folder(12);
    folder.kind = 1;
    auto dying = std::make_unique<Photo>(13);
    const QVector<TreeItemData *> files = {&first, dying.get()};
    for (TreeItemData *item :
         {static_cast<TreeItemData *>(&first), static_cast<TreeItemData *>(&folder),
          static_cast<TreeItemData *>(dying.get())})
        QVERIFY(running.worker.enqueue(item));
    dying.reset(); // its queued copy is all that is looked at
    running.thread.start();
    QTRY_COMPARE(wanted, files);
    QCOMPARE(running.misses, (QVector<qint64>{11, 13}));
}

void tst_GetThumbnailThread::pauseEmptiesTheQueue()
{
    RunningWorker running;
    std::vector<std::unique_ptr<Photo>> photos;
    for (int i = 0; i < 100; ++i) {
        photos.push_back(std::make_unique<Photo>(i));
        QVERIFY(running.worker.enqueue(photos.back().get()));
    }
    running.worker.pause();
    Photo last(1000);
    QVERIFY(running.worker.enqueue(&last));
    running.thread.start();
    QTRY_COMPARE(running.misses.size(), 1);
    QCOMPARE(running.misses.constFirst(), qint64(1000));
}

// It sleeps for a second at a time: so many are more than a test may take.
void tst_GetThumbnailThread::pauseWakesTheSleeper()
{
    for (int i = 0; i < 200; ++i) {
        RunningWorker running;
        Photo photo(i);
        QVERIFY(running.worker.enqueue(&photo));
        running.thread.start();
        while (running.misses.isEmpty()) {
            QCoreApplication::processEvents();
            QThread::yieldCurrentThread();
        }
    }
}

void tst_GetThumbnailThread::pauseBeforeTheLoopBegins()
{
    for (int i = 0; i < 50; ++i) {
        RunningWorker running;
        running.thread.start();
        running.join(); // hangs if the loop takes no notice
    }
}

void tst_GetThumbnailThread::aPipeHoldsNothingUp()
{
    RunningWorker running;
    Photo photo(300);
    const QString path = ThumbnailFiles::plainImage(photo.fileId, photo.extension);
    QVERIFY(writeFile(path, {}) && QFile::remove(path));
    if (QProcess::execute(QStringLiteral("mkfifo"), {path}) != 0)
        QSKIP("no pipes with names here");
    QVERIFY(running.worker.enqueue(&photo));
    running.thread.start();
    QTRY_COMPARE(running.misses, QVector<qint64>{300});
}

QTEST_MAIN(tst_GetThumbnailThread)
#include "tst_getthumbnailthread.moc"
