#include "host/ui/recoveryflow.h"

#include "host/app/hostsettings.h"
#include "host/app/session.h"
#include "host/recovery/targetcheck.h"
#include "host/ui/glyphs.h"
#include "host/ui/recoverydialog.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>

namespace {
constexpr int IconSide = 28;
}

RecoveryFlow::RecoveryFlow(Session &session, MessageBanner &banner, QWidget *window)
    : QObject(window)
    , m_session(session)
    , m_banner(banner)
    , m_window(window)
{
    connect(&m_room, &FreeSpace::changed, this, &RecoveryFlow::roomChanged);
    const QString target = HostSettings::target();
    m_room.setFolder(target.isEmpty()
                         ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                         : target);
}

/// In front of the folder dialog, which opens again after it.
void RecoveryFlow::tellRefusal(const QString &reason)
{
    QMessageBox box(QMessageBox::NoIcon, tr("Recover to"), reason, QMessageBox::Ok, m_window);
    box.setTextFormat(Qt::PlainText);
    box.setIconPixmap(glyphIcon(Glyph::Warning, m_theme.bad)
                          .pixmap(m_window->windowHandle(), {IconSide, IconSide}));
    box.button(QMessageBox::Ok)->setIcon(QIcon());
    box.button(QMessageBox::Ok)->setProperty("primary", true);
    m_theme.applyTo(&box);
    box.exec();
}

QString RecoveryFlow::pickTarget()
{
    QString target = m_room.folder();
    while (true) {
        target = QFileDialog::getExistingDirectory(m_window, tr("Recover to"), target);
        if (target.isEmpty())
            return target;
        const QString reason = TargetCheck::refusal(m_session.path(), target);
        if (reason.isEmpty())
            break;
        tellRefusal(reason);
    }
    HostSettings::setTarget(target);
    m_room.setFolder(target);
    return target;
}

void RecoveryFlow::recoverChosen(const QVector<FoundItem> &items)
{
    if (items.isEmpty()) {
        m_banner.tell(MessageBanner::Hint, [] { return tr("There is nothing to recover."); });
        return;
    }
    const QString target = pickTarget();
    if (!target.isEmpty())
        recover(items, target);
}

/// Nothing has been written: every file is told as failed.
void RecoveryFlow::refuse(const QVector<FoundItem> &items, const MessageBanner::Words &reason)
{
    RecoveryReport report;
    report.stopReason = reason();
    for (const FoundItem &item : items)
        report.failed.append({item.fullPath(), report.stopReason});
    m_banner.tell(MessageBanner::Failure, reason);
    emit recovered(report);
}

void RecoveryFlow::recover(const QVector<FoundItem> &items, const QString &target)
{
    const QString source = m_session.path();
    qint64 bytes = 0;
    for (const FoundItem &item : items)
        bytes += item.size;
    const auto onCard = [source, target] { return TargetCheck::refusal(source, target); };
    const auto tooMuch = [bytes, target] { return TargetCheck::refusalForSize(bytes, target); };
    if (!onCard().isEmpty()) {
        refuse(items, onCard);
        return;
    }
    if (!tooMuch().isEmpty()) {
        refuse(items, tooMuch);
        return;
    }
    auto *dialog = new RecoveryDialog(m_session.source(), m_theme, m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    connect(dialog, &RecoveryDialog::recovered, this, [this, target](const RecoveryReport &report) {
        const bool whole = report.failed.isEmpty() && report.stopReason.isEmpty();
        m_banner.tell(whole ? MessageBanner::Success : MessageBanner::Failure,
                      [report, target] { return RecoveryDialog::summaryOf(report, target); });
        emit recovered(report);
    });
    dialog->open();
    dialog->start(items, target);
}
