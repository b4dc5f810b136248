#include "popups/hintpicture.h"

#include "common/commonfunction.h"
#include "common/screenpixmap.h"

#include <QDebug>
#include <QLabel>

bool showHintPicture(QLabel *label, const QString &base)
{
    const QString path = CommonFunction::getHighDpiPath(base, QStringLiteral("png"));
    const QPixmap picture = CommonFunction::loadPixmap(path);
    label->setPixmap(screenPixmap(picture));
    if (picture.isNull())
        qWarning() << "missing picture" << path;
    return !picture.isNull();
}
