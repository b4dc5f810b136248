#include "common/commonfunction.h"

#include "common/masklayer.h"
#include "common/smallpng.h"
#include "common/translation.h"

#include <QApplication>
#include <QDateTime>
#include <QFile>
#include <QFontMetrics>
#include <QPixmapCache>
#include <QScreen>
#include <QTimeZone>
#include <QVariant>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace {

constexpr qreal HighDpiRatio = 2.0;
constexpr int MaskCornerRadius = 12;
constexpr auto HighDpiSuffix = "@2x.";

enum class Catalogue { Own, Family, None };

struct RootName
{
    int rootType;
    Catalogue catalogue;
    const char *text;
};

constexpr RootName RootNames[] = {
    {26, Catalogue::Own, QT_TRANSLATE_NOOP("CommonFunction", "Photo")},
    {11, Catalogue::Own, QT_TRANSLATE_NOOP("CommonFunction", "Video")},
    {10, Catalogue::Own, QT_TRANSLATE_NOOP("CommonFunction", "Audio")},
    {24, Catalogue::Own, QT_TRANSLATE_NOOP("CommonFunction", "Document")},
    {25, Catalogue::Own, QT_TRANSLATE_NOOP("CommonFunction", "Email")},
    {23, Catalogue::Own, QT_TRANSLATE_NOOP("CommonFunction", "Database")},
    {27, Catalogue::Own, QT_TRANSLATE_NOOP("CommonFunction", "Webfiles")},
    {9, Catalogue::Own, QT_TRANSLATE_NOOP("CommonFunction", "Archive")},
    {50, Catalogue::Own, QT_TRANSLATE_NOOP("CommonFunction", "Others")},
    {51, Catalogue::Own, QT_TRANSLATE_NOOP("CommonFunction", "Unsaved files")},
    {52, Catalogue::Own, QT_TRANSLATE_NOOP("CommonFunction", "Game")},
    {2, Catalogue::Own, QT_TRANSLATE_NOOP("CommonFunction", "Recycle Bin")},
    {3, Catalogue::Own, QT_TRANSLATE_NOOP("CommonFunction", "File lost location")},
    {4, Catalogue::Family, QT_TRANSLATE_NOOP("QuarvoTRS", "reconstructed_files_label")},
    {55, Catalogue::None, "OneDrive"},
    {6, Catalogue::Family, QT_TRANSLATE_NOOP("QuarvoTRS", "time_nav_root_all_time")},
    {7, Catalogue::Family, QT_TRANSLATE_NOOP("QuarvoTRS", "time_nav_root_unknown_time")},
};

struct KeyName
{
    const char *key;
    const char *text;
};

constexpr KeyName KeyNames[] = {
    {"zenvo_video", QT_TRANSLATE_NOOP("CommonFunction", "Video")},
    {"zenvo_audio", QT_TRANSLATE_NOOP("CommonFunction", "Audio")},
    {"zenvo_email", QT_TRANSLATE_NOOP("CommonFunction", "Email")},
    {"zenvo_document", QT_TRANSLATE_NOOP("CommonFunction", "Document")},
    {"zenvo_archive", QT_TRANSLATE_NOOP("CommonFunction", "Archive")},
    {"zenvo_database", QT_TRANSLATE_NOOP("CommonFunction", "Database")},
    {"zenvo_webfiles", QT_TRANSLATE_NOOP("CommonFunction", "Webfiles")},
    {"zenvo_photo", QT_TRANSLATE_NOOP("CommonFunction", "Photo")},
    {"zenvo_others", QT_TRANSLATE_NOOP("CommonFunction", "Others")},
    {"zenvo_unsaved_files", QT_TRANSLATE_NOOP("CommonFunction", "Unsaved files")},
    {"zenvo_game_files", QT_TRANSLATE_NOOP("CommonFunction", "Game")},
};

constexpr const char *SizeUnits[] = {
    QT_TRANSLATE_NOOP("QuarvoTRS", "SizeUnit_Bytes"), QT_TRANSLATE_NOOP("QuarvoTRS", "SizeUnit_KB"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "SizeUnit_MB"),    QT_TRANSLATE_NOOP("QuarvoTRS", "SizeUnit_GB"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "SizeUnit_TB"),
};

bool isDateWrittenYearFirst(QLocale::Country country)
{
    switch (country) {
    case QLocale::China:
    case QLocale::HongKong:
    case QLocale::Macau:
    case QLocale::Taiwan:
        return true;
    default:
        return false;
    }
}

/// What QPixmap(path) would be. That asks all image plug-ins of Qt, and so loads them, before it
/// reads a picture; ours need none of them.
QPixmap readPicture(const QString &path)
{
    QFile file(path);
    if (!path.startsWith(QLatin1String(":/")) || !file.exists())
        return QPixmap(path);
    const QString key = QLatin1String("SDCardScanContentPlugin") + path;
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    const QImage image = file.open(QIODevice::ReadOnly) ? SmallPng::read(file.readAll()) : QImage();
    if (image.isNull())
        return QPixmap(path);
    pixmap = QPixmap::fromImage(image);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

QString withoutLeading(const QString &text, QChar character)
{
    return text.startsWith(character) ? text.mid(1) : text;
}

} // namespace

QString CommonFunction::categoryName(int rootType)
{
    for (const RootName &name : RootNames) {
        if (name.rootType != rootType)
            continue;
        switch (name.catalogue) {
        case Catalogue::Own:
            return tr(name.text);
        case Catalogue::Family:
            return translatedKey(name.text);
        case Catalogue::None:
            return QLatin1String(name.text);
        }
    }
    return {};
}

