#include "platform/system/system.h"

#include "platform/system/colorscheme_unix.h"

#include <QDebug>
#include <QFile>
#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QIcon>
#include <QMimeDatabase>
#include <QScreen>

#include <qpa/qplatformnativeinterface.h>

#include <dlfcn.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

/// Families that look alike, the closest first.
struct Substitute
{
    const char *family;
    QStringList standIns;
};

const QVector<Substitute> &substitutes()
{
    static const QVector<Substitute> table{
        // the last ones have the scripts that the first ones lack; left to itself, the system
        // may well pick a serif or a display face for them
        {"Segoe UI",
         {"Open Sans", "Noto Sans", "DejaVu Sans", "Noto Sans Arabic", "Noto Sans Thai",
          "Noto Sans Devanagari"}},
        {"Segoe UI Semibold",
         // the same families: one that is semibold by name passes for a thin one and is thickened
         {"Open Sans", "Noto Sans", "DejaVu Sans", "Noto Sans Arabic", "Noto Sans Thai",
          "Noto Sans Devanagari"}},
        {"Yu Gothic UI", {"Noto Sans CJK JP", "Noto Sans JP", "IPAGothic"}},
        {"Malgun Gothic", {"Noto Sans CJK KR", "Noto Sans KR", "NanumGothic"}},
        {"Microsoft JhengHei UI",
         {"Noto Sans CJK TC", "Noto Sans TC", "WenQuanYi Micro Hei", "Droid Sans Fallback"}},
    };
    return table;
}

/// 0 when \a line does not begin with \a field.
quint64 kibibytesOf(const QByteArray &line, const char *field)
{
    if (!line.startsWith(field))
        return 0;
    return line.mid(int(qstrlen(field))).simplified().split(' ').constFirst().toULongLong();
}

} // namespace

bool System::appsUseDarkTheme()
{
    return ColorScheme::isDark();
}

quint64 System::availablePhysicalMemory()
{
    constexpr quint64 Kibibyte = 1024;
    QFile file(QStringLiteral("/proc/meminfo"));
    if (file.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> lines = file.readAll().split('\n');
        for (const QByteArray &line : lines) {
            if (const quint64 amount = kibibytesOf(line, "MemAvailable:"))
                return amount * Kibibyte;
        }
    }
#ifdef _SC_AVPHYS_PAGES
    const long pages = sysconf(_SC_AVPHYS_PAGES);
    const long pageSize = sysconf(_SC_PAGESIZE);
    if (pages > 0 && pageSize > 0)
        return quint64(pages) * quint64(pageSize);
#endif
    return 0;
}

void System::limitMemory(quint64 bytes)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    Q_UNUSED(bytes); // sanitizers reserve terabytes of addresses
#else
    rlimit limit = {};
    getrlimit(RLIMIT_AS, &limit);
    limit.rlim_cur = limit.rlim_max == RLIM_INFINITY ? rlim_t(bytes)
                                                     : qMin(rlim_t(bytes), limit.rlim_max);
    if (setrlimit(RLIMIT_AS, &limit) != 0)
        qWarning("The memory of this process cannot be limited");
#endif
}

QPixmap System::fileTypeIcon(const QString &extension, int side)
{
    if (extension.isEmpty() || side < 1)
        return {};
    static const QMimeDatabase database;
    const QMimeType type = database.mimeTypeForFile(QStringLiteral("file.") + extension,
                                                    QMimeDatabase::MatchExtension);
    if (type.isDefault())
        return {};
    const QIcon icon = QIcon::fromTheme(type.iconName(), QIcon::fromTheme(type.genericIconName()));
    QPixmap pixmap = icon.pixmap(side, side);
    if (pixmap.isNull())
        return {};
    // the application may ask for pixmaps of the screen's density, and a theme may lack the size
    pixmap.setDevicePixelRatio(1);
    if (pixmap.size() != QSize(side, side))
        pixmap = pixmap.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return pixmap;
}

void System::registerFontSubstitutes()
{
    static bool s_done = false;
    if (s_done || !qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return;
    s_done = true;

    const QStringList installed = QFontDatabase().families();
    for (const Substitute &substitute : substitutes()) {
        const QString family = QLatin1String(substitute.family);
        if (installed.contains(family))
            continue;
        QStringList found;
        for (const QString &standIn : substitute.standIns) {
            if (installed.contains(standIn))
                found += standIn;
        }
        if (found.isEmpty())
            qWarning() << "No font stands in for" << family << "- texts may look poor";
        else
            QFont::insertSubstitutions(family, found);
    }
}

void System::removeClassShadow(WId)
{
    // windows have no class here that could carry a shadow
}

bool System::windowsAreBlended()
{
    // Everything but an X server without a compositor blends.
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return true;
    QPlatformNativeInterface *native = QGuiApplication::platformNativeInterface();
    QScreen *screen = QGuiApplication::primaryScreen();
    return !native || !screen
        || native->nativeResourceForScreen(QByteArrayLiteral("compositingEnabled"), screen);
}

bool System::hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

void System::pinModule(const void *address)
{
    Dl_info info = {};
    if (!dladdr(address, &info) || !info.dli_fname)
        return;
    // the flag stays with the library, so the reference that sets it need not be kept
    if (void *module = dlopen(info.dli_fname, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE))
        dlclose(module);
}
