#include "popups/rightmenudialog.h"

#include "common/dropshadowmanager.h"
#include "common/fontmanager.h"
#include "common/guard.h"
#include "common/qssloader.h"
#include "common/translation.h"
#include "platform/system/system.h"
#include "popups/menuaccessible.h"
#include "popups/menuplacement.h"
#include "popups/rightmenuframe.h"
#include "thumbnails/highdpipixmapsmanager.h"
#include "ui_rightmenudialog.h"

#include <QBitmap>
#include <QCursor>
#include <QDebug>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QScreen>

#include <algorithm>

namespace {

constexpr int EntriesInset = 8; // above the first entry and below the last
constexpr int FrameBorders = 2;
constexpr int ShadowDarkness = 80;
constexpr int ShadowTopShare = 60;
constexpr int FontPixelSize = 14;
constexpr int FontWeight = 400;
constexpr QMargins Around = DropShadowManager::Reach;

enum Action { NoAction, PreviewAction, RecoverAction };

template <typename Work>
void attempt(const char *failure, Work &&work)
{
    try {
        work();
    } catch (...) {
        qDebug() << failure;
    }
}

QScreen *screenOf(const QPoint &globalPos)
{
    QScreen *screen = QGuiApplication::screenAt(globalPos);
    return screen ? screen : QGuiApplication::primaryScreen();
}

/// The class is shared by all menus of the process, and so is what is done to it.
void removeSystemShadowOnce(WId window)
{
    static bool removed = false;
    if (removed || !window)
        return;
    removed = true;
    System::removeClassShadow(window);
}

} // namespace

RightMenuDialog::RightMenuDialog(QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::RightMenuDialog>())
{
    MenuAccessible::install();
    ui->setupUi(this);
    loadStyleSheet();
    setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);

    int y = EntriesInset;
    m_previewEntry = addEntry(QStringLiteral("Preview"), y);
    connect(m_previewEntry, &RightMenuFrame::buttonClicked, this,
            &RightMenuDialog::slotPreviewItem);
    y += m_previewEntry->height();
    m_recoverEntry = addEntry(QStringLiteral("Recover"), y);
    connect(m_recoverEntry, &RightMenuFrame::buttonClicked, this,
            &RightMenuDialog::slotRecoverEntry);
    y += m_recoverEntry->height() + EntriesInset;
    ui->frame->setFixedHeight(y);

    installEventFilter(m_previewEntry); // clazy:exclude=install-event-filter
    installEventFilter(m_recoverEntry); // clazy:exclude=install-event-filter
    m_selectedAction = NoAction;
    doChangLanguage();
}

RightMenuDialog::~RightMenuDialog() = default;

RightMenuFrame *RightMenuDialog::addEntry(const QString &name, int y)
{
    auto *entry = new RightMenuFrame(ui->frame);
    entry->setObjectName(name);
    entry->setGeometry(0, y, ui->frame->width() - FrameBorders, entry->height());
    entry->installEventFilter(this);
    return entry;
}

QSize RightMenuDialog::bodySize() const
{
    return {std::max(m_previewEntry->width(), m_recoverEntry->width()), ui->frame->height()};
}

void RightMenuDialog::place(const QPoint &globalPos)
{
    if (parentWidget())
        setLayoutDirection(parentWidget()->layoutDirection());
    const QSize body = bodySize();
    const QRect whole = QRect(QPoint(), body).marginsAdded(Around);
    ui->frame->setGeometry(QRect(QPoint(Around.left(), Around.top()), body));
    ui->labelDropShadow->setGeometry(QRect(QPoint(), whole.size()));
    setGeometry(whole.translated(globalPos));
}

