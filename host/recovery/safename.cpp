#include "host/recovery/safename.h"

#include <QSet>

namespace {

constexpr int MaxNameBytes = 255;
constexpr int MaxExtensionBytes = 32; // longer is no extension but a name with a dot in it

bool isReserved(QChar c)
{
    return c.unicode() < 0x20 || c.unicode() == 0x7f || QStringLiteral("<>:\"/\\|?*").contains(c);
}

/// Written right to left, such a character shows "gpj.exe" as "exe.jpg".
bool isInvisibleControl(QChar c)
{
    const ushort u = c.unicode();
    return (u >= 0x202a && u <= 0x202e) || (u >= 0x2066 && u <= 0x2069) || u == 0xfeff
        || (u >= 0x80 && u < 0xa0);
}

bool isDeviceName(const QString &name)
{
    static const QSet<QString> s_devices = [] {
        QSet<QString> devices{QStringLiteral("CON"),    QStringLiteral("PRN"),
                              QStringLiteral("AUX"),    QStringLiteral("NUL"),
                              QStringLiteral("CONIN$"), QStringLiteral("CONOUT$"),
                              QStringLiteral("CLOCK$")};
        const QString digits = QStringLiteral("0123456789\u00b9\u00b2\u00b3");
        for (const QChar digit : digits)
            devices << QStringLiteral("COM") + digit << QStringLiteral("LPT") + digit;
        return devices;
    }();
    return s_devices.contains(name.section(QLatin1Char('.'), 0, 0).trimmed().toUpper());
}

/// \a text without what makes no valid UTF-16, and with '_' for what no system likes in a name.
QString cleaned(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            result += c;
            result += text.at(++i);
        } else if (c.isSurrogate() || isReserved(c) || isInvisibleControl(c)) {
            result += QLatin1Char('_');
        } else {
            result += c;
        }
    }
    return result;
}

void chopTrailingDotsAndSpaces(QString &name)
{
    while (name.endsWith(QLatin1Char('.')) || name.endsWith(QLatin1Char(' ')))
        name.chop(1);
}

/// The first \a bytes of \a text in UTF-8, never half a character.
QString leftBytes(const QString &text, int bytes)
{
    int used = 0;
    int end = 0;
    while (end < text.size()) {
        const bool pair = text.at(end).isHighSurrogate() && end + 1 < text.size();
        const int length = pair ? 2 : 1;
        used += text.mid(end, length).toUtf8().size();
        if (used > bytes)
            break;
        end += length;
    }
    return text.left(end);
}

/// Splits off the extension with its dot; a name that only begins with a dot has none.
QString takeExtension(QString &name)
{
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    if (dot <= 0 || name.mid(dot).toUtf8().size() > MaxExtensionBytes)
        return QString();
    const QString extension = name.mid(dot);
    name.truncate(dot);
    return extension;
}

QString fitted(QString name, const QString &suffix)
{
    const QString extension = takeExtension(name);
    const int room = MaxNameBytes - suffix.toUtf8().size() - extension.toUtf8().size();
    if (name.toUtf8().size() > room)
        name = leftBytes(name, room);
    return name + suffix + extension;
}

} // namespace

QString safeFileName(const QString &name)
{
    QString result = cleaned(name);
    if (result == QLatin1String(".."))
        return QStringLiteral("__");
    chopTrailingDotsAndSpaces(result);
    while (result.startsWith(QLatin1Char(' ')))
        result.remove(0, 1);
    if (result.isEmpty())
        return QStringLiteral("_");
    if (isDeviceName(result))
        result.prepend(QLatin1Char('_'));
    result = fitted(result, QString());
    chopTrailingDotsAndSpaces(result); // the cut may have laid one bare
    return result;
}

QStringList safePathParts(const QString &path)
{
    QString unified = path;
    unified.replace(QLatin1Char('\\'), QLatin1Char('/'));
    const QStringList given = unified.split(QLatin1Char('/'));
    QStringList parts;
    for (const QString &part : given) {
        if (!part.isEmpty() && part != QLatin1String("."))
            parts.append(safeFileName(part));
    }
    return parts;
}

QString numberedFileName(const QString &name, int number)
{
    return fitted(name, QStringLiteral(" (%1)").arg(number));
}
