#include "host/ui/recoverydialog.h"

#include "host/scan/shownpath.h"
#include "host/tree/texts.h"
#include "host/ui/glyphs.h"
#include "host/ui/hosttheme.h"

#include <QDesktopServices>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>
#include <QUrl>
#include <QVariant>

namespace {
constexpr int ContentWidth = 440;
constexpr int FailureListHeight = 150;
constexpr int ProgressSteps = 1000;
constexpr int IconSide = 28;

bool isWhole(const RecoveryReport &report)
{
    return report.failed.isEmpty() && !report.cancelled && report.stopReason.isEmpty();
}

} // namespace

RecoveryDialog::RecoveryDialog(std::shared_ptr<const ScanSource> source, const HostTheme &theme,
                               QWidget *parent)
    : QDialog(parent)
    , m_job(std::move(source))
    , m_icon(new QLabel(this))
    , m_title(new QLabel(this))
    , m_detail(new QLabel(this))
    , m_bar(new QProgressBar(this))
    , m_failures(new QListWidget(this))
    , m_openTarget(new QPushButton(this))
    , m_close(new QPushButton(this))
    , m_good(theme.good)
    , m_bad(theme.bad)
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    theme.applyTo(this);
    m_title->setObjectName(QStringLiteral("emphasis"));
    m_detail->setObjectName(QStringLiteral("caption"));
    m_title->setWordWrap(true);
    m_detail->setTextFormat(Qt::PlainText);
    m_detail->setWordWrap(true);
    m_bar->setTextVisible(false);
    m_bar->setRange(0, ProgressSteps);
    m_icon->setFixedSize(IconSide, IconSide);
    m_icon->setPixmap(glyphIcon(Glyph::Recover, theme.accentText)
                          .pixmap(window()->windowHandle(), m_icon->size()));
    m_failures->setFixedHeight(FailureListHeight);
    m_failures->setWordWrap(true);
    m_failures->hide();
    m_openTarget->hide();

    auto *texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addWidget(m_title);
    texts->addWidget(m_detail);
    auto *head = new QHBoxLayout;
    head->setSpacing(14);
    head->addWidget(m_icon, 0, Qt::AlignTop);
    head->addLayout(texts, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_openTarget);
    buttons->addWidget(m_close);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(24, 22, 24, 18);
    column->setSpacing(16);
    column->addStrut(ContentWidth);
    column->addLayout(head);
    column->addWidget(m_bar);
    column->addWidget(m_failures);
    column->addLayout(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);

    connect(m_close, &QPushButton::clicked, this, &RecoveryDialog::reject);
    connect(m_openTarget, &QPushButton::clicked, this,
            [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(m_target)); });
    connect(&m_job, &RecoveryJob::progress, this, &RecoveryDialog::showProgress);
    connect(&m_job, &RecoveryJob::finished, this, &RecoveryDialog::showReport);
}

void RecoveryDialog::start(const QVector<FoundItem> &items, const QString &target)
{
    m_target = target;
    m_files = items.size();
    retranslate();
    m_job.start(items, target);
}

void RecoveryDialog::reject()
{
    if (m_job.isRunning())
        m_job.cancel(); // the report tells what has been written so far
    else
        QDialog::reject();
}

void RecoveryDialog::showProgress(const RecoveryProgress &progress)
{
    m_progress = progress;
    if (progress.bytesTotal > 0)
        m_bar->setValue(
            int(double(progress.bytesDone) / double(progress.bytesTotal) * ProgressSteps));
    const QString counts =
        tr("%1 of %Ln file(s)", nullptr, progress.filesTotal).arg(Texts::number(progress.filesDone))
        + QStringLiteral(" · ")
        + tr("%1 of %2", "bytes done, bytes in all")
              .arg(Texts::size(progress.bytesDone), Texts::size(progress.bytesTotal));
    m_detail->setText(
        counts + QLatin1Char('\n')
        + m_detail->fontMetrics().elidedText(progress.current, Qt::ElideMiddle, m_detail->width()));
}

QString RecoveryDialog::summaryOf(const RecoveryReport &report, const QString &target)
{
    if (report.recovered.isEmpty() && !report.stopReason.isEmpty())
        return report.stopReason;
    QString text =
        tr("%Ln file(s) recovered to %1.", nullptr, report.recovered.size()).arg(shownPath(target));
    if (!report.failed.isEmpty())
        text += QLatin1Char(' ')
            + tr("%Ln file(s) could not be recovered.", nullptr, report.failed.size());
    if (!report.stopReason.isEmpty())
        text += QLatin1Char(' ') + report.stopReason;
    return text;
}

void RecoveryDialog::retranslate()
{
    setWindowTitle(tr("Recovery"));
    m_bar->setAccessibleName(tr("Progress of the recovery"));
    m_failures->setAccessibleName(tr("Files that could not be recovered"));
    m_openTarget->setText(tr("Open folder"));
    m_close->setText(m_isDone ? tr("Done") : tr("Cancel"));
    if (m_isDone) {
        m_title->setText(m_report.cancelled      ? tr("Recovery cancelled")
                             : isWhole(m_report) ? tr("Recovery complete")
                                                 : tr("Some files could not be recovered"));
        m_detail->setText(summaryOf(m_report, m_target) + QLatin1Char('\n')
                          + Texts::size(m_report.bytes));
        return;
    }
    m_title->setText(tr("Recovering to %1").arg(shownPath(m_target)));
    if (m_progress.filesTotal > 0)
        showProgress(m_progress);
    else
        m_detail->setText(Texts::files(m_files));
}

void RecoveryDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void RecoveryDialog::showReport(const RecoveryReport &report)
{
    m_report = report;
    m_isDone = true;
    m_bar->hide();
    const bool whole = isWhole(report);
    m_icon->setPixmap(glyphIcon(whole ? Glyph::Done : Glyph::Warning, whole ? m_good : m_bad)
                          .pixmap(window()->windowHandle(), m_icon->size()));
    for (const FailedFile &file : report.failed)
        m_failures->addItem(file.path + QLatin1Char('\n') + file.reason);
    m_failures->setVisible(!report.failed.isEmpty());
    m_openTarget->setVisible(!report.recovered.isEmpty());
    retranslate();
    m_close->setProperty("primary", true);
    m_close->style()->unpolish(m_close);
    m_close->style()->polish(m_close);
    m_close->setDefault(true);
    m_close->setFocus();
    emit recovered(report);
}
