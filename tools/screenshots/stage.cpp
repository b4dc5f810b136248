#include "stage.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDir>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QLabel>
#include <QLibrary>
#include <QMouseEvent>
#include <QPainter>
#include <QTableView>
#include <QTextStream>
#include <QTimer>

#include <qpa/qwindowsysteminterface.h>

Stage::Stage(const QSize &size)
{
    // The screen of the offscreen platform is a small one, and dialogs are kept on it.
    const QRect screen(QPoint(), QSize(8192, 8192));
    QWindowSystemInterface::handleScreenGeometryChange(QGuiApplication::primaryScreen(), screen,
                                                       screen);
    QApplication::processEvents();
    m_window.resize(size);
    auto *layout = new QHBoxLayout(&m_window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetNoConstraint); // a window is as small as its user wants
    m_records = std::make_unique<Records>(m_window.devicePixelRatioF());
}

Stage::~Stage()
{
    if (m_view)
        m_loader.unload();
}

bool Stage::load()
{
    const QDir folder(QCoreApplication::applicationDirPath() + QStringLiteral("/plugins"));
    const QStringList files = folder.entryList({QStringLiteral("SDCardScanContentPlugin*")});
    for (const QString &file : files) {
        if (QLibrary::isLibrary(file))
            m_loader.setFileName(folder.filePath(file));
    }
    m_view = qobject_cast<SDCardScanContentPluginInterface *>(m_loader.instance());
    if (!m_view) {
        QTextStream(stderr) << "quarvo-screenshots: " << m_loader.errorString() << '\n';
        return false;
    }
    // the class of the plug-in is known by the names of its signals only
    connect(m_loader.instance(), SIGNAL(signalGetMetaData(TreeItemData *)), this,
            SLOT(answerMetaData(TreeItemData *)));
    m_scan = m_view->getScanContentFrame();
    m_search = m_view->getSearchResultFrame();
    m_window.layout()->addWidget(m_scan);
    m_window.layout()->addWidget(m_search);
    m_search->hide();
    m_window.show();
    return true;
}

void Stage::setLanguage(const QString &name)
{
    Languages::apply(*Languages::find(name));
    settle(0);
}

void Stage::setTheme(const QString &name)
{
    m_view->updateTheme(name == QLatin1String("dark") ? DarkTheme : LightTheme);
    settle(0);
}

void Stage::clear()
{
    m_filter = {};
    m_view->setFilterCondition(&m_filter);
    m_view->clearData(SDCardScanContentPluginInterface::BothSides);
    m_search->hide();
    m_scan->show();
}

void Stage::showScan(TreeItemData *root, int viewMode)
{
    m_view->setScanState(SDCardScanContentPluginInterface::ScanStarted);
    m_view->setViewMode(viewMode);
    m_view->updateScanData(root);
    m_view->setScanState(SDCardScanContentPluginInterface::ScanFinished);
    handOverThumbnails();
    settle(0);
}

void Stage::showSearch(TreeItemData *root, const QString &keyword, int viewMode)
{
    m_scan->hide();
    m_search->show();
    m_view->setViewMode(viewMode);
    m_view->updateSearchData(root, keyword);
    handOverThumbnails();
    settle(0);
}

void Stage::handOverThumbnails()
{
    const auto &thumbnails = m_records->thumbnails();
    for (auto it = thumbnails.cbegin(); it != thumbnails.cend(); ++it)
        m_view->updateThumbnail(it.key(), it.value());
}

void Stage::answerMetaData(TreeItemData *item)
{
    Records::fillMetaData(item);
}

void Stage::settle(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

// What a hand does ------------------------------------------------------------------------------

QFrame *Stage::front() const
{
    return m_search->isHidden() ? m_scan : m_search;
}

QAbstractItemView *Stage::items() const
{
    const auto views = front()->findChildren<QAbstractItemView *>();
    for (QAbstractItemView *view : views) {
        if (view->isVisible())
            return view;
    }
    return nullptr;
}

QPoint Stage::placeOf(int row, int column) const
{
    return items()->visualRect(items()->model()->index(row, column)).center();
}

void Stage::send(QEvent::Type type, const QPoint &place, Qt::MouseButton button,
                 Qt::KeyboardModifiers modifiers)
{
    QWidget *target = items()->viewport();
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, place, target->mapToGlobal(place), button, held, modifiers);
    QApplication::sendEvent(target, &event);
}

void Stage::hover(int row, int column)
{
    send(QEvent::MouseMove, placeOf(row, column), Qt::NoButton);
    settle(0);
}

