#include "report.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTextStream>

namespace {
constexpr int PatienceMs = 10000;
int s_failures = 0;
} // namespace

void Report::tell(bool proved, const QString &what, const QString &seen)
{
    s_failures += !proved;
    QTextStream out(stdout);
    out.setCodec("UTF-8");
    out << (proved ? "ok    " : "FAIL  ") << what << (seen.isEmpty() ? "" : ": ") << seen
        << Qt::endl;
}

int Report::failures()
{
    return s_failures;
}

bool Report::happens(const std::function<bool()> &condition)
{
    QElapsedTimer elapsed;
    elapsed.start();
    while (!condition()) {
        if (elapsed.hasExpired(PatienceMs))
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}
