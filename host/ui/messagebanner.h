#pragma once

#include <QFrame>
#include <QTimer>

#include <functional>

class QLabel;
class QToolButton;
struct HostTheme;

/// One message over the results, until the user has read it.
class MessageBanner : public QFrame
{
    Q_OBJECT

public:
    enum Kind { Failure, Success, Hint };
    /// Says the message in the language of the moment.
    using Words = std::function<QString()>;

    explicit MessageBanner(QWidget *parent = nullptr);

    /// Replaces what stands there.
    void tell(Kind kind, const Words &words);
    void tell(Kind kind, const QString &text);
    /// The same with a button that does \a action. Goes by itself after some seconds, but not from
    /// under the mouse or the keyboard.
    void offer(const Words &words, const Words &title, const std::function<void()> &action);
    void setTheme(const HostTheme &theme);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void refreshIcon();

    QLabel *m_icon;
    QLabel *m_text;
    QToolButton *m_act;
    QToolButton *m_close;
    QTimer m_leave;
    QColor m_colors[3];
    Kind m_kind = Hint;
    Words m_words;
    Words m_title;
    std::function<void()> m_action;
};
