#include "model/headerview.h"

#include "common/checkicon.h"
#include "common/commonfunction.h"
#include "common/fontmanager.h"
#include "common/qssloader.h"
#include "common/restyling.h"
#include "common/screenpixmap.h"
#include "common/translation.h"
#include "model/checkbuttonaccessible.h"
#include "model/sortcycle.h"
#include "model/spokentext.h"
#include "ui_headerview.h"

#include <QDebug>
#include <QEvent>
#include <QResizeEvent>
#include <QStyle>

namespace {

constexpr auto StateProperty = "state";
constexpr auto CheckStateProperty = "checkState";
constexpr auto MirroredProperty = "mirrored";
constexpr auto ShownProperty = "shown";

constexpr int FontPixelSize = 12;
constexpr int FontWeight = 400;

constexpr int LargeFromWidth = 1001;
constexpr int NameSpacerGrowth = 64;
constexpr int SizeSpacerGrowth = 72;
constexpr int SpacerHeight = 20;
constexpr int SpacerCharacters = 2; // between two buttons, in characters of the bar's font
constexpr int LeftMargin = 11;
constexpr int RightMargin = 8;

/// Until a widget is first shown, nothing about its looks needs to be known, and finding out takes
/// as long as all the rest of it.
bool hasLook(const QWidget *widget)
{
    return widget->testAttribute(Qt::WA_WState_Polished);
}

} // namespace

HeaderView::HeaderView(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::HeaderView>())
{
    qRegisterMetaType<HeaderViewSortType>("HeaderViewSortType");
    ui->setupUi(this);
    ui->rightEndWidget->hide();
    m_sortButtons = {ui->nameButton, ui->sizeButton, ui->typeButton, ui->dateButton};

    for (int section = 0; section < SortCycle::SectionCount; ++section) {
        QPushButton *button = m_sortButtons[size_t(section)];
        button->setAutoDefault(true); // Enter clicks, as Space does
        connect(button, &QPushButton::clicked, this, [this, section] { onSortClicked(section); });
    }
    CheckButtonAccessible::attach(ui->checkAllButton, CheckStateProperty);
    ui->checkAllButton->setAutoDefault(true);
    connect(ui->checkAllButton, &QPushButton::clicked, this, &HeaderView::onCheckAllClicked);
    ui->checkAllButton->installEventFilter(this);
    ui->rightEndWidget->installEventFilter(this);

    setCheckState(Qt::Unchecked);
    mirror();
    loadStyleSheet();
    retranslate();
    updateFont();
    m_restyling = new Restyling(this, [this] { restyle(); });
}

HeaderView::~HeaderView() = default;

// Sort -----------------------------------------------------------------------------------------

void HeaderView::setSortType(HeaderViewSortType type)
{
    m_sortType = SortCycle::section(type) == SortCycle::NoSection ? NoSort : type;
    showSort();
}

void HeaderView::resetSort()
{
    setSortType(NameAscending);
}

void HeaderView::onSortClicked(int section)
{
    setSortType(SortCycle::next(m_sortType, section));
    emit signalSortClicked(m_sortType);
}

void HeaderView::showSort()
{
    const int sorted = SortCycle::section(m_sortType);
    const QString direction = SortCycle::isDescending(m_sortType) ? QStringLiteral("descend")
                                                                  : QStringLiteral("ascend");
    for (int section = 0; section < SortCycle::SectionCount; ++section) {
        QPushButton *button = m_sortButtons[size_t(section)];
        button->setProperty(StateProperty,
                            section == sorted ? direction : QStringLiteral("default"));
        button->setAccessibleDescription(
            section == sorted ? SpokenText::sortOrder(SortCycle::isDescending(m_sortType))
                              : QString());
        // a stylesheet reads properties only when a widget is polished
        if (hasLook(button)) {
            button->style()->unpolish(button);
            button->style()->polish(button);
        }
    }
}

// Select all -----------------------------------------------------------------------------------

int HeaderView::checkState() const
{
    return ui->checkAllButton->property(CheckStateProperty).toInt();
}

void HeaderView::setCheckState(int state)
{
    if (state < Qt::Unchecked || state > Qt::Checked) {
        qDebug() << "HeaderView::setCheckState unknown state = " << state;
        return;
    }
    const bool changed = state != checkState();
    ui->checkAllButton->setProperty(CheckStateProperty, state);
    if (changed)
        CheckButtonAccessible::announce(ui->checkAllButton);
    setCheckIcon(checkIconName(state));
}

void HeaderView::setCheckIcon(const QString &name)
{
    ui->checkAllButton->setIcon(QIcon(screenPixmap(CommonFunction::themePixmap(name))));
}

void HeaderView::setCheckButtonVisible(bool visible)
{
    ui->checkAllButton->setVisible(visible);
}

