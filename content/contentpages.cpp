#include "content/contentpages.h"

#include "common/commonfunction.h"
#include "common/fontmanager.h"
#include "common/screenpixmap.h"
#include "common/translation.h"
#include "content/scananimation.h"
#include "popups/aisearchhintframe.h"
#include "popups/searchhintframe.h"
#include "ui_sdcardcontentdatawidget.h"

using PageChoice::Page;

namespace {

constexpr int TextPixels = 14;
constexpr int CaptionPixels = 12;

} // namespace

ContentPages::ContentPages(Ui::SDCardContentDataWidgetClass &form, bool searchSide, QObject *parent)
    : QObject(parent)
    , m_form(form)
    , m_animation(new ScanAnimation(form.animationframe, this))
    , m_searchSide(searchSide)
{
    // A page that is shown is measured at once, so it needs its fonts and pictures before.
    loadImages();
    applyFonts();
    form.stackedWidget->setCurrentWidget(searchSide ? form.scandatapage : form.scanningpage);
}

PageChoice::Situation ContentPages::situation(const TreeItemData *root) const
{
    return {m_searchSide, m_searchMode, m_scanFinished, m_filter, root};
}

Page ContentPages::pageForTree(const TreeItemData *root) const
{
    return PageChoice::forTree(situation(root));
}

void ContentPages::showForFinishedScan(const TreeItemData *root)
{
    const Page page = PageChoice::forFinishedScan(situation(root), current());
    if (page != current())
        show(page);
}

void ContentPages::showLoading()
{
    if (!m_searchMode && m_scanFinished)
        show(Page::Loading);
}

Page ContentPages::current() const
{
    const QWidget *page = m_form.stackedWidget->currentWidget();
    if (page == m_form.scanningpage)
        return Page::Scanning;
    if (page == m_form.nodatapage)
        return Page::NoData;
    if (page == m_form.loadingpage)
        return Page::Loading;
    if (page == m_form.nofilterpage)
        return Page::NoFilter;
    if (page && page == m_searchHint)
        return Page::SearchHint;
    return page && page == m_aiSearchHint ? Page::AISearchHint : Page::Results;
}

void ContentPages::show(Page page)
{
    QWidget *widget = m_form.scandatapage;
    switch (page) {
    case Page::Results:
        break;
    case Page::Scanning:
        widget = m_form.scanningpage;
        break;
    case Page::NoData:
        widget = m_form.nodatapage;
        break;
    case Page::Loading:
        widget = m_form.loadingpage;
        break;
    case Page::NoFilter:
        widget = m_form.nofilterpage;
        break;
    case Page::SearchHint:
        widget = searchHint();
        break;
    case Page::AISearchHint:
        widget = aiSearchHint();
        break;
    }
    m_form.stackedWidget->setCurrentWidget(widget);
    if (page == Page::Scanning) {
        // Not before it is needed: most content areas never show it.
        if (!m_animation->exists())
            m_animation->initScaningLottie();
        m_animation->start();
    } else {
        m_animation->stop();
    }
    emit shown();
}

QWidget *ContentPages::searchHint()
{
    if (!m_searchHint) {
        m_searchHint = new SearchHintFrame(m_form.stackedWidget);
        m_form.stackedWidget->addWidget(m_searchHint);
    }
    return m_searchHint;
}

QWidget *ContentPages::aiSearchHint()
{
    if (!m_aiSearchHint) {
        m_aiSearchHint = new AISearchHintFrame(m_form.stackedWidget);
        m_form.stackedWidget->addWidget(m_aiSearchHint);
    }
    return m_aiSearchHint;
}

void ContentPages::loadImages()
{
    const auto load = [](QLabel *label, const char *name) {
        label->setPixmap(screenPixmap(CommonFunction::highDpiPixmap(QLatin1String(name))));
    };
    load(m_form.labNoDataImage, ":/Images/image200_No_scan_white");
    load(m_form.labLoadingImage, ":/Images/image200_Loading_white");
    load(m_form.labNoFilterImage, ":/Images/image200_NoFilter_white");
}

void ContentPages::applyFonts()
{
    const QFont plain = FontManager::instance()->styledFont(false, TextPixels);
    const QFont semibold = FontManager::instance()->getFont(true);
    for (QLabel *label : {m_form.scansubtitlelabel, m_form.labNoDataText, m_form.labLoadingText,
                          m_form.labNoFilterText})
        label->setFont(plain);
    m_form.scantitlelabel->setFont(FontManager::instance()->getFont(false));
    m_form.selectAlllabel->setFont(FontManager::instance()->styledFont(false, CaptionPixels));
    for (QLabel *label : {m_form.labNoDataTitle, m_form.labLoadingTitle, m_form.labNoFilterTitle})
        label->setFont(semibold);
}

void ContentPages::retranslate()
{
    m_form.selectAlllabel->setText(translatedKey("select_all"));
    m_form.allCheckButton->setAccessibleName(m_form.selectAlllabel->text());
    m_form.scantitlelabel->setText(translatedKey("scanning"));
    m_form.scansubtitlelabel->setText(translatedKey("scandataview_scanning_hint"));
    m_form.labNoDataTitle->setText(translatedKey("file_not_found"));
    m_form.labNoDataText->setText(translatedKey("scandataview_file_not_found_hint"));
    m_form.labLoadingTitle->setText(translatedKey("ai_tags_loading_title"));
    m_form.labLoadingText->setText(translatedKey("ai_tags_loading_desc"));
    m_form.labNoFilterTitle->setText(translatedKey("filter_empty_title"));
    m_form.labNoFilterText->setText(translatedKey("filter_empty_desc"));
    if (m_searchHint)
        m_searchHint->doChangeLanguage();
    if (m_aiSearchHint)
        m_aiSearchHint->doChangeLanguage();
}

void ContentPages::updateTheme()
{
    if (m_searchHint)
        m_searchHint->updateTheme();
    if (m_aiSearchHint)
        m_aiSearchHint->updateTheme();
}
