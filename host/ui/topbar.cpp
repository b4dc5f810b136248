#include "host/ui/topbar.h"

#include "host/app/languages.h"
#include "host/ui/hosttheme.h"
#include "host/ui/segments.h"
#include "plugin/sdcardscancontentplugininterface.h"

#include <QActionGroup>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>
#include <QVariant>

namespace {
constexpr int IconSide = 18;
constexpr int TypingPauseMs = 250;
constexpr int SearchMinWidth = 140;
constexpr int SearchMaxWidth = 320;
constexpr int SourceShare = 3; // the source's name takes a third of the bar at most
using Plugin = SDCardScanContentPluginInterface;
} // namespace

TopBar::TopBar(QWidget *parent)
    : QFrame(parent)
    , m_source(new QToolButton(this))
    , m_menu(new QMenu(this))
    , m_search(new QLineEdit(this))
    , m_views(new Segments(this))
    , m_language(new QToolButton(this))
    , m_languages(new QActionGroup(this))
    , m_theme(new QToolButton(this))
{
    setObjectName(QStringLiteral("topBar"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(12, 10, 12, 10);
    row->setSpacing(10);
    row->addWidget(m_source);
    row->addStretch(1);
    row->addWidget(m_search, 8);
    row->addStretch(1);
    row->addWidget(m_views);
    row->addWidget(m_language);
    row->addWidget(m_theme);

    m_source->setObjectName(QStringLiteral("emphasis"));
    m_source->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_source->setIconSize({IconSide, IconSide});
    m_source->setPopupMode(QToolButton::InstantPopup);
    buildSourceMenu();

    m_search->setMinimumWidth(SearchMinWidth);
    m_search->setMaximumWidth(SearchMaxWidth);
    m_search->setClearButtonEnabled(true);
    m_searchIcon = m_search->addAction(QIcon(), QLineEdit::LeadingPosition);
    m_describe = m_search->addAction(QIcon(), QLineEdit::TrailingPosition);
    m_describe->setCheckable(true);
    m_describe->setShortcut(Qt::CTRL + Qt::SHIFT + Qt::Key_D);
    connect(m_describe, &QAction::toggled, this, [this](bool described) {
        nameSearch();
        emit describedChanged(described);
    });
    m_typing.setSingleShot(true);
    m_typing.setInterval(TypingPauseMs);
    connect(m_search, &QLineEdit::textChanged, &m_typing, QOverload<>::of(&QTimer::start));
    connect(m_search, &QLineEdit::returnPressed, this, [this] {
        m_typing.stop();
        emit keywordChanged(keyword());
    });
    connect(&m_typing, &QTimer::timeout, this, [this] { emit keywordChanged(keyword()); });

    m_views->addGlyph(Plugin::GridView, Glyph::Grid, QString());
    m_views->addGlyph(Plugin::ListWithDetailView, Glyph::ListDetail, QString());
    m_views->addGlyph(Plugin::ListView, Glyph::List, QString());
    m_views->setChosen(Plugin::GridView);
    connect(m_views, &Segments::picked, this, &TopBar::viewModePicked);

    m_language->setProperty("iconOnly", true);
    m_language->setIconSize({IconSide, IconSide});
    m_language->setPopupMode(QToolButton::InstantPopup);
    buildLanguageMenu();

    m_theme->setProperty("iconOnly", true);
    m_theme->setIconSize({IconSide, IconSide});
    connect(m_theme, &QToolButton::clicked, this, &TopBar::themeToggled);
    retranslate();
}

void TopBar::buildSourceMenu()
{
    m_openFolder = m_menu->addAction(QString());
    m_openFolder->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O));
    m_openImage = m_menu->addAction(QString());
    m_openImage->setShortcut(QKeySequence::Open);
    m_menu->addSeparator();
    m_rescan = m_menu->addAction(QString());
    m_rescan->setShortcut(QKeySequence::Refresh);
    m_stop = m_menu->addAction(QString());
    m_stop->setEnabled(false);
    m_source->setMenu(m_menu);
    addActions(m_menu->actions()); // shortcuts work while the menu is closed
    connect(m_openFolder, &QAction::triggered, this, &TopBar::openFolderRequested);
    connect(m_openImage, &QAction::triggered, this, &TopBar::openImageRequested);
    connect(m_rescan, &QAction::triggered, this, &TopBar::rescanRequested);
    connect(m_stop, &QAction::triggered, this, &TopBar::stopRequested);
}

