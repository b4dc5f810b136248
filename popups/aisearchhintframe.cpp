#include "popups/aisearchhintframe.h"

#include "common/fontmanager.h"
#include "common/qssloader.h"
#include "common/translation.h"
#include "popups/hintcolumn.h"
#include "popups/hintpicture.h"
#include "ui_aisearchhintframe.h"

AISearchHintFrame::AISearchHintFrame(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::AISearchHintFrame>())
{
    ui->setupUi(this);
    new HintColumn(
        this, ui->labelImage,
        {ui->labelTitle, ui->labelDescription, ui->labelTip1, ui->labelTip2, ui->labelTip3});
    loadStyleSheet();
    showHintPicture(ui->labelImage, QStringLiteral(":Images/image200_No scan_white"));
    doChangeLanguage();
}

AISearchHintFrame::~AISearchHintFrame() = default;

void AISearchHintFrame::doChangeLanguage()
{
    const FontManager *fonts = FontManager::instance();
    ui->labelTitle->setFont(fonts->getFont(true));
    for (QLabel *label : {ui->labelDescription, ui->labelTip1, ui->labelTip2, ui->labelTip3})
        label->setFont(fonts->getFont(false));

    ui->labelTitle->setText(translatedKey("ai_search_empty_title"));
    ui->labelDescription->setText(translatedKey("ai_search_empty_desc"));
    ui->labelTip1->setText(QStringLiteral("1. %1").arg(translatedKey("ai_search_empty_tip1")));
    ui->labelTip2->setText(QStringLiteral("2. %1").arg(translatedKey("ai_search_empty_tip2")));
    ui->labelTip3->setText(QStringLiteral("3. %1").arg(translatedKey("ai_search_empty_tip3")));
    setAccessibleName(ui->labelTitle->text());
}

void AISearchHintFrame::updateTheme()
{
    loadStyleSheet();
}

void AISearchHintFrame::loadStyleSheet()
{
    QSSLoader::applyStyleSheet(this, QStringLiteral("aisearchhintframe.qss"));
}
