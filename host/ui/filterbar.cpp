#include "host/ui/filterbar.h"

#include "host/tree/itemfilter.h"
#include "host/tree/itemkinds.h"
#include "host/ui/glyphs.h"
#include "host/ui/hosttheme.h"

#include <QActionGroup>
#include <QDateTime>
#include <QEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QStyle>
#include <QToolButton>
#include <QVariant>

namespace {

constexpr int IconSide = 16;
constexpr qint64 MB = 1024 * 1024;
constexpr qint64 Day = 24 * 60 * 60;

struct Range
{
    const char *title;
    qint64 min;
    qint64 max;
};

// Sizes in bytes; dates in days back from now.
const Range Sizes[] = {
    {QT_TRANSLATE_NOOP("FilterBar", "Any size"), FilterCondition::Unset, FilterCondition::Unset},
    {QT_TRANSLATE_NOOP("FilterBar", "Up to 1 MB"), FilterCondition::Unset, MB},
    {QT_TRANSLATE_NOOP("FilterBar", "1 to 10 MB"), MB, 10 * MB},
    {QT_TRANSLATE_NOOP("FilterBar", "10 to 100 MB"), 10 * MB, 100 * MB},
    {QT_TRANSLATE_NOOP("FilterBar", "Over 100 MB"), 100 * MB, FilterCondition::Unset},
};
const Range Dates[] = {
    {QT_TRANSLATE_NOOP("FilterBar", "Any date"), FilterCondition::Unset, FilterCondition::Unset},
    {QT_TRANSLATE_NOOP("FilterBar", "Last 7 days"), 7, FilterCondition::Unset},
    {QT_TRANSLATE_NOOP("FilterBar", "Last 30 days"), 30, FilterCondition::Unset},
    {QT_TRANSLATE_NOOP("FilterBar", "Last year"), 365, FilterCondition::Unset},
    {QT_TRANSLATE_NOOP("FilterBar", "Older than a year"), FilterCondition::Unset, 365},
};

bool isChosen(const QActionGroup *group)
{
    return group->checkedAction() != group->actions().constFirst();
}

} // namespace

FilterBar::FilterBar(QWidget *parent)
    : QFrame(parent)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    m_kind = addMenu(&m_kinds);
    m_size = addMenu(&m_sizes);
    m_date = addMenu(&m_dates);
    m_deleted = new QToolButton(this);
    m_deleted->setCheckable(true);
    m_deleted->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_deleted->setIconSize({IconSide, IconSide});
    m_clear = new QToolButton(this);
    m_clear->setProperty("iconOnly", true);
    m_clear->setIconSize({IconSide, IconSide});
    for (QToolButton *button : {m_kind, m_size, m_date, m_deleted, m_clear})
        row->addWidget(button);
    connect(m_deleted, &QToolButton::clicked, this, [this] {
        refresh();
        emit changed();
    });
    connect(m_clear, &QToolButton::clicked, this, [this] {
        clear();
        emit changed();
    });
    fillMenus();
}

QToolButton *FilterBar::addMenu(QActionGroup **choices)
{
    auto *button = new QToolButton(this);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setMenu(new QMenu(button));
    *choices = new QActionGroup(button);
    connect(*choices, &QActionGroup::triggered, this, [this] {
        refresh();
        emit changed();
    });
    return button;
}

void FilterBar::fillMenus()
{
    const auto fill = [](QToolButton *button, QActionGroup *group, const QStringList &titles) {
        const bool isNew = group->actions().isEmpty();
        for (int i = 0; i < titles.size(); ++i) {
            QAction *action = isNew ? group->addAction(button->menu()->addAction(titles[i]))
                                    : group->actions().at(i);
            action->setText(titles[i]);
            action->setCheckable(true);
        }
        if (isNew)
            group->actions().constFirst()->setChecked(true);
    };
    QStringList kinds{tr("Any kind")};
    for (const ItemKind &kind : ItemKinds::All)
        kinds.append(ItemKinds::titleOf(kind.rootType));
    QStringList sizes;
    for (const Range &range : Sizes)
        sizes.append(tr(range.title));
    QStringList dates;
    for (const Range &range : Dates)
        dates.append(tr(range.title));
    fill(m_kind, m_kinds, kinds);
    fill(m_size, m_sizes, sizes);
    fill(m_date, m_dates, dates);
    m_deleted->setText(tr("Deleted only"));
    m_clear->setToolTip(tr("Show everything"));
    m_clear->setAccessibleName(tr("Show everything"));
    refresh();
}

FilterCondition FilterBar::condition() const
{
    FilterCondition condition;
    const int kind = m_kinds->actions().indexOf(m_kinds->checkedAction());
    if (kind > 0)
        condition.list1.append(QLatin1String(ItemKinds::All[std::size_t(kind - 1)].key));
    const Range &size = Sizes[m_sizes->actions().indexOf(m_sizes->checkedAction())];
    condition.minSize = size.min;
    condition.maxSize = size.max;
    const Range &date = Dates[m_dates->actions().indexOf(m_dates->checkedAction())];
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    if (date.min != FilterCondition::Unset)
        condition.minTime = now - date.min * Day;
    if (date.max != FilterCondition::Unset)
        condition.maxTime = now - date.max * Day;
    if (m_deleted->isChecked())
        condition.mode = ItemFilter::DeletedOnly;
    return condition;
}

void FilterBar::clear()
{
    for (QActionGroup *group : {m_kinds, m_sizes, m_dates})
        group->actions().constFirst()->setChecked(true);
    m_deleted->setChecked(false);
    refresh();
}

/// A button shows what is chosen; one that narrows the results stands out.
void FilterBar::refresh()
{
    const auto show = [](QToolButton *button, const QString &text, bool chosen) {
        button->setText(text);
        button->setAccessibleName(text);
        button->setProperty("chosen", chosen);
        button->style()->unpolish(button);
        button->style()->polish(button);
    };
    const QString arrow = QStringLiteral(" ▾");
    const auto title = [&arrow](const QActionGroup *group, const QString &idle) {
        return (isChosen(group) ? group->checkedAction()->text() : idle) + arrow;
    };
    show(m_kind, title(m_kinds, tr("Kind")), isChosen(m_kinds));
    show(m_size, title(m_sizes, tr("Size")), isChosen(m_sizes));
    show(m_date, title(m_dates, tr("Date")), isChosen(m_dates));
    show(m_deleted, m_deleted->text(), m_deleted->isChecked());
    m_clear->setVisible(isChosen(m_kinds) || isChosen(m_sizes) || isChosen(m_dates)
                        || m_deleted->isChecked());
}

void FilterBar::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        fillMenus();
}

void FilterBar::setTheme(const HostTheme &theme)
{
    m_deleted->setIcon(glyphIcon(Glyph::Deleted, theme.icon, theme.offText, theme.accentText));
    m_clear->setIcon(glyphIcon(Glyph::Close, theme.icon));
}
