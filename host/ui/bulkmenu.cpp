#include "host/ui/bulkmenu.h"

#include "host/tree/itemkinds.h"
#include "host/tree/texts.h"
#include "host/ui/glyphs.h"
#include "host/ui/hosttheme.h"

#include <QEvent>
#include <QMenu>
#include <QShortcut>

namespace {
constexpr int IconSide = 16;
constexpr int MaxNameWidth = 240;
} // namespace

BulkMenu::BulkMenu(const Session &session, QWidget *parent)
    : QToolButton(parent)
    , m_session(session)
{
    setPopupMode(QToolButton::InstantPopup);
    setIconSize({IconSide, IconSide});
    setMenu(new QMenu(this));
    m_photos = add(Session::Bulk::CheckPhotos);
    m_deleted = add(Session::Bulk::CheckDeleted);
    m_shown = add(Session::Bulk::CheckShown);
    menu()->addSeparator();
    m_invert = add(Session::Bulk::Invert);
    m_uncheck = add(Session::Bulk::UncheckAll);
    menu()->addSeparator();
    m_undo = menu()->addAction(QString());
    m_redo = menu()->addAction(QString());
    m_undo->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
    m_redo->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    addActions({m_undo, m_redo}); // the keys work while the menu is closed
    auto *open = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_B), this);
    connect(open, &QShortcut::activated, this, &QToolButton::showMenu);
    connect(m_undo, &QAction::triggered, this, &BulkMenu::undoRequested);
    connect(m_redo, &QAction::triggered, this, &BulkMenu::redoRequested);
    connect(menu(), &QMenu::aboutToShow, this, &BulkMenu::refresh);
    connect(menu(), &QMenu::aboutToHide, this, [this] {
        for (QAction *action : {m_undo, m_redo})
            action->setEnabled(true); // else their keys would say nothing
    });
    setCompact(false);
    retranslate();
}

QAction *BulkMenu::add(Session::Bulk what)
{
    QAction *action = menu()->addAction(QString());
    connect(action, &QAction::triggered, this, [this, what] { emit picked(what); });
    return action;
}

/// What the menu offers is what there is at the moment.
void BulkMenu::refresh()
{
    const ItemTree &tree = m_session.tree();
    const ItemRecord *shown = m_session.shownRoot();
    const ItemRecord *photos = tree.kindRoot(ItemKinds::PhotosRootType);
    if (m_session.search().isActive()) {
        m_shown->setText(tr("Check everything found"));
    } else {
        QString title = shown ? Texts::titleOf(*shown) : QString();
        title = fontMetrics().elidedText(title, Qt::ElideMiddle, MaxNameWidth);
        title.replace(QLatin1Char('&'), QLatin1String("&&"));
        m_shown->setText(tr("Check everything in “%1”").arg(title));
    }
    m_shown->setEnabled(shown && shown->itemCount > 0);
    m_photos->setEnabled(photos && photos->itemCount > 0);
    m_deleted->setEnabled(m_session.progress().deleted > 0);
    m_invert->setEnabled(tree.allFiles()->itemCount > 0);
    m_uncheck->setEnabled(tree.checkedFiles() > 0);
    m_undo->setEnabled(tree.canUndo());
    m_redo->setEnabled(tree.canRedo());
}

void BulkMenu::setCompact(bool compact)
{
    setToolButtonStyle(compact ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
    setProperty("iconOnly", compact);
}

void BulkMenu::retranslate()
{
    setText(tr("Check") + QStringLiteral(" ▾"));
    const QString hint =
        tr("Check or uncheck many files (%1)")
            .arg(QKeySequence(Qt::CTRL | Qt::Key_B).toString(QKeySequence::NativeText));
    setToolTip(hint);
    setAccessibleName(hint);
    m_photos->setText(tr("Check all photos"));
    m_deleted->setText(tr("Check all deleted files"));
    m_invert->setText(tr("Invert the checks"));
    m_uncheck->setText(tr("Uncheck all"));
    m_undo->setText(tr("Undo"));
    m_redo->setText(tr("Redo"));
    refresh();
    m_undo->setEnabled(true);
    m_redo->setEnabled(true);
}

void BulkMenu::changeEvent(QEvent *event)
{
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void BulkMenu::setTheme(const HostTheme &theme)
{
    setIcon(glyphIcon(Glyph::CheckMany, theme.icon, theme.offText));
}
