#include "host/ui/pictureviewer.h"

#include "host/media/mediajobs.h"
#include "host/scan/filecategory.h"
#include "host/tree/itemrecord.h"
#include "host/tree/texts.h"
#include "host/ui/glyphs.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QToolButton>

namespace {
constexpr int Margin = 24;
constexpr int CaptionHeight = 40;
constexpr int ButtonSide = 40;
constexpr int IconSide = 24;
const QColor Ground(20, 22, 30);
const QColor Words(255, 255, 255, 200);
const QColor FaintWords(255, 255, 255, 60);
} // namespace

PictureViewer::PictureViewer(std::shared_ptr<const ScanSource> source, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_source(std::move(source))
    , m_previous(new QToolButton(this))
    , m_next(new QToolButton(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_OpaquePaintEvent);
    resize(QGuiApplication::primaryScreen()->availableSize() * 3 / 4);
    const auto prepare = [this](QToolButton *button, int by) {
        button->setIconSize({IconSide, IconSide});
        button->setFixedSize(ButtonSide, ButtonSide);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::NoFocus);
        connect(button, &QToolButton::clicked, this, [this, by] { step(by); });
    };
    prepare(m_previous, -1);
    prepare(m_next, 1);
    retranslate();
}

PictureViewer::~PictureViewer()
{
    m_media->leave(this);
}

void PictureViewer::open(const TreeItemData *root, const ItemRecord *current)
{
    m_root = root;
    m_item = current->found();
    lookForPhotos();
    load();
    show();
}

void PictureViewer::lookForPhotos()
{
    m_photos.clear();
    m_listed = m_root->childFiles.size();
    for (int i = 0; i < m_listed; ++i) {
        const TreeItemData *file = m_root->childFiles.at(i);
        if (file->fileCategory != PhotoCategory)
            continue;
        if (file->fileId == m_item.id)
            m_current = m_photos.size();
        m_photos.append(i);
    }
}

/// Null when the list is no longer what it was.
const ItemRecord *PictureViewer::photoAt(int number) const
{
    const int place = m_photos.value(number, -1);
    if (!m_root || place < 0 || place >= m_root->childFiles.size())
        return nullptr;
    const auto *photo = static_cast<const ItemRecord *>(m_root->childFiles.at(place));
    return photo->fileCategory == PhotoCategory ? photo : nullptr;
}

void PictureViewer::step(int by)
{
    if (m_root && m_root->childFiles.size() != m_listed)
        lookForPhotos(); // more has been found, or there is another filter
    if (const ItemRecord *photo = photoAt(m_current + by)) {
        m_current += by;
        m_item = photo->found();
        load();
    }
}

void PictureViewer::load()
{
    setWindowTitle(m_item.name);
    m_previous->setEnabled(m_current > 0);
    m_next->setEnabled(m_current + 1 < m_photos.size());
    m_loaded = MediaAnswer();
    m_media->drop(this); // nobody waits for the picture before
    const int request = ++m_request;
    const auto report = [this, request](MediaAnswer &&answer) {
        QMetaObject::invokeMethod(
            this, [this, request, answer = std::move(answer)] { take(request, answer); },
            Qt::QueuedConnection);
    };
    MediaPool::Job job;
    if (MediaJobs::prepare(m_item, extensionOf(m_item.name), &job)) {
        job.owner = this;
        job.source = m_source;
        job.request.cover = QGuiApplication::primaryScreen()->size() * devicePixelRatioF();
        job.done = report;
        m_media->add(std::move(job));
    } else {
        MediaAnswer refusal;
        refusal.error = tr("There is no picture in such a file.");
        report(std::move(refusal));
    }
    update();
}

void PictureViewer::take(int request, const MediaAnswer &answer)
{
    if (request != m_request)
        return;
    m_loaded = answer;
    update();
}

void PictureViewer::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Ground);
    painter.setPen(Words);
    const QRect room = rect().adjusted(Margin, Margin, -Margin, -CaptionHeight);
    if (!m_loaded.image.isNull()) {
        const QSize full = m_loaded.image.size() / devicePixelRatioF();
        QSize size = full;
        if (size.width() > room.width() || size.height() > room.height())
            size = size.scaled(room.size(), Qt::KeepAspectRatio);
        QRect target(QPoint(), size);
        target.moveCenter(room.center());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(target, m_loaded.image);
    } else {
        const QString why = m_loaded.error.isEmpty()
            ? tr("Loading…")
            : tr("This picture cannot be shown.\n%1").arg(m_loaded.error);
        painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, why);
    }
    const QRect caption(Margin, height() - CaptionHeight, width() - 2 * Margin, CaptionHeight);
    const QString text = tr("%1   %2 of %3")
                             .arg(m_item.name, Texts::number(m_current + 1),
                                  Texts::number(qMax(1, m_photos.size())));
    painter.drawText(caption, Qt::AlignCenter,
                     painter.fontMetrics().elidedText(text, Qt::ElideMiddle, caption.width()));
}

void PictureViewer::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        step(isRightToLeft() ? 1 : -1);
        break;
    case Qt::Key_Right:
        step(isRightToLeft() ? -1 : 1);
        break;
    case Qt::Key_Space:
        step(1);
        break;
    case Qt::Key_Escape:
        close();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void PictureViewer::retranslate()
{
    m_previous->setToolTip(tr("Previous picture"));
    m_previous->setAccessibleName(m_previous->toolTip());
    m_next->setToolTip(tr("Next picture"));
    m_next->setAccessibleName(m_next->toolTip());
    update();
}

void PictureViewer::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    if (event->type() == QEvent::LayoutDirectionChange)
        placeButtons();
}

void PictureViewer::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeButtons();
}

void PictureViewer::placeButtons()
{
    const int y = (height() - CaptionHeight - ButtonSide) / 2;
    QToolButton *const left = isRightToLeft() ? m_next : m_previous;
    QToolButton *const right = isRightToLeft() ? m_previous : m_next;
    left->move(Margin / 2, y);
    left->setIcon(glyphIcon(Glyph::Left, Words, FaintWords));
    right->move(width() - ButtonSide - Margin / 2, y);
    right->setIcon(glyphIcon(Glyph::Right, Words, FaintWords));
}
