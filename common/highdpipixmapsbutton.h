#pragma once

#include <QPushButton>
#include <QString>

/// A button that is nothing but a picture: one per state, "NAME.png" and "NAME@2x.png" in one
/// folder, stretched over the button. A click latches it: it stays pressed, deaf to the mouse
/// passing over, until its owner says that what the click began is over. Keyboard and screen
/// readers click it as the mouse does. A picture that is missing is logged once and leaves the
/// button blank. GUI thread.
class HighDpiPixmapsButton : public QPushButton
{
    Q_OBJECT

public:
    struct Images
    {
        QString normal;
        QString hover;
        QString press;
        QString disabled;
    };

    /// \a folder is a resource or file path without a slash at its end.
    HighDpiPixmapsButton(const QString &folder, const Images &images, QWidget *parent = nullptr);

    /// Also what Qt itself takes the button for.
    void setEnabledState(bool enabled);
    /// An enabled button that is not clickable shows hovering and ignores presses.
    void setClickable(bool clickable) { m_clickable = clickable; }
    /// Ends the latch and shows the normal picture.
    void resetState();
    /// Ends the latch with the mouse still over the button.
    void showHoverState();
    bool isLatched() const { return m_latched; }
    /// Base name of the picture that is shown.
    QString currentImage() const { return m_currentImage; }

signals:
    void buttonHovered(bool hover);
    void buttonClicked();

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void showImage(const QString &name);
    void latch();
    QPixmap loadCurrent();
    bool reactsToPress() const { return m_enabledState && m_clickable; }

    const QString m_folder;
    const Images m_images;
    QString m_currentImage;
    QString m_missing;
    const int m_scale;
    bool m_clickable = true;
    bool m_enabledState = true;
    bool m_latched = false;
};
