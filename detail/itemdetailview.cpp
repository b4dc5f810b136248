#include "detail/itemdetailview.h"

#include "common/commonfunction.h"
#include "common/fontmanager.h"
#include "common/qssloader.h"
#include "common/restyling.h"
#include "common/screenpixmap.h"
#include "common/translation.h"
#include "detail/chipinfoitem.h"
#include "detail/datainfoitem.h"
#include "detail/itemlocation.h"
#include "detail/metadatatitles.h"
#include "model/itemtext.h"
#include "model/recoverability.h"
#include "model/spokentext.h"
#include "popups/previewframe.h"
#include "thumbnails/filetypeicons.h"
#include "thumbnails/scanpluginpreviewmanager.h"
#include "ui_itemdetailview.h"

#include <QEvent>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int RestMs = 180; // longer than a held arrow key takes to the next item
constexpr int FileKind = 2;
constexpr int LongestMetadata = 64; // rows; more is not information but a broken file

QString metadataValue(const TreeItemData &item, const char *key)
{
    for (const auto &pair : item.metaData) {
        if (pair.first == QLatin1String(key))
            return pair.second;
    }
    return {};
}

/// What is shown of the host's pairs, in the order of the pane.
QVector<QPair<QString, QString>> shownMetadata(const TreeItemData &item)
{
    QVector<QPair<QString, QString>> shown;
    for (const auto &pair : item.metaData) {
        if (!pair.first.isEmpty() && !pair.second.isEmpty()
            && !MetadataTitles::hasOwnRow(pair.first))
            shown.append(pair);
    }
    std::stable_sort(shown.begin(), shown.end(), [](const auto &a, const auto &b) {
        return MetadataTitles::order(a.first) < MetadataTitles::order(b.first);
    });
    return shown.mid(0, LongestMetadata);
}

} // namespace

ItemDetailView::ItemDetailView(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::ItemDetailViewClass>())
{
    loadStyleSheet(); // before there is anything that would have to be styled again
    ui->setupUi(this);
    ui->namelabel->setFont(FontManager::instance()->getFont(true));
    ui->namelabel->setElideMode(Qt::ElideMiddle);
    // The page shows through: a viewport paints the palette's window colour otherwise.
    ui->scrollArea->viewport()->setAutoFillBackground(false);
    ui->scrollAreaWidgetContents->setAutoFillBackground(false);
    ui->frameIconBg->installEventFilter(this);

    m_rest.setSingleShot(true);
    m_rest.setInterval(RestMs);
    connect(&m_rest, &QTimer::timeout, this, &ItemDetailView::request);
    ui->openButton->setAutoDefault(true); // Enter clicks, as Space does
    connect(ui->openButton, &QPushButton::clicked, this, [this] {
        if (m_item)
            emit signalClickedOpen(m_item);
    });
    mirror();
    retranslate();
    m_restyling = new Restyling(this, [this] { restyle(); });
}

ItemDetailView::~ItemDetailView() = default;

void ItemDetailView::makeRows()
{
    const auto addRow = [this] {
        auto *row = new DataInfoItem(this);
        ui->frameListLayout->addWidget(row);
        row->show();
        return row;
    };
    m_path = addRow();
    m_path->setValueElideMode(Qt::ElideMiddle);
    m_path->setTabAfter(ui->scrollArea); // not behind all that the host has made meanwhile
    m_status = addRow();
    m_size = addRow();
    m_resolution = addRow();
    m_recoverability = addRow();
    m_tags = new ChipInfoItem(this);
    ui->frameListLayout->addWidget(m_tags);
    connect(m_path, &DataInfoItem::linkClicked, this, [this] {
        if (m_item)
            emit signalPathClicked(m_item);
    });

    m_preview = new PreviewFrame(ui->frameIconBg);
    m_preview->hide();
    connect(m_preview, &PreviewFrame::signalPreviewClicked, ui->openButton, &QPushButton::click);
    retranslateRows();
}

void ItemDetailView::setItem(TreeItemData *item)
{
    if (m_item != item) {
        if (m_item)
            disconnect(m_item, nullptr, this, nullptr);
        m_item = item;
        if (item) {
            connect(item, &TreeItemData::metaDataChanged, this, &ItemDetailView::refresh);
            connect(item, &QObject::destroyed, this, &ItemDetailView::refresh);
        }
    }
    refresh();
    if (m_item && isVisible())
        m_rest.start();
    else
        m_rest.stop();
}

