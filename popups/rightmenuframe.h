#pragma once

#include <QFrame>

#include <memory>

class QLabel;

namespace Ui {
class RightMenuFrame;
}

/// One entry of the context menu. Its object name, "Preview" or "Recover", chooses its icon; its
/// dynamic property "state" is what the stylesheet selects on.
class RightMenuFrame : public QFrame
{
    Q_OBJECT

public:
    enum FrameState : int { Normal, Hover, Selected };
    Q_ENUM(FrameState)

    explicit RightMenuFrame(QWidget *parent = nullptr);
    ~RightMenuFrame() override;

    /// Takes the width that \a text needs, and returns it.
    int setDisplayText(const QString &text);
    QLabel *textLabel() const;

    void updateState(RightMenuFrame::FrameState state, bool force);
    FrameState state() const { return m_state; }
    bool isHighlighted() const { return m_state == Hover || m_state == Selected; }
    void updateIconPixmap();
    void updateTheme();

    /// What a click does. The entry may be gone when this returns.
    void choose();

signals:
    /// A receiver may delete the entry.
    void buttonClicked();

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void loadStyleSheet();
    void placeLabels();

    std::unique_ptr<Ui::RightMenuFrame> ui;
    FrameState m_state = Normal;
};
