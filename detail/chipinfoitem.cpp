#include "detail/chipinfoitem.h"

#include "common/fontmanager.h"
#include "common/qssloader.h"
#include "detail/flowlayout.h"
#include "model/spokentext.h"
#include "ui_chipinfoitem.h"

namespace {

constexpr int ChipSpacing = 6;
constexpr int FontPixels = 12;

} // namespace

ChipInfoItem::ChipInfoItem(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::ChipInfoItem>())
{
    ui->setupUi(this);
    m_flow = new FlowLayout(ChipSpacing, ui->chipContainerFrame);
    ui->labTitle->setFont(FontManager::instance()->styledFont(false, FontPixels));
    loadStyleSheet();
}

ChipInfoItem::~ChipInfoItem() = default;

void ChipInfoItem::setTitle(const QString &title)
{
    setAccessibleName(title);
    ui->labTitle->setFullText(title);
}

void ChipInfoItem::setChips(const QStringList &texts)
{
    if (texts == m_texts)
        return;
    m_texts = texts;
    setAccessibleDescription(SpokenText::joined(texts));
    while (QLayoutItem *item = m_flow->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (const QString &text : texts) {
        auto *chip = new QLabel(text, ui->chipContainerFrame);
        chip->setTextFormat(Qt::PlainText);
        chip->setFont(FontManager::instance()->styledFont(false, FontPixels));
        chip->setProperty("chipLabel", true);
        chip->setProperty("chipVariant", "tag");
        chip->setProperty("tooltipkey", text);
        m_flow->addWidget(chip);
        chip->show();
    }
    ui->chipContainerFrame->updateGeometry();
}

void ChipInfoItem::updateTheme()
{
    loadStyleSheet();
}

void ChipInfoItem::loadStyleSheet()
{
    QSSLoader::applyStyleSheet(this, QStringLiteral("chipinfoitem.qss"));
}
