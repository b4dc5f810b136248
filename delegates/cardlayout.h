#pragma once

#include <QRect>
#include <QSize>

/// Where everything on a thumbnail card stands, in the coordinates of the cell. Painting, size hint
/// and mouse handling all ask this one struct. Right-to-left mirrors what stands at one side.
struct CardLayout
{
    explicit CardLayout(const QRect &cellRect,
                        Qt::LayoutDirection layoutDirection = Qt::LeftToRight);

    static QSize sizeHint();
    /// What a picture of \a picture pixels is scaled to: never enlarged, its shape kept.
    static QSize fittedSize(const QSize &picture);

    bool hitsCheckBox(const QPoint &pos) const;
    bool hitsPreviewButton(const QPoint &pos) const { return previewButton.contains(pos); }

    /// Where a picture of \a picture pixels is drawn; may be empty for a sliver of a picture.
    QRect thumbnail(const QSize &picture) const;
    /// The 40 x 40 overlay on a picture drawn at \a picture, or on the area when there is none.
    QRect overlay(const QRect &picture) const;
    QRect repairBadge(const QRect &picture) const;
    /// The line under the name, for a text of \a textWidth pixels.
    QRect countLine(int textWidth) const;

    Qt::LayoutDirection direction;
    QRect cell;
    QRect card;
    QRect checkBox;
    QRect icon;
    QRect thumbArea;
    QRect previewButton; ///< where a press means "preview"
    QRect name;
};
