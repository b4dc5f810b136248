#include "host/scan/shownpath.h"

#include <QDir>
#include <QLocale>

namespace {
const QChar LeftToRightIsolate(0x2066);
const QChar EndOfIsolate(0x2069);
} // namespace

QString shownPath(const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
    if (QLocale().textDirection() == Qt::LeftToRight)
        return native;
    return LeftToRightIsolate + native + EndOfIsolate; // else its first slash lands at its end
}
