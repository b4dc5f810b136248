#pragma once

#include "host/app/session.h"

#include <QToolButton>

struct HostTheme;

/// The button with everything that changes many checks at once, and the way back.
class BulkMenu : public QToolButton
{
    Q_OBJECT

public:
    explicit BulkMenu(const Session &session, QWidget *parent = nullptr);

    /// Without the text, where there is no room for it.
    void setCompact(bool compact);
    void setTheme(const HostTheme &theme);

signals:
    void picked(Session::Bulk what);
    void undoRequested();
    void redoRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    QAction *add(Session::Bulk what);
    void refresh();
    void retranslate();

    const Session &m_session;
    QAction *m_photos;
    QAction *m_deleted;
    QAction *m_shown;
    QAction *m_invert;
    QAction *m_uncheck;
    QAction *m_undo;
    QAction *m_redo;
};
