#pragma once

#include <QDialog>
#include <QPersistentModelIndex>

#include <memory>

class RightMenuFrame;

namespace Ui {
class RightMenuDialog;
}

/// The context menu of an item: two entries in a frame with a soft shadow. It does not close by
/// itself on a choice: its owner reads selectedAction() and index() on signalsClose() and closes
/// it. A press elsewhere or Escape closes it without a choice. May be used again. GUI thread.
class RightMenuDialog : public QDialog
{
    Q_OBJECT

public:
    explicit RightMenuDialog(QWidget *parent = nullptr);
    ~RightMenuDialog() override;

    /// Puts the menu's visible top left corner at \a globalPos, wherever that is; show() follows.
    void showPoint(const QPoint &globalPos, const QModelIndex &index);
    /// Shows the menu near \a globalPos, whole on that screen, with the first entry highlighted.
    void openByKeyboard(const QPoint &globalPos, const QModelIndex &index);

    /// The same without a highlight, under a finger or a pen whose release is still to come.
    void openByTouch(const QPoint &globalPos, const QModelIndex &index);

    /// 0 nothing yet, 1 preview, 2 recover. Keeps its value until the next choice.
    int selectedAction() const { return m_selectedAction; }
    /// What the menu was opened on; invalid once that row is gone.
    QModelIndex index() const { return m_index; }
    /// Where the same item is after a model reset.
    void setIndex(const QModelIndex &index) { m_index = index; }

    /// To be called after a change of language.
    void doChangLanguage();
    void updateTheme();

    RightMenuFrame *previewEntry() const { return m_previewEntry; }
    RightMenuFrame *recoverEntry() const { return m_recoverEntry; }

signals:
    /// An entry was chosen. A receiver may delete the dialog.
    void signalsClose();

public slots:
    void slotPreviewItem();
    void slotRecoverEntry();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void loadStyleSheet();
    RightMenuFrame *addEntry(const QString &name, int y);
    QSize bodySize() const;
    /// showPoint() where the whole menu is on the screen.
    void showPointOnScreen(const QPoint &globalPos, const QModelIndex &index);
    /// The body's corner comes to \a globalPos.
    void place(const QPoint &globalPos);
    void showShadow();
    /// Only the body where a shadow would stand on black.
    void cutToBody();
    void highlight(RightMenuFrame *entry);
    RightMenuFrame *highlighted() const;
    void moveHighlight(bool down);

    std::unique_ptr<Ui::RightMenuDialog> ui;
    RightMenuFrame *m_previewEntry = nullptr;
    RightMenuFrame *m_recoverEntry = nullptr;
    QPersistentModelIndex m_index;
    int m_selectedAction = 0;
    qreal m_shadowRatio = 0;
    /// Where the mouse rested when a key opened the menu; until it moves it highlights nothing.
    QPoint m_restingMouse;
    bool m_mouseRests = false;
    bool m_releaseIsDue = false; ///< of the press that has opened the menu
};
