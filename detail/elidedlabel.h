#pragma once

#include <QLabel>

/// A label of one line that cuts its text to its width. The whole text is in the tooltip while it
/// is cut, in the dynamic property "tooltipkey" always, and on the clipboard after a copy. As a
/// link it is clicked like one. GUI thread.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    /// Line breaks and control characters of \a text are shown as spaces.
    void setFullText(const QString &text);
    QString fullText() const { return m_fullText; }
    void setElideMode(Qt::TextElideMode mode);
    /// Sets the dynamic property "link" for the stylesheet.
    void setLink(bool link);
    bool isLink() const { return m_link; }

    QSize minimumSizeHint() const override;

signals:
    void linkClicked();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    /// What the shown text depends on.
    struct Elision
    {
        QString text;
        Qt::TextElideMode mode = Qt::ElideRight;
        QFont font;
        int width = -1;

        bool operator==(const Elision &other) const
        {
            return width == other.width && mode == other.mode && text == other.text
                && font == other.font;
        }
    };

    void align();
    void elide();
    void copy() const;

    QString m_fullText;
    Qt::TextElideMode m_mode = Qt::ElideRight;
    Elision m_elision; // as last shown
    bool m_link = false;
    bool m_eliding = false;
};
