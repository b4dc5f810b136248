#pragma once

#include <QDialog>
#include <QPoint>

#include <memory>

class QPushButton;

namespace Ui {
class searchDialog;
}

/// Explains how to find files that lost their names: three steps and a picture in the user's
/// language. Without a window frame; the mouse moves it by any free place. As large as designed, or
/// as screen and parent window allow: the picture shrinks first. GUI thread.
class SearchDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SearchDialog(QWidget *parent = nullptr);
    ~SearchDialog() override;

    /// The picture of the current language and theme. A missing one is logged and leaves its place
    /// to the texts.
    void loadThemeImage();
    /// To be called after a change of language.
    void doChangeLanguage();
    void updateTheme();
    /// Takes the size that the texts and the picture need within \a available, in
    /// device-independent pixels.
    void fitInto(const QSize &available);

    /// Name of the picture for \a language as the host spells it.
    static QString imageName(const QString &language);

public slots:
    void slotCloseClicked();

protected:
    void changeEvent(QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void loadStyleSheet();
    void fitIntoSurroundings();
    void placeCloseButton();
    void showFocusRing(bool shown);

    std::unique_ptr<Ui::searchDialog> ui;
    QPushButton *m_close = nullptr;
    QPixmap m_picture;
    QPoint m_grip; ///< where the mouse holds the dialog, from its top left corner
    bool m_held = false;
};
