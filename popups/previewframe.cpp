#include "popups/previewframe.h"

#include "common/dropshadowmanager.h"
#include "common/qssloader.h"
#include "common/translation.h"
#include "ui_previewframe.h"

#include <QEvent>
#include <QPainter>
#include <QPixmap>

namespace {

constexpr int ShadowDarkness = 80;
constexpr int ShadowTopShare = 60;

} // namespace

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

void PreviewFrame::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    const QRect button = ui->btnPreview->geometry();
    const QRect whole = button.marginsAdded(DropShadowManager::Reach);
    QPixmap shadow;
    DropShadowManager(devicePixelRatioF(), button.height() / 2)
        .paint(&shadow, QRect(QPoint(), whole.size()), ShadowDarkness, ShadowTopShare);
    QPainter(this).drawPixmap(whole.topLeft(), shadow);
}

void PreviewFrame::loadStyleSheet()
{
    QSSLoader::applyStyleSheet(this, QStringLiteral("previewframe.qss"));
}

void PreviewFrame::retranslate()
{
    ui->btnPreview->setAccessibleName(translatedKey("preview"));
}
