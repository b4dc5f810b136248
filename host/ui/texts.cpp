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
    return QCoreApplication::translate("Texts", "%Ln file(s)", nullptr, count);
}

QString Texts::folders(int count)
{
    return QCoreApplication::translate("Texts", "%Ln folder(s)", nullptr, count);
}
