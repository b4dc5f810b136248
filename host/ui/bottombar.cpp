#include "host/ui/bottombar.h"

#include "host/ui/glyphs.h"
#include "host/ui/hosttheme.h"
#include "host/ui/texts.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVariant>

namespace {
constexpr int ProgressSteps = 1000;
constexpr int ProgressWidth = 120;
constexpr int IconSide = 18;
} // namespace

BottomBar::BottomBar(QWidget *parent)
    : QFrame(parent)
    , m_bar(new QProgressBar(this))
    , m_counts(new QLabel(this))
    , m_detail(new QLabel(this))
    , m_stop(new QPushButton(this))
    , m_checked(new QLabel(this))
    , m_checkedDetail(new QLabel(this))
    , m_recover(new QPushButton(this))
{
    setObjectName(QStringLiteral("bottomBar"));
    m_detail->setObjectName(QStringLiteral("caption"));
    m_checkedDetail->setObjectName(QStringLiteral("caption"));
    m_checked->setObjectName(QStringLiteral("emphasis"));
    m_bar->setTextVisible(false);
    m_bar->setFixedWidth(ProgressWidth);
    m_recover->setProperty("primary", true);
    m_recover->setIconSize({IconSide, IconSide});

    auto *found = new QVBoxLayout;
    found->setSpacing(0);
    found->addWidget(m_counts);
    found->addWidget(m_detail);
    auto *chosen = new QVBoxLayout;
    chosen->setSpacing(0);
    chosen->addWidget(m_checked, 0, Qt::AlignRight);
    chosen->addWidget(m_checkedDetail, 0, Qt::AlignRight);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(16, 10, 12, 10);
    row->setSpacing(12);
    row->addWidget(m_bar);
    row->addLayout(found);
    row->addWidget(m_stop);
    row->addStretch();
    row->addLayout(chosen);
    row->addWidget(m_recover);

    connect(m_stop, &QPushButton::clicked, this, &BottomBar::stopRequested);
    connect(m_recover, &QPushButton::clicked, this, &BottomBar::recoverRequested);
    retranslate();
}

void BottomBar::setProgress(const ScanProgress &progress, bool scanning)
{
    m_progress = progress;
    m_scanning = scanning;
    m_bar->setVisible(scanning);
    m_stop->setVisible(scanning);
    m_bar->setRange(0, progress.fraction < 0 ? 0 : ProgressSteps);
    m_bar->setValue(int(progress.fraction * ProgressSteps));

    m_counts->setText(
        tr("%1, %2", "files and folders")
            .arg(Texts::files(int(progress.files)), Texts::folders(int(progress.folders))));
    QStringList details;
    if (scanning) {
        details += tr("%Ln item(s) a second", nullptr, int(progress.itemsPerSecond));
    } else if (progress.files > 0) {
        details += Texts::size(progress.bytes);
        details += tr("%Ln deleted", nullptr, int(progress.deleted));
    }
    m_detail->setText(details.join(QStringLiteral(" · ")));
    m_detail->setVisible(!details.isEmpty());
}

void BottomBar::setChecked(int files, qint64 bytes, int hidden)
{
    m_files = files;
    m_bytes = bytes;
    m_hidden = hidden;
    m_recover->setEnabled(files > 0);
    m_checked->setText(files > 0 ? tr("%Ln file(s) checked", nullptr, files) : QString());
    QString detail = files > 0 ? Texts::size(bytes) : tr("Nothing checked");
    if (hidden > 0)
        detail += QStringLiteral(" · ") + tr("%Ln hidden by the filter", nullptr, hidden);
    m_checkedDetail->setText(detail);
    m_checked->setVisible(files > 0);
}

void BottomBar::retranslate()
{
    m_stop->setText(tr("Stop"));
    m_recover->setText(tr("Recover…"));
    m_bar->setAccessibleName(tr("Progress of the scan"));
    setProgress(m_progress, m_scanning);
    setChecked(m_files, m_bytes, m_hidden);
}

void BottomBar::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void BottomBar::setTheme(const HostTheme &theme)
{
    theme.applyTo(this);
    m_recover->setIcon(glyphIcon(Glyph::Recover, Qt::white, theme.offText));
}
