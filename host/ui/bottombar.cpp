#include "host/ui/bottombar.h"

#include "host/scan/shownpath.h"
#include "host/tree/texts.h"
#include "host/ui/glyphs.h"
#include "host/ui/hosttheme.h"
#include "host/ui/onelinelabel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QVariant>

namespace {
constexpr int ProgressSteps = 1000;
constexpr int TextsFrom = 820; // below this width the icon of a button has to do
constexpr int IconSide = 18;
constexpr int WarningSide = 14;
} // namespace

BottomBar::BottomBar(QWidget *parent)
    : QFrame(parent)
    , m_bar(new QProgressBar(this))
    , m_counts(new OneLineLabel(this))
    , m_detail(new OneLineLabel(this))
    , m_stop(new QPushButton(this))
    , m_checked(new OneLineLabel(this))
    , m_checkedDetail(new OneLineLabel(this))
    , m_warning(new QLabel(this))
    , m_choose(new QToolButton(this))
    , m_recover(new QPushButton(this))
{
    setObjectName(QStringLiteral("bottomBar"));
    m_detail->setObjectName(QStringLiteral("caption"));
    m_checkedDetail->setObjectName(QStringLiteral("targetLine"));
    for (QLabel *label : {m_checked, m_checkedDetail})
        label->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    m_checked->setObjectName(QStringLiteral("emphasis"));
    m_bar->setTextVisible(false);
    QSizePolicy policy = m_bar->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // nothing moves when the scan ends
    m_bar->setSizePolicy(policy);
    m_choose->setProperty("iconOnly", true);
    m_choose->setIconSize({IconSide, IconSide});
    m_recover->setProperty("primary", true);
    m_recover->setIconSize({IconSide, IconSide});

    auto *found = new QVBoxLayout;
    found->setSpacing(0);
    found->addWidget(m_counts);
    found->addWidget(m_detail);
    auto *chosen = new QVBoxLayout;
    chosen->setSpacing(0);
    auto *line = new QHBoxLayout;
    line->setSpacing(4);
    line->addWidget(m_warning);
    line->addWidget(m_checkedDetail);
    chosen->addWidget(m_checked);
    chosen->addLayout(line);
    auto *row = new QHBoxLayout;
    row->setContentsMargins(16, 8, 12, 10);
    row->setSpacing(12);
    row->addLayout(found);
    row->addWidget(m_stop);
    row->addStretch();
    row->addLayout(chosen);
    row->addWidget(m_choose);
    row->addWidget(m_recover);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_bar);
    column->addLayout(row);

    connect(m_choose, &QToolButton::clicked, this, &BottomBar::targetRequested);
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
    refreshChecked();
}

void BottomBar::setTarget(const QString &folder, qint64 freeBytes)
{
    m_target = folder;
    m_free = freeBytes;
    refreshChecked();
}

void BottomBar::refreshChecked()
{
    m_recover->setEnabled(m_files > 0);
    QString checked = m_files > 0 ? tr("%Ln file(s) checked", nullptr, m_files) : QString();
    if (m_hidden > 0)
        checked += QStringLiteral(" · ") + tr("%Ln hidden by the filter", nullptr, m_hidden);
    m_checked->setText(checked);
    m_checked->setVisible(m_files > 0);

    QString detail = tr("Nothing checked");
    if (m_files > 0 && m_free < 0)
        detail = Texts::size(m_bytes);
    else if (m_files > 0)
        detail = (isTooMuch() ? tr("%1 needed, only %2 free at the target")
                              : tr("%1 of %2 free at the target", "needed, free"))
                     .arg(Texts::size(m_bytes), Texts::size(m_free));
    m_checkedDetail->setText(detail);
    m_checkedDetail->setToolTip(shownPath(m_target));
    m_warning->setVisible(isTooMuch());
    if (m_checkedDetail->property("warns").toBool() != isTooMuch()) {
        m_checkedDetail->setProperty("warns", isTooMuch());
        m_checkedDetail->style()->unpolish(m_checkedDetail);
        m_checkedDetail->style()->polish(m_checkedDetail);
    }
    m_choose->setToolTip(
        m_target.isEmpty() ? tr("Choose the folder to recover to")
                           : tr("Recover to %1. Choose another folder…").arg(shownPath(m_target)));
    m_choose->setAccessibleName(m_choose->toolTip());
}

void BottomBar::retranslate()
{
    m_stop->setText(m_isCompact ? QString() : tr("Stop"));
    m_stop->setToolTip(m_isCompact ? tr("Stop") : QString());
    m_stop->setAccessibleName(tr("Stop"));
    m_recover->setText(tr("Recover…"));
    m_bar->setAccessibleName(tr("Progress of the scan"));
    setProgress(m_progress, m_scanning);
    refreshChecked();
}

void BottomBar::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void BottomBar::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    const bool compact = width() < TextsFrom;
    if (compact == m_isCompact)
        return;
    m_isCompact = compact;
    refreshStop();
    retranslate();
}

void BottomBar::refreshStop()
{
    m_stop->setIcon(m_isCompact ? m_stopIcon : QIcon());
    m_stop->setProperty("iconOnly", m_isCompact);
    m_stop->style()->unpolish(m_stop);
    m_stop->style()->polish(m_stop);
}

void BottomBar::setTheme(const HostTheme &theme)
{
    theme.applyTo(this);
    m_stopIcon = glyphIcon(Glyph::Stop, theme.icon);
    refreshStop();
    m_choose->setIcon(glyphIcon(Glyph::OpenFolder, theme.icon));
    m_warning->setPixmap(glyphIcon(Glyph::Warning, theme.warn)
                             .pixmap(window()->windowHandle(), {WarningSide, WarningSide}));
    m_recover->setIcon(glyphIcon(Glyph::Recover, Qt::white, theme.offText));
}