void ItemDetailView::refresh()
{
    // Null as soon as the item begins to die.
    const bool shown = !m_item.isNull();
    for (QWidget *part :
         {static_cast<QWidget *>(ui->frameIcon), static_cast<QWidget *>(ui->frameName),
          static_cast<QWidget *>(ui->frameOpen), static_cast<QWidget *>(ui->scrollArea)})
        part->setVisible(shown);
    if (!shown)
        return;
    if (!m_path)
        makeRows();
    fillPicture();
    placePreview(ui->frameIconBg->underMouse());
    fillFacts();
    fillTags();
    fillMetadata();
}

void ItemDetailView::refreshPicture(qint64 fileId)
{
    if (m_item && m_item->fileId == fileId) {
        fillPicture();
        fillFacts();
    }
}

void ItemDetailView::fillPicture()
{
    auto *previews = ScanPluginPreviewManager::instance();
    QPixmap picture;
    if (m_item->kind == FileKind) {
        picture = previews->gridThumbnail(m_item->fileId);
        if (picture.isNull())
            picture = FileTypeIcons::icon(*m_item, FileTypeIcons::Size::Pane);
    } else {
        picture = CommonFunction::highDpiPixmap(QStringLiteral(":/Images/icon168_File_Folder"));
    }
    const QSize room = ui->frameIconBg->maximumSize().boundedTo(QSize(width(), QWIDGETSIZE_MAX))
        - QSize(2, 2);
    // The same one is asked for again and again: by facts that come in, by a change of the theme.
    const PictureKey key{picture.cacheKey(), room, devicePixelRatioF()};
    if (key == m_pictureKey)
        return;
    m_pictureKey = key;
    const QSizeF size = QSizeF(picture.size()) / picture.devicePixelRatio();
    if (size.width() > room.width() || size.height() > room.height()) {
        const qreal ratio = devicePixelRatioF();
        picture = picture.scaled(room * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        picture.setDevicePixelRatio(ratio);
    }
    ui->iconlabel->setPixmap(screenPixmap(picture));
}

void ItemDetailView::placePreview(bool shown)
{
    if (!m_preview)
        return;
    m_preview->setGeometry(ui->frameIconBg->rect());
    m_preview->setVisible(shown && m_item && m_item->kind == FileKind);
}

bool ItemDetailView::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui->frameIconBg
        && (event->type() == QEvent::Enter || event->type() == QEvent::Leave
            || event->type() == QEvent::Resize))
        placePreview(event->type() == QEvent::Enter
                     || (event->type() == QEvent::Resize && m_preview && m_preview->isVisible()));
    return QWidget::eventFilter(watched, event);
}

void ItemDetailView::fillFacts()
{
    const bool file = m_item->kind == FileKind;
    const QString name = ItemText::displayName(*m_item);
    ui->namelabel->setFullText(file || m_item->itemCount < 0
                                   ? name
                                   : name + QStringLiteral(" (%1)").arg(m_item->itemCount));
    for (QWidget *part : {static_cast<QWidget *>(this), static_cast<QWidget *>(ui->scrollArea),
                          static_cast<QWidget *>(ui->iconlabel)})
        part->setAccessibleName(name);

    const QString location = detailLocation(*m_item);
    m_path->setValue(location);
    m_path->setLink(!location.isEmpty());
    m_status->setValue(translatedKey(m_item->exists ? "filter_bar_widget_existing_files"
                                                    : "filter_bar_widget_delete_files"));
    m_size->setVisible(!file);
    m_size->setValue(ItemText::size(*m_item));
    m_resolution->setVisible(file);
    m_resolution->setValue(metadataValue(*m_item, "Resolution"));
    m_recoverability->setVisible(file);
    const bool hasThumbnail = ScanPluginPreviewManager::instance()->hasGridThumbnail(
        m_item->fileId);
    m_recoverability->setValue(translatedKey(
        recoverabilityKey(recoverabilityOf(m_item, hasThumbnail, m_assessmentFinished))));
}