void HeaderView::onCheckAllClicked()
{
    const Qt::CheckState wanted = checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked;
    setCheckState(wanted);
    emit signalAllChecked(wanted);
}

bool HeaderView::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui->checkAllButton && checkState() == Qt::Unchecked) {
        if (event->type() == QEvent::Enter)
            setCheckIcon(QStringLiteral("icon_check_hover"));
        else if (event->type() == QEvent::Leave)
            setCheckIcon(checkIconName(Qt::Unchecked));
    } else if (watched == ui->rightEndWidget
               && (event->type() == QEvent::ShowToParent
                   || event->type() == QEvent::HideToParent)) {
        layOut();
    }
    return QWidget::eventFilter(watched, event);
}

void HeaderView::setTabAfter(QWidget *widget)
{
    setTabOrder(widget, ui->checkAllButton);
    QWidget *before = ui->checkAllButton;
    for (QPushButton *button : m_sortButtons) {
        setTabOrder(before, button);
        before = button;
    }
}

// Layout ---------------------------------------------------------------------------------------

QWidget *HeaderView::rightEndWidget() const
{
    return ui->rightEndWidget;
}

void HeaderView::resizeEvent(QResizeEvent *event)
{
    qDebug() << "HeaderView::resizeEvent size = " << event->size();
    QWidget::resizeEvent(event);
    m_large = event->size().width() >= LargeFromWidth;
    emit signalResize(m_large);
    layOut();
}

void HeaderView::showEvent(QShowEvent *event)
{
    // The arrows are the stylesheet's, and Qt reads its pictures at the expense of loading all
    // plug-ins for images: not before somebody sees them.
    if (!property(ShownProperty).toBool()) {
        setProperty(ShownProperty, true);
        showSort();
    }
    QWidget::showEvent(event);
}

void HeaderView::layOut()
{
    // being resized comes with being shown
    if (hasLook(this))
        layOutSpacers();
    // margins are the only thing about a layout that does not turn round by itself
    const int atEnd = ui->rightEndWidget->isHidden() ? 0 : RightMargin;
    const bool mirrored = isRightToLeft();
    ui->headerLayout->setContentsMargins(mirrored ? atEnd : LeftMargin, 0,
                                         mirrored ? LeftMargin : atEnd, 0);
    ui->headerLayout->invalidate();
}

void HeaderView::layOutSpacers()
{
    const int spacing = fontMetrics().averageCharWidth() * SpacerCharacters;
    // shrinkable: a narrow bar gives up its gaps before its buttons
    const auto set = [](QSpacerItem *spacer, int width) {
        spacer->changeSize(width, SpacerHeight, QSizePolicy::Maximum, QSizePolicy::Minimum);
    };
    set(ui->nameSpacer, spacing + (m_large ? NameSpacerGrowth : 0));
    set(ui->sizeSpacer, spacing + (m_large ? SizeSpacerGrowth : 0));
    set(ui->typeSpacer, spacing);
    set(ui->dateSpacer, spacing);
}

void HeaderView::mirror()
{
    // a stylesheet turns texts and paddings round, but not pictures
    for (QPushButton *button : m_sortButtons)
        button->setProperty(MirroredProperty, isRightToLeft());
    showSort();
    layOut();
}

void HeaderView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        mirror();
}

// Theme, language, font ------------------------------------------------------------------------

void HeaderView::loadStyleSheet()
{
    QSSLoader::applyStyleSheet(this, QStringLiteral("headerview.qss"));
}

void HeaderView::updateTheme()
{
    m_restyling->request();
}

void HeaderView::restyle()
{
    loadStyleSheet();
    setCheckIcon(checkIconName(checkState()));
    showSort();
}

void HeaderView::retranslate()
{
    ui->nameButton->setText(translatedKey("name"));
    ui->sizeButton->setText(translatedKey("size"));
    ui->typeButton->setText(translatedKey("type"));
    ui->dateButton->setText(translatedKey("date_modified"));
    ui->pathButton->setText(translatedKey("path"));
    for (QPushButton *button :
         {ui->nameButton, ui->sizeButton, ui->typeButton, ui->dateButton, ui->pathButton})
        button->setAccessibleName(button->text());
    ui->checkAllButton->setAccessibleName(translatedKey("select_all"));
    showSort();
}

void HeaderView::updateFont()
{
    const QFont font = FontManager::instance()->getFont(FontPixelSize, FontWeight);
    setFont(font); // the gaps are measured with it
    for (QPushButton *button :
         {ui->nameButton, ui->sizeButton, ui->typeButton, ui->dateButton, ui->pathButton}) {
        button->setFont(font);
        if (hasLook(button))
            button->adjustSize();
    }
    layOut();
}
