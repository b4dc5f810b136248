#include "popups/previewframe.h"

#include "common/qssloader.h"
#include "common/translation.h"
#include "ui_previewframe.h"

#include <QEvent>

PreviewFrame::PreviewFrame(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::PreviewFrame>())
{
    ui->setupUi(this);
    loadStyleSheet();
    retranslate();
    connect(ui->btnPreview, &QPushButton::clicked, this, &PreviewFrame::signalPreviewClicked);
}

PreviewFrame::~PreviewFrame() = default;

void PreviewFrame::updateTheme()
{
    loadStyleSheet();
}

void PreviewFrame::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QFrame::changeEvent(event);
}

void PreviewFrame::loadStyleSheet()
{
    QSSLoader::applyStyleSheet(this, QStringLiteral("previewframe.qss"));
}

void PreviewFrame::retranslate()
{
    ui->btnPreview->setAccessibleName(translatedKey("preview"));
}
