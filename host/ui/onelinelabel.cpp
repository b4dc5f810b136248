#include "host/ui/onelinelabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace {
constexpr int LeastLetters = 6;
}

QSize OneLineLabel::minimumSizeHint() const
{
    const int least = LeastLetters * fontMetrics().averageCharWidth();
    return {qMin(least, QLabel::minimumSizeHint().width()), QLabel::minimumSizeHint().height()};
}

bool OneLineLabel::isShort() const
{
    return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

bool OneLineLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && isShort()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text(), this);
        return true;
    }
    return QLabel::event(event);
}

void OneLineLabel::paintEvent(QPaintEvent *event)
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