void RightMenuDialog::showPoint(const QPoint &globalPos, const QModelIndex &index)
{
    guarded(Q_FUNC_INFO, [&] {
        createWinId();
        m_index = index;
        m_mouseRests = false;
        m_releaseIsDue = false;
        setAccessibleName(index.data(Qt::DisplayRole).toString());
        place(globalPos);
        const QScreen *screen = screenOf(globalPos);
        if (screen && !qFuzzyCompare(screen->devicePixelRatio(), m_shadowRatio)) {
            m_shadowRatio = screen->devicePixelRatio();
            showShadow();
        }
    });
}

void RightMenuDialog::showPointOnScreen(const QPoint &globalPos, const QModelIndex &index)
{
    const QScreen *screen = screenOf(globalPos);
    const Qt::LayoutDirection direction = parentWidget() ? parentWidget()->layoutDirection()
                                                         : layoutDirection();
    showPoint(screen ? menuCorner(globalPos, bodySize(), screen->availableGeometry(), direction)
                     : globalPos,
              index);
}

void RightMenuDialog::openByTouch(const QPoint &globalPos, const QModelIndex &index)
{
    guarded(Q_FUNC_INFO, [&] {
        showPointOnScreen(globalPos, index);
        m_releaseIsDue = true;
        show();
    });
}

void RightMenuDialog::openByKeyboard(const QPoint &globalPos, const QModelIndex &index)
{
    guarded(Q_FUNC_INFO, [&] {
        showPointOnScreen(globalPos, index);
        m_restingMouse = QCursor::pos();
        m_mouseRests = true;
        show();
        highlight(m_previewEntry);
    });
}

void RightMenuDialog::doChangLanguage()
{
    attempt("RightMenuDialog::doChangLanguage doChangeLanguage error", [this] {
        const auto giveText = [](RightMenuFrame *entry, const char *key) {
            const int width = entry->setDisplayText(translatedKey(key));
            FontManager::instance()->setWidgetFont(entry->textLabel(), FontPixelSize, FontWeight);
            return width;
        };
        const int preview = giveText(m_previewEntry, "preview");
        const int recover = giveText(m_recoverEntry, "recover");
        const int width = std::max(preview, recover);
        m_previewEntry->setFixedWidth(width);
        m_recoverEntry->setFixedWidth(width);
        ui->frame->setFixedWidth(width);
        if (isVisible())
            place(geometry().topLeft() + QPoint(Around.left(), Around.top()));
    });
    if (m_shadowRatio <= 0)
        m_shadowRatio = devicePixelRatioF();
    showShadow();
}

void RightMenuDialog::showShadow()
{
    QPixmap shadow;
    attempt("RightMenuDialog::doChangLanguage DropShadowManager error", [&] {
        const QRect whole(0, 0, ui->frame->width() + Around.left() + Around.right(),
                          ui->frame->height() + Around.top() + Around.bottom());
        DropShadowManager(m_shadowRatio).paint(&shadow, whole, ShadowDarkness, ShadowTopShare);
    });
    attempt("RightMenuDialog::doChangLanguage HighDpiPixmapsManager error", [&] {
        HighDpiPixmapsManager::instance()->setLabelPixmap(ui->labelDropShadow, shadow,
                                                          m_shadowRatio);
    });
}

void RightMenuDialog::cutToBody()
{
    const bool shadowed = System::windowsAreBlended();
    ui->labelDropShadow->setVisible(shadowed);
    if (shadowed) {
        clearMask();
        return;
    }
    constexpr int Radius = DropShadowManager::BodyRadius + 2; // what is half covered would be dark
    QBitmap body(size());
    body.clear();
    QPainter painter(&body);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::color1);
    painter.drawRoundedRect(ui->frame->geometry(), Radius, Radius);
    painter.end();
    setMask(body);
}

void RightMenuDialog::updateTheme()
{
    loadStyleSheet();
    m_previewEntry->updateTheme();
    m_recoverEntry->updateTheme();
}

void RightMenuDialog::loadStyleSheet()
{
    QSSLoader::applyStyleSheet(this, QStringLiteral("rightmenudialog.qss"));
}

