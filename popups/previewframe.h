#pragma once

#include <QFrame>

#include <memory>

namespace Ui {
class PreviewFrame;
}

/// One round preview button with a soft shadow, in the middle of a transparent frame that is laid
/// over a picture.
class PreviewFrame : public QFrame
{
    Q_OBJECT

public:
    explicit PreviewFrame(QWidget *parent = nullptr);
    ~PreviewFrame() override;

    void updateTheme();

signals:
    void signalPreviewClicked();

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void loadStyleSheet();
    void retranslate();

    std::unique_ptr<Ui::PreviewFrame> ui;
};
