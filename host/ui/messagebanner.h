#pragma once

#include <QFrame>
#include <QTimer>

#include <functional>

class QLabel;
class QToolButton;
struct HostTheme;

/// One message, until the user has read it: a bar above the results, or a card that floats over
/// them and moves nothing.
class MessageBanner : public QFrame
{
    Q_OBJECT

public:
    enum Kind { Failure, Success, Hint };
    /// Says the message in the language of the moment.
    using Words = std::function<QString()>;

    enum Form { Bar, Floating };

    explicit MessageBanner(Form form, QWidget *parent = nullptr);

    /// Replaces what stands there.
    void tell(Kind kind, const Words &words);
    void tell(Kind kind, const QString &text);
    /// The same as a hint that goes by itself after some seconds, but not from under the mouse or
    /// the keyboard; with a button that does \a action, where there is one.
    void offer(const Words &words, const Words &title, const std::function<void()> &action);
    /// Floating: the middle of the lower edge of \a room, in the parent's coordinates.
    void setRoom(const QRect &room);
    void setTheme(const HostTheme &theme);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void refreshIcon();
    void place();

    const Form m_form;
    QRect m_room;
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
