#include "host/ui/breadcrumbs.h"

#include "host/tree/texts.h"
#include "host/ui/glyphs.h"
#include "host/ui/hosttheme.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLocale>
#include <QMenu>
#include <QToolButton>
#include <QVariant>

namespace {
constexpr int IconSide = 18;
constexpr int MaxCrumbWidth = 180;
constexpr int MinWidth = 150;
} // namespace

Breadcrumbs::Breadcrumbs(const ItemTree &tree, QWidget *parent)
    : QFrame(parent)
    , m_tree(tree)
    , m_up(new QToolButton(this))
    , m_row(new QHBoxLayout(this))
{
    m_row->setContentsMargins(0, 0, 0, 0);
    m_row->setSpacing(0);
    m_row->addWidget(m_up);
    m_row->addStretch();
    m_up->setProperty("iconOnly", true);
    m_up->setIconSize({IconSide, IconSide});
    m_up->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Up));
    m_up->setEnabled(false);
    connect(m_up, &QToolButton::clicked, this, [this] {
        if (!m_keyword.isEmpty())
            emit picked(m_shown); // out of the search, back to where it began
        else if (m_shown && m_shown->rootType != 0)
            emit picked(m_tree.allFiles());
        else if (m_shown && m_shown->folder())
            emit picked(m_shown->folder());
    });
}

void Breadcrumbs::follow(ItemRecord *shown)
{
    m_shown = shown;
    m_keyword.clear();
    rebuild();
}

void Breadcrumbs::followSearch(const QString &keyword, bool described, int count)
{
    m_described = described;
    m_keyword = keyword;
    m_matches = count;
    rebuild();
}

QToolButton *Breadcrumbs::addCrumb(const QString &text, bool last)
{
    auto *crumb = new QToolButton(this);
    crumb->setObjectName(last ? QStringLiteral("lastCrumb") : QStringLiteral("crumb"));
    crumb->setText(crumb->fontMetrics().elidedText(text, Qt::ElideMiddle, MaxCrumbWidth));
    crumb->setAccessibleName(text);
    m_row->insertWidget(m_row->count() - 1, crumb);
    m_crumbs.append(crumb);
    crumb->show();
    return crumb;
}

void Breadcrumbs::addPlacesMenu(QToolButton *button)
{
    auto *menu = new QMenu(button);
    const auto add = [this, menu](ItemRecord *root, Glyph glyph) {
        QAction *action = menu->addAction(
            glyphIcon(glyph, m_icon, m_off),
            QStringLiteral("%1 (%2)").arg(Texts::titleOf(*root), Texts::number(root->itemCount)));
        connect(action, &QAction::triggered, this, [this, root] { emit picked(root); });
    };
    connect(menu, &QMenu::aboutToShow, this, [this, menu, add] {
        menu->clear();
        add(m_tree.allFiles(), Glyph::AllFiles);
        for (ItemRecord *kind : m_tree.kindRoots()) {
            if (kind->itemCount > 0)
                add(kind, glyphOfKind(kind->rootType));
        }
        menu->addSeparator();
        for (ItemRecord *volume : m_tree.volumeRoots())
            add(volume, Glyph::Disk);
    });
    button->setMenu(menu);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setText(button->text() + QStringLiteral(" ▾"));
}

void Breadcrumbs::rebuild()
{
    for (QToolButton *crumb : qAsConst(m_crumbs)) {
        crumb->hide();
        crumb->deleteLater(); // one of them may be what was just clicked
    }
    m_crumbs.clear();
    m_up->setEnabled(m_shown
                     && (!m_keyword.isEmpty() || m_shown->folder()
                         || (m_shown->rootType != 0 && m_shown != m_tree.allFiles())));
    m_up->setToolTip(m_keyword.isEmpty() ? tr("Up") : tr("End the search"));
    m_up->setAccessibleName(m_up->toolTip());
    if (!m_keyword.isEmpty()) {
        const QString found = m_described
            ? QStringLiteral("%1 · %2").arg(m_keyword, QLocale().toString(m_matches))
            : tr("“%1” found in %Ln name(s)", nullptr, m_matches).arg(m_keyword);
        addCrumb(found, true)->setEnabled(true);
        fit();
        return;
    }
    QVector<ItemRecord *> way;
    for (ItemRecord *record = m_shown; record; record = record->folder())
        way.prepend(record);
    for (int i = 0; i < way.size(); ++i) {
        ItemRecord *record = way[i];
        QToolButton *crumb = addCrumb(Texts::titleOf(*record), i == way.size() - 1);
        if (i == 0)
            addPlacesMenu(crumb);
        else
            connect(crumb, &QToolButton::clicked, this, [this, record] { emit picked(record); });
    }
    fit();
}

void Breadcrumbs::fit()
{
    int width = m_up->sizeHint().width();
    for (QToolButton *crumb : qAsConst(m_crumbs)) {
        crumb->setVisible(true);
        width += crumb->sizeHint().width();
    }
    for (int i = 1; i < m_crumbs.size() - 1 && width > this->width(); ++i) {
        width -= m_crumbs[i]->sizeHint().width();
        m_crumbs[i]->hide();
    }
}

QSize Breadcrumbs::minimumSizeHint() const
{
    return {MinWidth, m_up->sizeHint().height()};
}

void Breadcrumbs::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    fit();
}

void Breadcrumbs::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        rebuild();
}

void Breadcrumbs::setTheme(const HostTheme &theme)
{
    m_icon = theme.icon;
    m_off = theme.offText;
    m_up->setIcon(glyphIcon(Glyph::Up, theme.icon, theme.offText));
}
