#include "delegates/rowlayout.h"

#include "model/scandatamodel.h"

#include <QStyle>

#include <algorithm>

namespace {

constexpr int CheckInset = 8;
constexpr int CheckSide = 16;
constexpr int CheckAreaSide = 27; // from the inset to the 34th pixel, which counts
constexpr int IconSide = 32;
constexpr int IconGap = 8;
constexpr int NameGap = 4;
constexpr int NameHeight = 24;
constexpr int BadgeSide = 10;
constexpr int BadgeInset = 3;

constexpr int TextInset = 8;
constexpr int SizeRightInset = 4;
constexpr int TypeCut = 8; // less than the cell that a text may take
constexpr int LocationCut = 16;
constexpr int LocationImageSide = 24;
constexpr int LocationImageStrip = 32; // what the time leaves of its cell

constexpr int BackgroundInset = 4;
constexpr int BackgroundGap = 2; // above and below: neighbours stay apart

constexpr int HintWidth = 120;

QRect leftCentred(const QRect &cell, int x, int side)
{
    return {x, cell.top() + (cell.height() - side) / 2, side, side};
}

} // namespace

RowLayout::RowLayout(const QRect &cellRect, int columnIndex, Qt::LayoutDirection layoutDirection)
    : direction(layoutDirection)
    , column(columnIndex)
    , cell(cellRect)
{
    const auto mirrored = [this](const QRect &rect) {
        return QStyle::visualRect(direction, cell, rect);
    };
    checkArea = mirrored(
        {cell.x() + CheckInset, cell.top() + CheckInset, CheckAreaSide, CheckAreaSide});

    switch (column) {
    case ScanDataModel::NameColumn: {
        const QRect box = leftCentred(cell, cell.left() + CheckInset, CheckSide);
        const QRect picture = leftCentred(cell, box.right() + IconGap, IconSide);
        const int nameLeft = picture.right() + NameGap;
        checkBox = mirrored(box);
        icon = mirrored(picture);
        name = mirrored({nameLeft, cell.top() + (cell.height() - NameHeight) / 2,
                         cell.right() - nameLeft - NameGap, NameHeight});
        break;
    }
    case ScanDataModel::SizeColumn:
        text = mirrored(cell.adjusted(TextInset, 0, -SizeRightInset, 0));
        break;
    case ScanDataModel::TypeColumn:
        text = mirrored(cell.adjusted(TextInset, 0, 0, 0));
        textWidth = cell.width() - TypeCut;
        break;
    case ScanDataModel::DateColumn:
        text = mirrored(cell.adjusted(TextInset, 0, -LocationImageStrip, 0));
        textWidth = text.width(); // in a narrow window the image would cut a digit in two
        locationImage = mirrored(leftCentred(cell,
                                             cell.right() + 1 - LocationImageStrip
                                                 + (LocationImageStrip - LocationImageSide) / 2,
                                             LocationImageSide));
        break;
    case ScanDataModel::PathColumn:
        text = mirrored(cell.adjusted(TextInset, 0, 0, 0));
        textWidth = cell.width() - LocationCut;
        break;
    default:
        break;
    }
}

QSize RowLayout::sizeHint()
{
    return {HintWidth, RowHeight};
}

QRect RowLayout::row(const QRect &cell, int viewportWidth)
{
    return {0, cell.top(), viewportWidth, cell.height()};
}

QRect RowLayout::background(const QRect &cell, int viewportWidth)
{
    return row(cell, viewportWidth)
        .adjusted(BackgroundInset, BackgroundGap, -BackgroundInset, -BackgroundGap);
}

QRect RowLayout::repairBadge() const
{
    const int side = std::min({BadgeSide, icon.height(), icon.width()});
    const QRect badge(std::max(icon.left(), icon.right() - side - BadgeInset),
                      std::max(icon.top(), icon.bottom() - side - BadgeInset), side, side);
    return QStyle::visualRect(direction, icon, badge);
}

QRect RowLayout::nameText(int suffixWidth) const
{
    const QRect rect(name.topLeft(), QSize(std::max(0, name.width() - suffixWidth), name.height()));
    return QStyle::visualRect(direction, name, rect);
}

QRect RowLayout::suffix(int nameWidth, int suffixWidth) const
{
    const QRect rect(name.left() + nameWidth, name.top(),
                     std::min(suffixWidth, name.width() - nameWidth), name.height());
    return QStyle::visualRect(direction, name, rect);
}
