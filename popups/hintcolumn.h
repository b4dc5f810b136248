#pragma once

#include <QObject>
#include <QVector>

class QFrame;
class QLabel;

/// Lays out a page that is one column of a picture and texts: in the middle, as wide as designed
/// where there is room and narrower in a narrow window; the picture makes room in a low one. A text
/// of fixed height grows when it needs more lines. GUI thread.
class HintColumn : public QObject
{
    Q_OBJECT

public:
    /// Of a text that was designed without a width of its own.
    static constexpr int Width = 468;

    /// The widths and heights that \a texts have now are the designed ones. \a page owns the
    /// object and holds all labels in its own vertical layout.
    HintColumn(QFrame *page, QLabel *picture, const QVector<QLabel *> &texts);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Text
    {
        QLabel *label;
        int leastWidth;
        int fixedHeight; ///< 0 for as high as needed
    };

    void fit();

    QFrame *m_page;
    QLabel *m_picture;
    QVector<Text> m_texts;
};