void TopBar::buildLanguageMenu()
{
    auto *menu = new QMenu(m_language);
    for (const Language &language : Languages::all()) {
        QAction *action = menu->addAction(QString::fromUtf8(language.nativeName));
        action->setCheckable(true);
        action->setData(QString::fromLatin1(language.name));
        m_languages->addAction(action);
    }
    m_language->setMenu(menu);
    connect(m_languages, &QActionGroup::triggered, this,
            [this](const QAction *action) { emit languagePicked(action->data().toString()); });
}

void TopBar::retranslate()
{
    const QList<QAction *> languages = m_languages->actions();
    for (QAction *action : languages)
        action->setChecked(Languages::current()
                           && action->data() == QLatin1String(Languages::current()->name));
    m_language->setToolTip(tr("Language"));
    m_language->setAccessibleName(tr("Language"));
    m_openFolder->setText(tr("Open folder…"));
    m_openImage->setText(tr("Open disk image…"));
    m_rescan->setText(tr("Scan again"));
    m_stop->setText(tr("Stop scanning"));
    nameSearch();
    m_views->setText(Plugin::GridView, tr("Thumbnails"));
    m_views->setText(Plugin::ListWithDetailView, tr("List with details"));
    m_views->setText(Plugin::ListView, tr("List"));
    m_theme->setToolTip(tr("Light or dark"));
    m_theme->setAccessibleName(tr("Light or dark"));
    elideSource();
}

void TopBar::nameSearch()
{
    const QString what = m_describe->isChecked() ? tr("Search by description")
                                                 : tr("Search by name");
    m_search->setPlaceholderText(what);
    m_search->setAccessibleName(what);
    m_describe->setText(tr("Search by description"));
    m_describe->setToolTip(m_describe->text());
    // a line edit draws its icons as if they were never chosen
    m_describe->setIcon(m_describe->isChecked() ? m_describedIcon : m_namedIcon);
}

void TopBar::setDescribed(bool described)
{
    m_describe->setChecked(described);
}

void TopBar::setSource(const QString &path)
{
    m_path = path;
    m_rescan->setEnabled(!path.isEmpty());
    elideSource();
}

void TopBar::elideSource()
{
    const QString name = m_path.isEmpty() ? tr("Open…") : QFileInfo(m_path).fileName();
    const QString whole = name.isEmpty() ? m_path : name;
    m_source->setText(
        m_source->fontMetrics().elidedText(whole, Qt::ElideMiddle, width() / SourceShare)
        + QStringLiteral("  ▾"));
    m_source->setToolTip(m_path);
    m_source->setAccessibleName(tr("Source: %1").arg(whole));
}

void TopBar::setScanning(bool scanning)
{
    m_stop->setEnabled(scanning);
}

void TopBar::setViewMode(int mode)
{
    m_views->setChosen(mode);
}

void TopBar::setKeyword(const QString &keyword)
{
    m_search->setText(keyword);
    m_typing.stop();
}

QString TopBar::keyword() const
{
    return m_search->text().trimmed();
}

void TopBar::focusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

void TopBar::setTheme(const HostTheme &theme)
{
    theme.applyTo(this);
    m_search->setPalette(theme.palette()); // a sheet knows no colour for the hint in an empty box
    m_views->setTheme(theme);
    m_source->setIcon(glyphIcon(Glyph::Disk, theme.accentText));
    m_searchIcon->setIcon(glyphIcon(Glyph::Search, theme.faintText));
    m_namedIcon = glyphIcon(Glyph::Sparkle, theme.faintText);
    m_describedIcon = glyphIcon(Glyph::Sparkle, theme.accentText);
    nameSearch();
    m_language->setIcon(glyphIcon(Glyph::Web, theme.icon));
    m_theme->setIcon(glyphIcon(theme.isDark ? Glyph::Sun : Glyph::Moon, theme.icon));
    m_openFolder->setIcon(glyphIcon(Glyph::OpenFolder, theme.icon, theme.offText));
    m_openImage->setIcon(glyphIcon(Glyph::Disk, theme.icon, theme.offText));
}

void TopBar::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void TopBar::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    elideSource();
}