void ItemDetailView::fillTags()
{
    QStringList tags;
    for (const QString &scene : qAsConst(m_item->aiScenes)) {
        const QString key = MetadataTitles::sceneTagKey(scene);
        if (!key.isEmpty())
            tags.append(translatedKey(key.toLatin1().constData()));
    }
    m_tags->setVisible(!tags.isEmpty());
    m_tags->setChips(tags);
}

void ItemDetailView::fillMetadata()
{
    const auto metadata = shownMetadata(*m_item);
    // While the answer is on its way the rows of the item before stay, without their values.
    const bool waiting = m_item->kind == FileKind && m_item->metaData.isEmpty()
        && m_rest.isActive();
    for (int i = 0; i < metadata.size(); ++i) {
        DataInfoItem *row = metadataRow(i);
        const QString key = MetadataTitles::titleKey(metadata.at(i).first);
        row->setTitle(key.isEmpty() ? QString() : translatedKey(key.toLatin1().constData()));
        row->setValue(metadata.at(i).second);
        row->show();
    }
    for (int i = metadata.size(); i < m_metadataRows.size(); ++i) {
        if (waiting)
            m_metadataRows.at(i)->setValue(QString());
        else
            m_metadataRows.at(i)->hide();
    }
}

DataInfoItem *ItemDetailView::metadataRow(int index)
{
    while (m_metadataRows.size() <= index) {
        auto *row = new DataInfoItem(this);
        ui->frameListLayout->addWidget(row);
        m_metadataRows.append(row);
    }
    return m_metadataRows.at(index);
}

void ItemDetailView::request()
{
    if (!m_item || m_item->kind != FileKind)
        return;
    const QPointer<TreeItemData> item = m_item;
    if (!ScanPluginPreviewManager::instance()->hasGridThumbnail(item->fileId))
        emit signalGetThumPixmap(item);
    if (item && item->metaData.isEmpty())
        emit signalGetMetaData(item);
}

void ItemDetailView::setAssessmentFinished(bool finished)
{
    if (finished == m_assessmentFinished)
        return;
    m_assessmentFinished = finished;
    refresh();
}

void ItemDetailView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_item)
        m_rest.start();
}

void ItemDetailView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    else if (event->type() == QEvent::LayoutDirectionChange)
        mirror();
}

void ItemDetailView::mirror()
{
    // margins are the only thing about a layout that does not turn round by itself
    if (isRightToLeft() == m_mirrored)
        return;
    m_mirrored = isRightToLeft();
    for (QLayout *part : {layout(), ui->frameIcon->layout(), ui->frameName->layout(),
                          ui->frameOpen->layout(), ui->scrollAreaWidgetContents->layout()}) {
        const QMargins margins = part->contentsMargins();
        part->setContentsMargins(margins.right(), margins.top(), margins.left(), margins.bottom());
    }
}

void ItemDetailView::updateTheme()
{
    m_restyling->request();
}

void ItemDetailView::restyle()
{
    loadStyleSheet();
    const auto rows = findChildren<DataInfoItem *>();
    for (DataInfoItem *row : rows)
        row->updateTheme();
    if (m_path) {
        m_tags->updateTheme();
        m_preview->updateTheme();
    }
    refresh();
}

void ItemDetailView::loadStyleSheet()
{
    QSSLoader::applyStyleSheet(this, QStringLiteral("itemdetailview.qss"));
}

void ItemDetailView::retranslate()
{
    ui->scrollArea->verticalScrollBar()->setAccessibleName(SpokenText::scrollBar());
    ui->openButton->setText(translatedKey("preview"));
    ui->openButton->setFont(FontManager::instance()->getFont(false));
    ui->namelabel->setFont(FontManager::instance()->getFont(true));
    if (m_path)
        retranslateRows();
    refresh();
}

void ItemDetailView::retranslateRows()
{
    m_path->setTitle(translatedKey("path"));
    m_status->setTitle(translatedKey("file_status"));
    m_size->setTitle(translatedKey("size"));
    m_resolution->setTitle(translatedKey("resolution"));
    m_recoverability->setTitle(translatedKey("recoverability_label_list"));
    m_tags->setTitle(translatedKey("ai_tags_title"));
}
