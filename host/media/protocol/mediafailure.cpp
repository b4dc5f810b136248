#include "host/media/protocol/mediafailure.h"

#include <QCoreApplication>

namespace {
const QChar Separator(0x1f);
}

QString MediaFailure::pack(const char *words, const QStringList &values)
{
    QStringList parts{QString::fromUtf8(words)};
    for (QString value : values)
        parts.append(value.remove(Separator));
    return parts.join(Separator);
}

QString MediaFailure::sentence(const QString &packed)
{
    QStringList values = packed.split(Separator);
    QString text = QCoreApplication::translate("Media", values.takeFirst().toUtf8().constData());
    for (const QString &value : qAsConst(values))
        text = text.arg(value);
    return text;
}