void Stage::click(int row, Qt::KeyboardModifiers modifiers)
{
    // beside picture, box and icon, where a click does nothing but select
    const QRect cell = items()->visualRect(items()->model()->index(row, 0));
    const QPoint place(cell.center().x(), cell.bottom() - 12);
    send(QEvent::MouseButtonPress, place, Qt::LeftButton, modifiers);
    send(QEvent::MouseButtonRelease, place, Qt::LeftButton, modifiers);
    settle(0);
}

void Stage::focus(const QString &name)
{
    m_window.activateWindow();
    QWidget *widget = name.isEmpty() ? items() : seen(name);
    if (widget)
        widget->setFocus(Qt::TabFocusReason);
    settle(0);
}

QRect Stage::drawBand(int firstRow, int lastRow)
{
    const auto cell = [this](int row, int column) {
        return items()->visualRect(items()->model()->index(row, column));
    };
    const bool rows = qobject_cast<QTableView *>(items());
    constexpr int BesideACard = 4;
    const QPoint from = rows ? cell(firstRow, 1).center()
                             : cell(firstRow, 0).topLeft() - QPoint(BesideACard, BesideACard);
    m_bandEnd = rows ? cell(lastRow, 3).center() : cell(lastRow, 0).center();
    send(QEvent::MouseButtonPress, from, Qt::LeftButton);
    QMouseEvent move(QEvent::MouseMove, m_bandEnd, items()->viewport()->mapToGlobal(m_bandEnd),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(items()->viewport(), &move);
    m_drawingBand = true;
    settle(0);
    return QRect(from, m_bandEnd).normalized();
}

void Stage::releaseBand()
{
    if (m_drawingBand && items())
        send(QEvent::MouseButtonRelease, m_bandEnd, Qt::LeftButton);
    m_drawingBand = false;
}

void Stage::openMenu(int row)
{
    const QPoint place = placeOf(row, 0);
    QCursor::setPos(items()->viewport()->mapToGlobal(place)); // it opens there
    send(QEvent::MouseMove, place, Qt::NoButton);
    send(QEvent::MouseButtonPress, place, Qt::RightButton);
    send(QEvent::MouseButtonRelease, place, Qt::RightButton);
    settle(0);
}

void Stage::lookThenClose()
{
    QTimer::singleShot(0, this, [this] {
        settle(0);
        if (m_onDialog)
            m_onDialog();
        for (QWidget *over :
             {QApplication::activePopupWidget(), QApplication::activeModalWidget()}) {
            if (over)
                over->close();
        }
    });
}

QWidget *Stage::seen(const QString &name) const
{
    const auto found = front()->findChildren<QWidget *>(name);
    for (QWidget *widget : found) {
        if (widget->isVisible())
            return widget;
    }
    return nullptr;
}

void Stage::askForMenu(const QString &name)
{
    QWidget *widget = seen(name);
    if (!widget)
        return;
    const QPoint place = widget->rect().center();
    lookThenClose();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &event);
}

void Stage::askForTooltip(const QString &name)
{
    QWidget *widget = seen(name);
    if (!widget)
        return;
    const QPoint place = widget->rect().center();
    QHelpEvent event(QEvent::ToolTip, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &event);
    settle(0);
}

void Stage::followLink()
{
    const auto labels = front()->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (!label->isVisible() || !label->text().contains(QLatin1String("<a ")))
            continue;
        lookThenClose();
        emit label->linkActivated(QStringLiteral("#"));
        return;
    }
}

// Taking the picture ----------------------------------------------------------------------------

QImage Stage::picture(qreal scale)
{
    QImage all(m_window.size() * scale, QImage::Format_ARGB32_Premultiplied);
    all.setDevicePixelRatio(scale);
    m_window.render(&all);
    QPainter painter(&all);
    const auto others = QApplication::topLevelWidgets();
    for (QWidget *other : others) {
        if (other == &m_window || !other->isVisible())
            continue;
        QImage piece(other->size() * scale, QImage::Format_ARGB32_Premultiplied);
        piece.setDevicePixelRatio(scale);
        piece.fill(Qt::transparent);
        other->render(&piece);
        painter.drawImage(m_window.mapFromGlobal(other->pos()), piece);
    }
    return all;
}

void Stage::tidyUp()
{
    releaseBand();
    if (QWidget *focused = QApplication::focusWidget())
        focused->clearFocus();
    const auto others = QApplication::topLevelWidgets();
    for (QWidget *other : others) {
        if (other != &m_window && other->isVisible())
            other->close();
    }
    if (QAbstractItemView *view = items()) {
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(view->viewport(), &leave);
    }
}
