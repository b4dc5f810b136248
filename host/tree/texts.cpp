#include "host/tree/texts.h"

#include "host/tree/itemkinds.h"
#include "host/tree/itemrecord.h"
#include "platform/lang/zvlang.h"

#include <QCoreApplication>
#include <QLocale>

// By the library that the plug-in asks too: one file must not have two sizes in one window.
QString Texts::size(qint64 bytes)
{
    const QString request = QStringLiteral("{\"lang\":\"%1\",\"bytes\":%2,\"precision\":1}");
    char answer[LangAnswerSize] = {};
    Lang_GetStorageStr(request.arg(QLocale().name()).arg(bytes).toUtf8().constData(), answer,
                       nullptr);
    return QString::fromUtf8(answer);
}

QString Texts::number(qint64 number)
{
    return QLocale().toString(number);
}

QString Texts::files(int count)
{
    return QCoreApplication::translate("Texts", "%Ln file(s)", nullptr, count);
}

QString Texts::titleOf(const ItemRecord &record)
{
    const QString title = record.rootType != 0 ? ItemKinds::titleOf(record.rootType) : record.name;
    return title.isEmpty() ? QCoreApplication::translate("SidePanel", "Card") : title;
}

QString Texts::folders(int count)
{
    return QCoreApplication::translate("Texts", "%Ln folder(s)", nullptr, count);
}
