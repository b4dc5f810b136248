#include "coordinator.h"

#include "gallery.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTextStream>
#include <QThread>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

std::unique_ptr<QProcess> start(const Wishes &wishes, const QString &scale)
{
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), scale);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC")); // the same dates everywhere
    process->setProcessEnvironment(environment);
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->start(QCoreApplication::applicationFilePath(), wishes.argumentsFor(scale));
    return process;
}

} // namespace

bool Coordinator::run(const Wishes &wishes)
{
    if (!QDir().mkpath(wishes.folder)) {
        QTextStream(stderr) << "quarvo-screenshots: cannot make " << wishes.folder << '\n';
        return false;
    }
    QStringList waiting = wishes.scales; // the largest takes longest, so it goes first
    std::sort(waiting.begin(), waiting.end(), [](const QString &left, const QString &right) {
        return left.toDouble() > right.toDouble();
    });
    const size_t atOnce = size_t(std::max(1, QThread::idealThreadCount()));
    std::vector<std::unique_ptr<QProcess>> running;
    bool well = true;
    while (!waiting.isEmpty() || !running.empty()) {
        while (!waiting.isEmpty() && running.size() < atOnce)
            running.push_back(start(wishes, waiting.takeFirst()));
        const auto ended = [&well](const std::unique_ptr<QProcess> &process) {
            constexpr int PatienceMs = 20;
            if (process->state() != QProcess::NotRunning && !process->waitForFinished(PatienceMs)
                && process->state() != QProcess::NotRunning)
                return false;
            well = well && process->exitStatus() == QProcess::NormalExit
                && process->exitCode() == 0;
            return true;
        };
        running.erase(std::remove_if(running.begin(), running.end(), ended), running.end());
    }
    return Gallery::write(wishes) && well;
}