QString CommonFunction::categoryKeyText(const QString &key)
{
    for (const KeyName &name : KeyNames) {
        if (key == QLatin1String(name.key))
            return tr(name.text);
    }
    return {};
}

QString CommonFunction::dateText(qint64 seconds)
{
    constexpr qint64 Furthest = std::numeric_limits<qint64>::max() / 1000;
    if (seconds > Furthest || seconds < -Furthest)
        return {};
    const bool yearFirst = isDateWrittenYearFirst(QTimeZone::systemTimeZone().country());
    return QDateTime::fromSecsSinceEpoch(seconds).toString(
        yearFirst ? QStringLiteral("yyyy-MM-dd") : QStringLiteral("MM-dd-yyyy"));
}

QString CommonFunction::sizeText(qint64 bytes)
{
    constexpr double Step = 1024.0;
    constexpr int Decimals = 2;
    constexpr double RoundsUp = Step - 0.005; // would read "1024.00"

    double amount = double(bytes);
    size_t unit = 0;
    while (unit + 1 < std::size(SizeUnits) && std::abs(amount) >= (unit == 0 ? Step : RoundsUp)) {
        amount /= Step;
        ++unit;
    }
    return QString::number(amount, 'f', unit == 0 ? 0 : Decimals) + QLatin1Char(' ')
        + translatedKey(SizeUnits[unit]);
}

qreal CommonFunction::getScaleFactor()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->devicePixelRatio() : 1.0;
}

QString CommonFunction::getHighDpiPath(const QString &base, const QString &extension)
{
    if (getScaleFactor() >= HighDpiRatio)
        return base + QLatin1String(HighDpiSuffix) + extension;
    return base + QLatin1Char('.') + extension;
}

QString CommonFunction::getThemeImagePath(const QString &name, const QString &extension)
{
    const QCoreApplication *app = QCoreApplication::instance();
    if (app && app->property("ThemeType").toInt() == 1) {
        const QString dark = getHighDpiPath(QStringLiteral(":/Images/Dark/") + name, extension);
        if (QFile::exists(dark))
            return dark;
    }
    return getHighDpiPath(QStringLiteral(":/Images/") + name, extension);
}

QPixmap CommonFunction::loadPixmap(const QString &path)
{
    QPixmap pixmap = readPicture(path);
    if (pixmap.isNull() || !path.contains(QLatin1String(HighDpiSuffix)))
        return pixmap;
    const int scale = std::max(int(HighDpiRatio), int(getScaleFactor()));
    if (scale > HighDpiRatio)
        pixmap = pixmap.scaled(pixmap.size() * (scale / HighDpiRatio), Qt::KeepAspectRatio,
                               Qt::SmoothTransformation);
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
}

QPixmap CommonFunction::themePixmap(const QString &name)
{
    return loadPixmap(getThemeImagePath(name, QStringLiteral("png")));
}

QPixmap CommonFunction::highDpiPixmap(const QString &base)
{
    return loadPixmap(getHighDpiPath(base, QStringLiteral("png")));
}

QString CommonFunction::combinedPath(const QString &path, const QString &volumeRoot)
{
    const QLatin1String mountPrefix("/Volume");
    const QLatin1Char slash('/');
    const QLatin1Char separator('\\');

    if (path.isEmpty())
        return {};
    if (volumeRoot.isEmpty())
        return withoutLeading(QString(path).replace(slash, separator), separator);

    QString below = path.startsWith(mountPrefix) ? path.mid(mountPrefix.size()) : path;
    if (path == QLatin1String("Volume"))
        below.clear();
    below = withoutLeading(below.replace(slash, separator), separator);
    const bool closed = volumeRoot.endsWith(separator) || volumeRoot.endsWith(slash);
    return closed ? volumeRoot + below : volumeRoot + separator + below;
}

QString CommonFunction::elidedMiddle(const QString &text, const QFont &font, int width)
{
    return QFontMetrics(font).elidedText(text, Qt::ElideMiddle, width);
}

QWidget *CommonFunction::createMaskLayer(QWidget *parent)
{
    return createMaskLayer(parent, MaskCornerRadius);
}

QWidget *CommonFunction::createMaskLayer(QWidget *parent, int cornerRadius)
{
    return parent ? new MaskLayer(parent, cornerRadius) : nullptr;
}

QWidget *CommonFunction::mainWindow(QWidget *widget)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->property("MainWindowID").isValid()
            || window->property("ZVQuarvoWindowID").isValid())
            return window;
    }
    return widget ? widget->window() : nullptr;
}

QWidget *CommonFunction::createWindowMask(QWidget *window)
{
    const bool round = window && window->testAttribute(Qt::WA_TranslucentBackground);
    return createMaskLayer(window, round ? MaskCornerRadius : 0);
}

void CommonFunction::placeOver(QWidget *dialog, const QWidget *window)
{
    const QPoint middle = window->mapToGlobal(window->rect().center());
    QRect place(QPoint(), dialog->size());
    place.moveCenter(middle);
    if (const QScreen *screen = window->screen()) {
        const QRect all = screen->availableGeometry();
        // A window larger than its screen reaches over others, which have room too.
        if (window->width() <= all.width()) {
            place.moveRight(std::min(place.right(), all.right()));
            place.moveLeft(std::max(place.left(), all.left()));
        }
        if (window->height() <= all.height()) {
            place.moveBottom(std::min(place.bottom(), all.bottom()));
            place.moveTop(std::max(place.top(), all.top()));
        }
    }
    dialog->move(place.topLeft());
}
