#include "host/ui/elidedlabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace {
constexpr int LeastLetters = 6;
}

QSize ElidedLabel::minimumSizeHint() const
{
    const int least = LeastLetters * fontMetrics().averageCharWidth();
    return {qMin(least, QLabel::minimumSizeHint().width()), QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::isShort() const
{
    return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && isShort()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text(), this);
        return true;
    }
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent *event)
{
    if (!isShort()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    const QRect room = contentsRect();
    style()->drawItemText(
        &painter, room, int(QStyle::visualAlignment(layoutDirection(), alignment())), palette(),
        isEnabled(), fontMetrics().elidedText(text(), Qt::ElideRight, room.width()),
        foregroundRole());
}
