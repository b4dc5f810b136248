#include "delegates/icondelegate.h"

#include "common/commonfunction.h"
#include "common/fontmanager.h"
#include "common/scanviewmanager.h"
#include "common/thememanager.h"
#include "delegates/delegateitem.h"
#include "delegates/devicegrid.h"
#include "delegates/painterstate.h"
#include "model/itemtext.h"
#include "model/scanitemrole.h"
#include "thumbnails/filetypeicons.h"
#include "thumbnails/scanpluginpreviewmanager.h"

#include <QCoreApplication>
#include <QDebug>
#include <QMouseEvent>
#include <QPainter>
#include <QTextBrowser>
#include <QThread>

namespace {

constexpr qint64 TooltipPauseMs = 1000;
constexpr int NameFontSize = 13;
constexpr int NameFontWeight = 400;
constexpr int CountFontSize = 11;
constexpr int ElideReserve = 15;
constexpr qreal OverlayOpacity = 0.6;
constexpr Qt::Alignment CentredText = Qt::AlignHCenter | Qt::AlignVCenter;

void drawIfAny(QPainter *painter, const DeviceGrid &grid, const QRect &rect, const QPixmap &pixmap)
{
    if (!pixmap.isNull() && !rect.isEmpty())
        grid.draw(painter, rect, pixmap);
}

bool hasThumbnail(const TreeItemData &item)
{
    return item.kind == ItemKind::File
        && ScanPluginPreviewManager::instance()->hasGridThumbnail(item.fileId);
}

} // namespace

IconDelegate::IconDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , m_nameTip(TooltipPauseMs)
    , m_labelTip(TooltipPauseMs)
{
    loadThemeResources();
    connect(ThemeManager::instance(), &ThemeManager::singleThemeChanged, this,
            &IconDelegate::loadThemeResources);
    m_names.renderer()->installEventFilter(this);
}

IconDelegate::~IconDelegate() = default;

void IconDelegate::loadThemeResources()
{
    m_theme = ThemeManager::instance()->getThemeType();
    m_background.load();
    m_pictures.load();
    m_colors = ItemColors(m_theme);
    m_names.setColors(m_colors);
    m_fontFamily.clear();
}

void IconDelegate::prepare() const
{
    if (m_fontFamily != FontManager::instance()->family())
        retranslate();
}

void IconDelegate::retranslate() const
{
    const FontManager *fonts = FontManager::instance();
    m_fontFamily = fonts->family();
    m_names.setFont(fonts->getFont(NameFontSize, NameFontWeight));
    m_countFont = fonts->getFont(false);
    m_countFont.setPixelSize(CountFontSize);
    m_label.reload();
    m_label.setAssessingIcon(m_pictures.assessingIcon);
    m_background.clear();
    m_nameStrips.clear();
    m_elideCache.clear();
}

bool IconDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_names.renderer())
        return QStyledItemDelegate::eventFilter(watched, event);
    if (event->type() == QEvent::LanguageChange)
        m_fontFamily.clear();
    return false;
}

void IconDelegate::setSearchKeyword(const QString &keyword)
{
    m_names.setKeyword(keyword);
    m_nameStrips.clear();
}

void IconDelegate::setPressedIndex(const QModelIndex &index)
{
    m_pressed.set(index, itemOf(index));
}

QSize IconDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    Q_UNUSED(option)
    Q_UNUSED(index)
    return CardLayout::sizeHint();
}

void IconDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    if (ScanViewManager::instance()->plainPainting) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    if (!index.isValid()) {
        qDebug() << "icon delegate model index invalid";
        return;
    }
    prepare();

    TreeItemData *item = itemOf(index);
    const int kind = item ? index.data(KindRole).toInt() : 0;
    const bool isFile = item && kind == ItemKind::File;
    ThumbnailStore::Info thumbnail;
    if (isFile) {
        thumbnail = ScanPluginPreviewManager::instance()->gridThumbnailInfo(item->fileId);
        m_repairedCheck.refresh(item, thumbnail.serial);
    }
    paintCard(painter, option, index, item, kind, thumbnail);
    // last, because whoever listens may destroy the record
    if (isFile && !thumbnail.serial)
        reportMissingThumbnail(item);
}

void IconDelegate::prepareCard(const QStyleOptionViewItem &option, const QRect &cell, qreal scale,
                               const QModelIndex &index) const
{
    const TreeItemData *item = itemOf(index);
    if (!item || cell.isEmpty() || ScanViewManager::instance()->plainPainting)
        return;
    prepare();
    const CardLayout layout(cell, option.direction);
    if (layout.name.isValid())
        m_names.prepare(nameOn(layout, *item));
    const ThumbnailStore::Info thumbnail = item->kind == ItemKind::File
        ? ScanPluginPreviewManager::instance()->gridThumbnailInfo(item->fileId)
        : ThumbnailStore::Info();
    if (thumbnail.serial)
        fitted(DeviceGrid(QTransform::fromScale(scale, scale)),
               layout.thumbnail(thumbnail.size.toSize()), *item, thumbnail);
}

