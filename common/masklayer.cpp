#include "common/masklayer.h"

#include <QEvent>

MaskLayer::MaskLayer(QWidget *parent, int cornerRadius)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("maskLayerID"));
    setAttribute(Qt::WA_StyledBackground);
    setAttribute(Qt::WA_NoMousePropagation);
    setStyleSheet(
        QStringLiteral("background: rgba(0, 0, 0, 0.5);border-radius:%1px;").arg(cornerRadius));
    setGeometry(parent->rect());
    parent->installEventFilter(this);
}

bool MaskLayer::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}
