#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

class QWidget;

/// The host's colours, in both themes. They are those of the results view, so that the window reads
/// as one piece.
struct HostTheme
{
    static HostTheme light();
    static HostTheme dark();

    bool isDark = false;
    QColor page;
    QColor chrome;
    QColor popup;
    QColor hairline;
    QColor edge;
    QColor hover;
    QColor press;
    QColor field;
    QColor text;
    QColor softText;
    QColor faintText;
    QColor offText;
    QColor icon;
    QColor accent;
    QColor accentHover;
    QColor accentPress;
    QColor accentText; ///< accent on the page, for texts and icons
    QColor accentVeil;
    QColor warn;
    QColor good;
    QColor bad;

    QPalette palette() const;
    /// The stylesheet of the host's own widgets. Set it on those and not on the window: the views
    /// of the plug-in stand in the same window and have sheets of their own.
    QString styleSheet() const { return m_sheet; }
    void applyTo(QWidget *part) const;

private:
    QString makeStyleSheet() const;

    QString m_sheet;
};
