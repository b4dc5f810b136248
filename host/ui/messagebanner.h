#pragma once

#include <QFrame>

class QLabel;
class QToolButton;
struct HostTheme;

/// One message over the results, until the user has read it.
class MessageBanner : public QFrame
{
    Q_OBJECT

public:
    enum Kind { Failure, Success, Hint };

    explicit MessageBanner(QWidget *parent = nullptr);

    /// Replaces what stands there.
    void tell(Kind kind, const QString &text);
    void setTheme(const HostTheme &theme);

private:
    void refreshIcon();

    QLabel *m_icon;
    QLabel *m_text;
    QToolButton *m_close;
    QColor m_colors[3];
    Kind m_kind = Hint;
};