void RightMenuDialog::slotPreviewItem()
{
    m_selectedAction = PreviewAction;
    emit signalsClose();
}

void RightMenuDialog::slotRecoverEntry()
{
    m_selectedAction = RecoverAction;
    emit signalsClose();
}

bool RightMenuDialog::event(QEvent *event)
{
    if (event->type() == QEvent::WinIdChange)
        guarded(Q_FUNC_INFO, [this] { removeSystemShadowOnce(internalWinId()); });
    return QDialog::event(event);
}

bool RightMenuDialog::eventFilter(QObject *watched, QEvent *event)
{
    const bool enters = event->type() == QEvent::Enter;
    if (enters || event->type() == QEvent::MouseMove) {
        const QPoint mouse = enters ? QCursor::pos()
                                    : static_cast<QMouseEvent *>(event)->globalPos();
        if (m_mouseRests && mouse == m_restingMouse)
            return true;
        m_mouseRests = false;
        highlight(qobject_cast<RightMenuFrame *>(watched));
    } else if (watched != this && event->type() == QEvent::MouseButtonPress) {
        m_releaseIsDue = false;
    } else if (watched != this && event->type() == QEvent::MouseButtonRelease && m_releaseIsDue) {
        m_releaseIsDue = false;
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

bool RightMenuDialog::focusNextPrevChild(bool next)
{
    moveHighlight(next);
    return true;
}

void RightMenuDialog::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        moveHighlight(event->key() == Qt::Key_Down);
        break;
    case Qt::Key_Home:
        highlight(m_previewEntry);
        break;
    case Qt::Key_End:
        highlight(m_recoverEntry);
        break;
    case Qt::Key_Enter:
    case Qt::Key_Return:
    case Qt::Key_Space:
        event->accept();
        if (RightMenuFrame *entry = highlighted(); entry && !event->isAutoRepeat())
            entry->choose(); // may delete the dialog
        break;
    default:
        QDialog::keyPressEvent(event);
    }
}

void RightMenuDialog::mousePressEvent(QMouseEvent *event)
{
    const bool onShadow = rect().contains(event->pos())
        && !ui->frame->geometry().contains(event->pos());
    // a left press elsewhere closes and does nothing more; another may open the next menu
    setAttribute(Qt::WA_NoMouseReplay, event->button() == Qt::LeftButton);
    m_releaseIsDue = false;
    QDialog::mousePressEvent(event);
    if (onShadow)
        close();
}

void RightMenuDialog::mouseReleaseEvent(QMouseEvent *event)
{
    m_releaseIsDue = false;
    QDialog::mouseReleaseEvent(event);
}

void RightMenuDialog::showEvent(QShowEvent *event)
{
    cutToBody();
    QDialog::showEvent(event);
    MenuAccessible::announce(this, QAccessible::PopupMenuStart);
}

void RightMenuDialog::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    highlight(nullptr);
    MenuAccessible::announce(this, QAccessible::PopupMenuEnd);
}

RightMenuFrame *RightMenuDialog::highlighted() const
{
    for (RightMenuFrame *entry : {m_previewEntry, m_recoverEntry}) {
        if (entry->isHighlighted())
            return entry;
    }
    return nullptr;
}

void RightMenuDialog::highlight(RightMenuFrame *entry)
{
    if (entry == highlighted())
        return;
    for (RightMenuFrame *each : {m_previewEntry, m_recoverEntry})
        each->updateState(each == entry ? RightMenuFrame::Hover : RightMenuFrame::Normal, false);
    if (entry)
        MenuAccessible::announce(entry, QAccessible::Focus);
}

void RightMenuDialog::moveHighlight(bool down)
{
    const RightMenuFrame *now = highlighted();
    RightMenuFrame *const edge = down ? m_previewEntry : m_recoverEntry;
    RightMenuFrame *const other = down ? m_recoverEntry : m_previewEntry;
    highlight(now == edge ? other : edge);
}
