#pragma once

#include <QFrame>

#include <memory>

namespace Ui {
class PreviewFrame;
}

/// One round preview button in the middle of a transparent frame, to be laid over a picture.
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

private:
    void loadStyleSheet();
    void retranslate();

    std::unique_ptr<Ui::PreviewFrame> ui;
};
