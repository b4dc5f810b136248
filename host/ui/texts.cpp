#include "host/ui/texts.h"

#include <QCoreApplication>
#include <QLocale>

QString Texts::size(qint64 bytes)
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
}

QString Texts::number(qint64 number)
{
    return QLocale().toString(number);
}

QString Texts::files(int count)
{
    return count == 1 ? QCoreApplication::translate("Texts", "1 file")
                      : QCoreApplication::translate("Texts", "%1 files").arg(number(count));
}

QString Texts::folders(int count)
{
    return count == 1 ? QCoreApplication::translate("Texts", "1 folder")
                      : QCoreApplication::translate("Texts", "%1 folders").arg(number(count));
}
