#pragma once

#include <QFrame>

#include <memory>

namespace Ui {
class AISearchHintFrame;
}

/// The page of a search by description that finds nothing. GUI thread.
class AISearchHintFrame : public QFrame
{
    Q_OBJECT

public:
    explicit AISearchHintFrame(QWidget *parent = nullptr);
    ~AISearchHintFrame() override;

    /// To be called after a change of language.
    void doChangeLanguage();
    void updateTheme();

    QSize minimumSizeHint() const override { return {0, 0}; }

private:
    void loadStyleSheet();

    std::unique_ptr<Ui::AISearchHintFrame> ui;
};
