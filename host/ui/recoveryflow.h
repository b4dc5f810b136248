#pragma once

#include "host/app/freespace.h"
#include "host/recovery/recoveryreport.h"
#include "host/scan/founditem.h"
#include "host/ui/hosttheme.h"
#include "host/ui/messagebanner.h"

#include <QObject>

class Session;

/// The way from chosen files to recovered ones: asks where to, refuses what would harm the card or
/// find no room, shows how it goes and tells what came of it.
class RecoveryFlow : public QObject
{
    Q_OBJECT

public:
    /// Dialogs open over \a window, sentences appear in \a banner.
    RecoveryFlow(Session &session, MessageBanner &banner, QWidget *window);

    const FreeSpace &room() const { return m_room; }
    void setTheme(const HostTheme &theme) { m_theme = theme; }
    void setWatching(bool watching) { m_room.setWatching(watching); }

    /// The folder that the user picks; empty when it is none.
    QString pickTarget();
    /// Asks for the target first.
    void recoverChosen(const QVector<FoundItem> &items);
    /// recovered() follows.
    void recover(const QVector<FoundItem> &items, const QString &target);

signals:
    /// Another target, or it has more or less room.
    void roomChanged();
    void recovered(const RecoveryReport &report);

private:
    void tellRefusal(const QString &reason);
    void refuse(const QVector<FoundItem> &items, const MessageBanner::Words &reason);

    Session &m_session;
    MessageBanner &m_banner;
    QWidget *m_window;
    FreeSpace m_room;
    HostTheme m_theme = HostTheme::light();
};
