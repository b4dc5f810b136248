#pragma once

#include <QColor>
#include <QFrame>
#include <QPointer>

#include <memory>

class SearchDialog;

namespace Ui {
class SearchHintFrame;
}

/// The page of a search by name that finds nothing: three tips, of which the first links to the
/// dialog about files that lost their names. GUI thread.
class SearchHintFrame : public QFrame
{
    Q_OBJECT
    /// Of the link in the first tip, which the stylesheet sets: rich text knows the application's
    /// link colour only. A colour in the translated text itself goes before it.
    // clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(QColor linkColor READ linkColor WRITE setLinkColor)

public:
    explicit SearchHintFrame(QWidget *parent = nullptr);
    ~SearchHintFrame() override;

    /// To be called after a change of language.
    void doChangeLanguage();
    void updateTheme();

    QColor linkColor() const { return m_linkColor; }
    void setLinkColor(const QColor &color);

    QSize minimumSizeHint() const override { return {0, 0}; }
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void loadStyleSheet();
    void showFirstTip();
    void openHowToFind();

    std::unique_ptr<Ui::SearchHintFrame> ui;
    QColor m_linkColor;
    QPointer<SearchDialog> m_dialog;
};
