#include "common/screenpixmap.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QtMath>

QPixmap screenPixmap(const QPixmap &pixmap)
{
    const qreal ratio = qGuiApp->devicePixelRatio();
    if (pixmap.isNull() || qFuzzyCompare(pixmap.devicePixelRatio(), ratio))
        return pixmap;
    const QSizeF size = QSizeF(pixmap.size()) * (ratio / pixmap.devicePixelRatio());
    QPixmap stretched = pixmap.scaled(size.toSize(), Qt::IgnoreAspectRatio,
                                      Qt::SmoothTransformation);
    stretched.setDevicePixelRatio(ratio);
    return stretched;
}
