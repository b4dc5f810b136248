#include "popups/searchhintframe.h"

#include "common/commonfunction.h"
#include "common/fontmanager.h"
#include "common/guard.h"
#include "common/qssloader.h"
#include "common/translation.h"
#include "popups/hintcolumn.h"
#include "popups/hintpicture.h"
#include "popups/searchdialog.h"
#include "ui_searchhintframe.h"

#include <QKeyEvent>

namespace {

constexpr int TitlePixelSize = 16;
constexpr int TitleWeight = 600;
constexpr int TipPixelSize = 14;
constexpr int TipWeight = 400;

} // namespace

SearchHintFrame::SearchHintFrame(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::SearchHintFrame>())
{
    ui->setupUi(this);
    new HintColumn(this, ui->labelImage,
                   {ui->labelTitle, ui->labelTip1, ui->labelTip2, ui->labelTip3});
    loadStyleSheet();
    showHintPicture(ui->labelImage, QStringLiteral(":Images/image142_Search"));
    ui->labelTip1->setContextMenuPolicy(Qt::NoContextMenu);
    ui->labelTip1->installEventFilter(this);
    connect(ui->labelTip1, &QLabel::linkActivated, this, &SearchHintFrame::openHowToFind);
    doChangeLanguage();
}

SearchHintFrame::~SearchHintFrame() = default;

void SearchHintFrame::doChangeLanguage()
{
    const FontManager *fonts = FontManager::instance();
    fonts->setWidgetFont(ui->labelTitle, TitlePixelSize, TitleWeight);
    for (QLabel *tip : {ui->labelTip1, ui->labelTip2, ui->labelTip3})
        fonts->setWidgetFont(tip, TipPixelSize, TipWeight);

    ui->labelTitle->setText(translatedKey("scandataview_search_no_result"));
    showFirstTip();
    ui->labelTip2->setText(translatedKey("scandataview_search_hint_wait_scan"));
    ui->labelTip3->setText(translatedKey("scandataview_search_hint_use_filter"));
    setAccessibleName(ui->labelTitle->text());
    if (m_dialog)
        m_dialog->doChangeLanguage();
}

void SearchHintFrame::updateTheme()
{
    loadStyleSheet();
    if (m_dialog)
        m_dialog->updateTheme();
}

void SearchHintFrame::setLinkColor(const QColor &color)
{
    if (color == m_linkColor)
        return;
    m_linkColor = color;
    showFirstTip();
}

bool SearchHintFrame::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != ui->labelTip1)
        return QFrame::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        showFirstTip();
        break;
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Space)
            break;
        openHowToFind(); // may outlive this page
        return true;
    }
    default:
        break;
    }
    return false;
}

void SearchHintFrame::loadStyleSheet()
{
    QSSLoader::applyStyleSheet(this, QStringLiteral("searchhintframe.qss"));
}

void SearchHintFrame::showFirstTip()
{
    // The label is one stop of the Tab key: its link, underlined, says that it has the focus.
    const QString line = ui->labelTip1->hasFocus() ? QStringLiteral("underline")
                                                   : QStringLiteral("none");
    const QString colour = m_linkColor.isValid()
        ? QStringLiteral("; color: %1").arg(m_linkColor.name())
        : QString();
    ui->labelTip1->setText(QStringLiteral("<style>a {text-decoration: %1%2}</style>%3")
                               .arg(line, colour, translatedKey("missing_original_filenames")));
}

void SearchHintFrame::openHowToFind()
{
    guarded(Q_FUNC_INFO, [this] {
        QWidget *window = CommonFunction::mainWindow(this);
        const QPointer<SearchDialog> dialog = new SearchDialog(window);
        const QPointer<QWidget> mask = CommonFunction::createWindowMask(window);
        m_dialog = dialog;
        dialog->setLayoutDirection(layoutDirection());
        CommonFunction::placeOver(dialog, window);
        mask->show();
        mask->repaint();
        dialog->exec();
        // Meanwhile the window may have gone, and all of these with it.
        if (mask)
            mask->close();
        delete dialog;
        delete mask;
    });
}
