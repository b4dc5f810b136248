#include "detail/datainfoitem.h"

#include "common/fontmanager.h"
#include "common/qssloader.h"
#include "ui_datainfoitem.h"

#include <QEvent>

namespace {

constexpr int TitlePixels = 12;
constexpr int ValuePixels = 13;

} // namespace

DataInfoItem::DataInfoItem(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::DataInfoItem>())
{
    ui->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    applyFonts();
    loadStyleSheet();
    connect(ui->labValue, &ElidedLabel::linkClicked, this, &DataInfoItem::linkClicked);
}

DataInfoItem::~DataInfoItem() = default;

void DataInfoItem::setTitle(const QString &title)
{
    ui->labTitle->setFullText(title);
    setAccessibleName(title);
    ui->labValue->setAccessibleDescription(title);
}

QString DataInfoItem::title() const
{
    return ui->labTitle->fullText();
}

void DataInfoItem::setValue(const QString &value)
{
    ui->labValue->setFullText(value.isEmpty() ? QStringLiteral("--") : value);
    setAccessibleDescription(this->value());
}

QString DataInfoItem::value() const
{
    return ui->labValue->fullText();
}

void DataInfoItem::setLink(bool link)
{
    ui->labValue->setLink(link);
}

void DataInfoItem::setTabAfter(QWidget *widget)
{
    setTabOrder(widget, ui->labValue);
}

void DataInfoItem::setValueElideMode(Qt::TextElideMode mode)
{
    ui->labValue->setElideMode(mode);
}

void DataInfoItem::updateTheme()
{
    loadStyleSheet();
}

void DataInfoItem::loadStyleSheet()
{
    QSSLoader::applyStyleSheet(this, QStringLiteral("datainfoitem.qss"));
}

void DataInfoItem::applyFonts()
{
    ui->labTitle->setFont(FontManager::instance()->styledFont(false, TitlePixels));
    ui->labValue->setFont(FontManager::instance()->styledFont(true, ValuePixels));
}

void DataInfoItem::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        applyFonts();
}