void IconDelegate::preparePicture(const QSize &cell, qreal scale, qint64 fileId) const
{
    auto *thumbnails = ScanPluginPreviewManager::instance();
    const ThumbnailStore::Info thumbnail = thumbnails->gridThumbnailInfo(fileId);
    if (!thumbnail.serial || cell.isEmpty())
        return;
    const QRect rect = CardLayout({QPoint(), cell}).thumbnail(thumbnail.size.toSize());
    const DeviceGrid grid(QTransform::fromScale(scale, scale));
    m_scaledThumbnails.prepare(thumbnail.serial,
                               rect.isEmpty() ? QSize() : grid.deviceRect(rect).size(),
                               thumbnails->gridImage(fileId));
}

void IconDelegate::reportMissingThumbnail(TreeItemData *item) const
{
    emit const_cast<IconDelegate *>(this)->signalGetThumItem(item);
}

void IconDelegate::paintCard(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index, TreeItemData *item, int kind,
                             const ThumbnailStore::Info &thumbnail) const
{
    const CardLayout layout(option.rect, option.direction);
    const DeviceGrid grid(painter);
    const PainterState state(painter);
    painter->setLayoutDirection(option.direction); // not the script of each name

    CardBackground::Card card;
    card.look = lookOf(option, index, item);
    card.dark = m_theme == DarkTheme;
    if (item && kind == ItemKind::File)
        card.label = recoverabilityOf(item, thumbnail.serial != 0, m_assessmentFinished);

    QRect pictureRect = layout.icon;
    QPixmap picture;
    try {
        if (thumbnail.serial) {
            pictureRect = layout.thumbnail(thumbnail.size.toSize());
            picture = fitted(grid, pictureRect, *item, thumbnail);
        } else if (item) {
            picture = iconOf(*item, kind);
        }
    } catch (...) {
        qDebug() << "icon delegate draw thumicon exception";
        item = nullptr;
    }
    const QPixmap plate = m_background.draw(painter, grid, layout, option.palette.base(), card,
                                            m_label);
    if (!item)
        return;

    drawIfAny(painter, grid, pictureRect, picture);
    const bool hovered = kind == ItemKind::File && option.state.testFlag(QStyle::State_MouseOver);
    if (kind == ItemKind::File)
        drawOverlays(painter, grid, layout, pictureRect, *item, hovered);
    if (thumbnail.serial && item->property("previewRepaired").toBool())
        drawIfAny(painter, grid, layout.repairBadge(layout.thumbArea), m_pictures.repairBadge);
    drawIfAny(painter, grid, layout.checkBox,
              m_pictures.checkBox.picture(
                  CheckBox::lookOf(*item, item->checkState, m_emptyFolderCheckable)));
    drawTexts(painter, grid, layout,
              {layout.name, plate, CardBackground::plateRect(layout),
               hovered ? layout.thumbArea : pictureRect},
              *item);
}

CardBackground::Look IconDelegate::lookOf(const QStyleOptionViewItem &option,
                                          const QModelIndex &index, TreeItemData *item) const
{
    if (!m_pressed.isSet() || m_pressed.is(index, item)
        || option.state.testFlag(QStyle::State_Selected) || m_marked.contains(index)) {
        // one card of a fresh grid is always current: the first to be painted
        m_pressed.set(index, item);
        return CardBackground::SelectedLook;
    }
    if (option.state.testFlag(QStyle::State_MouseOver))
        return CardBackground::HoverLook;
    return CardBackground::NormalLook;
}

QPixmap IconDelegate::fitted(const DeviceGrid &grid, const QRect &rect, const TreeItemData &item,
                             const ThumbnailStore::Info &thumbnail) const
{
    auto *thumbnails = ScanPluginPreviewManager::instance();
    if (!grid.isAligned())
        return thumbnails->gridThumbnail(item.fileId);
    const QSize deviceSize = rect.isEmpty() ? QSize() : grid.deviceRect(rect).size();
    if (deviceSize.isEmpty())
        return {};
    return m_scaledThumbnails.scaled(thumbnail.serial, deviceSize,
                                     [&] { return thumbnails->gridImage(item.fileId); });
}

QPixmap IconDelegate::iconOf(const TreeItemData &item, int kind) const
{
    if (ItemKind::isFolderLike(kind))
        return m_pictures.folderIcon;
    return kind == ItemKind::File ? FileTypeIcons::icon(item, FileTypeIcons::Size::Card)
                                  : QPixmap();
}

void IconDelegate::drawOverlays(QPainter *painter, const DeviceGrid &grid, const CardLayout &layout,
                                const QRect &picture, const TreeItemData &item, bool hovered) const
{
    const bool playable = ItemKind::isPlayable(item.fileCategory);
    if (!playable && !hovered)
        return;
    const QRect overlay = layout.overlay(picture);
    painter->setOpacity(OverlayOpacity);
    if (playable)
        drawIfAny(painter, grid, overlay, m_pictures.playButton);
    if (hovered) {
        drawIfAny(painter, grid, layout.thumbArea, m_pictures.previewMask);
        drawIfAny(painter, grid, overlay,
                  playable ? m_pictures.playButton : m_pictures.previewButton);
    }
    painter->setOpacity(1.0);
}

