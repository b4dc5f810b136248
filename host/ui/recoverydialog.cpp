#include "host/ui/recoverydialog.h"

#include "host/ui/glyphs.h"
#include "host/ui/hosttheme.h"
#include "host/ui/texts.h"

#include <QDesktopServices>
#include <QDir>
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
    , m_openTarget(new QPushButton(tr("Open folder"), this))
    , m_close(new QPushButton(tr("Cancel"), this))
    , m_good(theme.good)
    , m_bad(theme.bad)
{
    setWindowTitle(tr("Recovery"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    theme.applyTo(this);
    m_title->setObjectName(QStringLiteral("emphasis"));
    m_detail->setObjectName(QStringLiteral("caption"));
    m_title->setWordWrap(true);
    m_detail->setTextFormat(Qt::PlainText);
    m_detail->setWordWrap(true);
    m_bar->setTextVisible(false);
    m_bar->setRange(0, ProgressSteps);
    m_bar->setAccessibleName(tr("Progress of the recovery"));
    m_icon->setFixedSize(IconSide, IconSide);
    m_icon->setPixmap(glyphIcon(Glyph::Recover, theme.accentText)
                          .pixmap(window()->windowHandle(), m_icon->size()));
    m_failures->setFixedHeight(FailureListHeight);
    m_failures->setAccessibleName(tr("Files that could not be recovered"));
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
    m_title->setText(tr("Recovering to %1").arg(QDir::toNativeSeparators(target)));
    m_detail->setText(Texts::files(items.size()));
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
    if (progress.bytesTotal > 0)
        m_bar->setValue(
            int(double(progress.bytesDone) / double(progress.bytesTotal) * ProgressSteps));
    const QString counts = tr("%1 of %2 · %3 of %4")
                               .arg(Texts::number(progress.filesDone),
                                    Texts::files(progress.filesTotal),
                                    Texts::size(progress.bytesDone),
                                    Texts::size(progress.bytesTotal));
    m_detail->setText(
        counts + QLatin1Char('\n')
        + m_detail->fontMetrics().elidedText(progress.current, Qt::ElideMiddle, m_detail->width()));
}

QString RecoveryDialog::summaryOf(const RecoveryReport &report, const QString &target)
{
    if (report.recovered.isEmpty() && !report.stopReason.isEmpty())
        return report.stopReason;
    QString text = tr("%1 recovered to %2.")
                       .arg(Texts::files(report.recovered.size()),
                            QDir::toNativeSeparators(target));
    if (!report.failed.isEmpty())
        text += QLatin1Char(' ')
            + tr("%1 could not be recovered.").arg(Texts::files(report.failed.size()));
    if (!report.stopReason.isEmpty())
        text += QLatin1Char(' ') + report.stopReason;
    return text;
}

void RecoveryDialog::showReport(const RecoveryReport &report)
{
    const bool whole = report.failed.isEmpty() && !report.cancelled && report.stopReason.isEmpty();
    m_bar->hide();
    m_title->setText(report.cancelled ? tr("Recovery cancelled")
                         : whole      ? tr("Recovery complete")
                                      : tr("Some files could not be recovered"));
    m_detail->setText(summaryOf(report, m_target) + QLatin1Char('\n') + Texts::size(report.bytes));
    m_icon->setPixmap(glyphIcon(whole ? Glyph::Done : Glyph::Warning, whole ? m_good : m_bad)
                          .pixmap(window()->windowHandle(), m_icon->size()));
    for (const FailedFile &file : report.failed)
        m_failures->addItem(file.path + QLatin1Char('\n') + file.reason);
    m_failures->setVisible(!report.failed.isEmpty());
    m_openTarget->setVisible(!report.recovered.isEmpty());
    m_close->setText(tr("Done"));
    m_close->setProperty("primary", true);
    m_close->style()->unpolish(m_close);
    m_close->style()->polish(m_close);
    m_close->setDefault(true);
    m_close->setFocus();
    emit recovered(report);
}
