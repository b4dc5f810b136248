#pragma once

#include "host/app/languages.h"
#include "plugin/sdcardscancontentplugininterface.h"
#include "records.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QImage>
#include <QPluginLoader>
#include <QWidget>

#include <functional>

/// A window as a host has it, with the plug-in's two frames, and the hands of somebody who uses it.
class Stage : public QObject
{
    Q_OBJECT

public:
    explicit Stage(const QSize &size);
    ~Stage() override;

    /// False, with a message on standard error, when the plug-in cannot be loaded.
    bool load();
    void setLanguage(const QString &name);
    void setTheme(const QString &name);

    /// Nothing on either side, no filter, the scan side in front.
    void clear();
    SDCardScanContentPluginInterface *view() const { return m_view; }
    QObject *plugin() { return m_loader.instance(); }
    QWidget &window() { return m_window; }
    /// The grid or the table, whichever is seen; null on a page without results.
    QAbstractItemView *items() const;
    Records &records() { return *m_records; }
    FilterCondition &filter() { return m_filter; }
    void showScan(TreeItemData *root, int viewMode);
    void showSearch(TreeItemData *root, const QString &keyword, int viewMode);
    void handOverThumbnails();

    void hover(int row, int column = 0);
    void click(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void openMenu(int row);
    /// From beside one row to the middle of another; the button stays down. The rectangle of the
    /// band in the viewport.
    QRect drawBand(int firstRow, int lastRow);
    void releaseBand();
    /// As by the Tab key; the widget called \a name, or the one that shows the items.
    void focus(const QString &name = {});
    /// Follows the link of the page in front. The dialog that it opens is shown to whoever looks,
    /// and closed again.
    void followLink();
    /// The menu and the tooltip of the label called \a name, in the same way.
    void askForMenu(const QString &name);
    void askForTooltip(const QString &name);
    /// \a look is called while a modal dialog is open.
    void setOnDialog(std::function<void()> look) { m_onDialog = std::move(look); }
    /// Lets timers and queued calls do what they have to.
    static void settle(int milliseconds);

    /// The window with everything that lies over it, at \a scale pixels a unit.
    QImage picture(qreal scale);
    /// Menus go, and the mouse leaves.
    void tidyUp();

private slots:
    void answerMetaData(TreeItemData *item);

private:
    QFrame *front() const;
    QWidget *seen(const QString &name) const;
    /// For what comes and holds the thread until it goes.
    void lookThenClose();
    QPoint placeOf(int row, int column) const;
    void send(QEvent::Type type, const QPoint &place, Qt::MouseButton button,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    QPluginLoader m_loader;
    SDCardScanContentPluginInterface *m_view = nullptr;
    std::unique_ptr<Records> m_records;
    FilterCondition m_filter;
    QWidget m_window;
    QFrame *m_scan = nullptr;
    QFrame *m_search = nullptr;
    std::function<void()> m_onDialog;
    QPoint m_bandEnd;
    bool m_drawingBand = false;
};