QString IconDelegate::nameOn(const CardLayout &layout, const TreeItemData &item) const
{
    return getElidedText(ItemText::displayName(item), layout.name.width() - ElideReserve);
}

void IconDelegate::drawTexts(QPainter *painter, const DeviceGrid &grid, const CardLayout &layout,
                             const NameStrips::Place &place, const TreeItemData &item) const
{
    if (!layout.name.isValid())
        return;
    const QString name = nameOn(layout, item);
    if (!m_nameStrips.draw(painter, grid, place, name, &m_names))
        m_names.draw(painter, layout.name, name, CentredText);
    if (!ItemKind::isFolderLike(item.kind))
        return;
    const PainterState state(painter);
    const QString count = QString::number(item.itemCount);
    painter->setFont(m_countFont);
    painter->setPen(m_colors.text);
    painter->drawText(layout.countLine(painter->fontMetrics().horizontalAdvance(count)),
                      int(CentredText), count);
}

QString IconDelegate::getElidedText(const QString &text, int width) const
{
    try {
        if (ElideCache::isShort(text))
            return text;
        if (QCoreApplication::instance()->thread() != QThread::currentThread()) {
            qDebug() << "icondelegate currentThread not mainthread";
            return text;
        }
        prepare();
        return m_names.elided(&m_elideCache, text, width);
    } catch (...) {
        qDebug() << "class QString __cdecl IconDelegate::getElidedText(const class QString &,int) "
                    "const"
                 << "unknown exception";
        return text;
    }
}

bool IconDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                               const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const auto base = [&] { return QStyledItemDelegate::editorEvent(event, model, option, index); };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        break;
    case QEvent::Leave:
        emit signalSetCursor(Qt::ArrowCursor);
        return base();
    default:
        return base();
    }

    const QVariant kindOfItem = index.data(KindRole);
    if (!kindOfItem.isValid()) // the record has died under the mouse
        return base();
    const int kind = kindOfItem.toInt();
    const auto *mouse = static_cast<QMouseEvent *>(event);
    const CardLayout layout(option.rect, option.direction);
    const bool inside = layout.cell.contains(mouse->pos());
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (inside && press(*mouse, model, layout, index, kind))
            return false;
        break;
    case QEvent::MouseButtonDblClick:
        if (inside && mouse->button() == Qt::LeftButton) {
            emit signalClickDouble(index);
            return true;
        }
        break;
    case QEvent::MouseMove:
        if (kind == ItemKind::File) {
            hover(mouse->pos(), layout, index);
            return false;
        }
        break;
    default:
        if (mouse->button() == Qt::LeftButton)
            return false;
    }
    return base();
}

bool IconDelegate::press(const QMouseEvent &event, QAbstractItemModel *model,
                         const CardLayout &layout, const QModelIndex &index, int kind)
{
    if (event.button() == Qt::RightButton) {
        if (kind != ItemKind::File)
            return false;
        emit signalClickRightButton(index);
        return true;
    }
    if (layout.hitsCheckBox(event.pos()))
        return toggleCheck(model, index, kind);
    if (kind == ItemKind::File && layout.hitsPreviewButton(event.pos())) {
        emit signalClickListViewItem(index);
        return false;
    }
    if (!(event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier)))
        m_marked.clear();
    // before the signal: whoever listens may reset the model
    setPressedIndex(index);
    emit signalMutilSelectEvent();
    return false;
}

bool IconDelegate::toggleCheck(QAbstractItemModel *model, const QModelIndex &index, int kind)
{
    const bool folderLike = ItemKind::isFolderLike(kind);
    if (!folderLike && kind != ItemKind::File)
        return false;
    // below 1, not only 0: of an unknown count nothing can be recovered either
    if (folderLike && !m_emptyFolderCheckable && index.data(CountRole).toLongLong() < 1)
        return false;
    const Qt::CheckState state = CheckBox::toggled(index.data(Qt::CheckStateRole).toInt());
    const QPersistentModelIndex card(index);
    model->setData(index, state, Qt::CheckStateRole);
    emit signalCheckStateChange(card, state);
    setPressedIndex(card);
    return true;
}

void IconDelegate::hover(const QPoint &pos, const CardLayout &layout, const QModelIndex &index)
{
    emit signalSetCursor(layout.hitsPreviewButton(pos) ? Qt::PointingHandCursor : Qt::ArrowCursor);
    const TreeItemData *item = itemOf(index);
    if (!item)
        return;
    prepare();
    const Recoverability level = recoverabilityOf(item, hasThumbnail(*item), m_assessmentFinished);
    if (m_label.rect(layout.cell, level).contains(pos) && m_labelTip.allows(index)) {
        emit signalShowTooltip(RecoverabilityLabel::tooltip(level));
        m_labelTip.shown(index);
        return;
    }
    if (!layout.cell.contains(pos))
        return;
    QString text = CommonFunction::categoryName(item->rootType);
    if (text.isEmpty())
        text = item->name;
    if (!text.isEmpty() && m_nameTip.allows(index)) {
        emit signalShowTooltip(text);
        m_nameTip.shown(index);
    }
}
