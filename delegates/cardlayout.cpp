#include "delegates/cardlayout.h"

#include <QStyle>

#include <algorithm>

namespace {

constexpr int CardWidth = 150;
constexpr int CardHeight = 124;
constexpr int TextStrip = 42; // name and label under the picture
constexpr int PictureHeight = CardHeight - TextStrip;

constexpr int CheckInset = 8;
constexpr int CheckSide = 16;
constexpr int CheckSlack = 5; // a finger is wider than the box

constexpr int IconSide = 64;
constexpr int IconBlockHeight = 106; // icon, name and label, centred on the card as one
constexpr int OverlaySide = 40;
constexpr int ThumbFrame = 2;

constexpr int NameInset = 8;
constexpr int NameHeight = 22;
constexpr int CountHeight = 18;

constexpr int BadgeSide = 20;
constexpr int BadgeRight = 6;
constexpr int BadgeTop = 5;

QRect centred(const QRect &area, int side)
{
    return {area.x() + (area.width() - side) / 2, area.y() + (area.height() - side) / 2, side,
            side};
}

} // namespace

CardLayout::CardLayout(const QRect &cellRect, Qt::LayoutDirection layoutDirection)
    : direction(layoutDirection)
    , cell(cellRect)
    , card(cell.x(), cell.y(), cell.width(), CardHeight)
    , checkBox(QStyle::visualRect(
          direction, cell,
          QRect(cell.left() + CheckInset, cell.top() + CheckInset, CheckSide, CheckSide)))
    , icon(card.x() + (card.width() - IconSide) / 2, card.y() + (CardHeight - IconBlockHeight) / 2,
           IconSide, IconSide)
    , thumbArea(card.left() + ThumbFrame, card.top() + ThumbFrame, card.width() - 2 * ThumbFrame,
                card.height() - TextStrip)
    , previewButton(centred(thumbArea, OverlaySide))
    , name(cell.left() + NameInset, cell.bottom() - TextStrip, cell.width() - 2 * NameInset,
           NameHeight)
{
}

QSize CardLayout::sizeHint()
{
    return {CardWidth, CardHeight};
}

QSize CardLayout::fittedSize(const QSize &picture)
{
    const qint64 width = picture.width();
    const qint64 height = picture.height();
    if (width <= CardWidth && height <= PictureHeight)
        return picture;
    // in integers: 150.0 / w * w may come out just below 150
    if (CardWidth * height <= PictureHeight * width)
        return {CardWidth, int(CardWidth * height / width)};
    return {int(PictureHeight * width / height), PictureHeight};
}

bool CardLayout::hitsCheckBox(const QPoint &pos) const
{
    return checkBox.adjusted(-CheckSlack, -CheckSlack, CheckSlack, CheckSlack).contains(pos);
}

QRect CardLayout::thumbnail(const QSize &picture) const
{
    const QSize fitted = fittedSize(picture);
    const int dx = (card.width() - fitted.width()) / 2;
    const int dy = (PictureHeight - fitted.height()) / 2;
    return {card.x() + dx + ThumbFrame, card.y() + dy + ThumbFrame, fitted.width() - 2 * ThumbFrame,
            fitted.height() - ThumbFrame};
}

QRect CardLayout::overlay(const QRect &picture) const
{
    return centred(picture.isValid() ? picture : thumbArea, OverlaySide);
}

QRect CardLayout::repairBadge(const QRect &picture) const
{
    const int side = std::min({BadgeSide, picture.height(), picture.width()});
    const QRect badge(std::max(picture.left(), picture.right() - side - BadgeRight),
                      std::min(picture.top() + BadgeTop, picture.bottom() - side + 1), side, side);
    return QStyle::visualRect(direction, picture, badge);
}

QRect CardLayout::countLine(int textWidth) const
{
    const int width = std::min(textWidth, name.width());
    return {name.left() + (name.width() - width) / 2, name.bottom(), width, CountHeight};
}
