#include "host/app/automation.h"

#include "host/app/contentplugin.h"
#include "host/app/session.h"
#include "host/ui/mainwindow.h"

#include <QCoreApplication>
#include <QTextStream>

namespace {
constexpr int QuietMs = 1500; // the plug-in looks for thumbnails once a second
constexpr int PatienceMs = 60000;
constexpr int Success = 0;
constexpr int Failure = 1;

void tell(const QString &message)
{
    QTextStream(stderr) << "quarvo-host: " << message << '\n';
}

} // namespace

Automation::Automation(const CommandLine &wishes, const ContentPlugin &plugin, Session &session,
                       MainWindow &window)
    : m_wishes(wishes)
    , m_plugin(plugin)
    , m_session(session)
    , m_window(window)
{
    m_clock.start();
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(QuietMs);
    m_patience.setSingleShot(true);
    m_patience.setInterval(PatienceMs);
    connect(&m_quiet, &QTimer::timeout, this, [this] {
        if (m_session.thumbnails().pending() == 0)
            takeScreenshot();
    });
    connect(&m_patience, &QTimer::timeout, this, &Automation::takeScreenshot);
    connect(&session, &Session::scanFinished, this, &Automation::scanEnded, Qt::QueuedConnection);
    connect(&session, &Session::thumbnailTraffic, this, [this] {
        if (m_waiting)
            m_quiet.start();
    });
    connect(&window, &MainWindow::recovered, this, [this](const RecoveryReport &report) {
        if (!m_recovering)
            return; // the user's own
        m_recovering = false;
        m_report.recovery = report;
        for (const FailedFile &file : report.failed)
            fail(file.path + QLatin1String(": ") + file.reason);
        if (!report.stopReason.isEmpty())
            fail(report.stopReason);
        finish();
    });
}

void Automation::fail(const QString &message)
{
    tell(message);
    m_failed = true;
}

void Automation::scanEnded()
{
    if (m_started)
        return; // a later scan is the user's own
    m_started = true;
    const ScanOutcome outcome = m_session.outcome();
    if (!outcome.error.isEmpty())
        fail(outcome.error);
    for (const QString &warning : outcome.warnings)
        tell(warning);
    check();
    if (!m_wishes.search.isEmpty())
        m_window.search(m_wishes.search, m_wishes.described);
    if (m_wishes.screenshot.isEmpty())
        recover();
    else
        waitForPictures();
}

void Automation::check()
{
    for (const QString &pattern : m_wishes.checkPatterns) {
        const QVector<ItemRecord *> items = m_session.matching(pattern);
        if (items.isEmpty())
            tell(QStringLiteral("nothing matches \"%1\"").arg(pattern));
        else
            m_session.setChecked(items, true);
    }
}

void Automation::waitForPictures()
{
    m_waiting = true;
    m_quiet.start();
    m_patience.start();
}

void Automation::takeScreenshot()
{
    if (!m_waiting)
        return;
    m_waiting = false;
    m_quiet.stop();
    m_patience.stop();
    if (!m_window.grab().save(m_wishes.screenshot))
        fail(QStringLiteral("the picture %1 cannot be written").arg(m_wishes.screenshot));
    recover();
}

void Automation::recover()
{
    if (m_wishes.recoverTo.isEmpty()) {
        finish();
        return;
    }
    m_session.takeChecked([this](const QVector<FoundItem> &items) {
        if (items.isEmpty()) {
            fail(QStringLiteral("nothing is chosen, so there is nothing to recover; see --check"));
            finish();
            return;
        }
        m_recovering = true;
        m_window.recover(items, m_wishes.recoverTo);
    });
}

void Automation::finish()
{
    if (!m_wishes.report.isEmpty()) {
        QString error;
        m_report.signalCounts = m_plugin.signalCounts();
        m_report.seconds = double(m_clock.elapsed()) / 1000;
        if (!m_report.write(m_session, m_wishes.report, &error))
            fail(error);
    }
    if (m_wishes.quit)
        QCoreApplication::exit(m_failed ? Failure : Success);
}
