#include "platform/system/system.h"

#include <QBitmap>
#include <QSettings>

#include <qt_windows.h>

#include <commctrl.h>
#include <commoncontrols.h>
#include <shellapi.h>
#include <shlobj.h>

#ifdef QUARVO_HAS_WINEXTRAS
#include <QtWin>
#else
// what Qt's Windows extras forward to; exported by Qt Gui, declared in none of its public headers
Q_GUI_EXPORT QPixmap qt_pixmapFromWinHBITMAP(HBITMAP bitmap, int format);
#endif

namespace {

enum class BitmapAlpha { None, Premultiplied };

QPixmap toPixmap(HBITMAP bitmap, BitmapAlpha alpha)
{
#ifdef QUARVO_HAS_WINEXTRAS
    return QtWin::fromHBITMAP(bitmap,
                              alpha == BitmapAlpha::None ? QtWin::HBitmapNoAlpha
                                                         : QtWin::HBitmapPremultipliedAlpha);
#else
    return qt_pixmapFromWinHBITMAP(bitmap, alpha == BitmapAlpha::None ? 0 : 1);
#endif
}

bool isInvisible(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) != 0)
                return false;
        }
    }
    return true;
}

QPixmap toPixmap(HICON icon)
{
    ICONINFO info = {};
    if (!GetIconInfo(icon, &info))
        return {};
    QPixmap pixmap;
    if (info.hbmColor) {
        pixmap = toPixmap(info.hbmColor, BitmapAlpha::Premultiplied);
        // icons of the old kind have no alpha channel but a mask
        if (isInvisible(pixmap.toImage().convertToFormat(QImage::Format_ARGB32))) {
            pixmap = toPixmap(info.hbmColor, BitmapAlpha::None);
            const QImage mask = toPixmap(info.hbmMask, BitmapAlpha::None).toImage();
            pixmap.setMask(QBitmap::fromImage(mask.createMaskFromColor(qRgb(0, 0, 0))));
        }
        DeleteObject(info.hbmColor);
    }
    if (info.hbmMask)
        DeleteObject(info.hbmMask);
    return pixmap;
}

int imageListFor(int side)
{
    constexpr int LargeSide = 32;
    constexpr int ExtraLargeSide = 48;
    if (side <= LargeSide)
        return SHIL_LARGE;
    return side <= ExtraLargeSide ? SHIL_EXTRALARGE : SHIL_JUMBO;
}

} // namespace

bool System::appsUseDarkTheme()
{
    const QSettings settings(QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\"
                                            "CurrentVersion\\Themes\\Personalize"),
                             QSettings::NativeFormat);
    const QString key = QStringLiteral("AppsUseLightTheme");
    return settings.contains(key) && settings.value(key).toInt() == 0;
}

quint64 System::availablePhysicalMemory()
{
    MEMORYSTATUSEX status = {};
    status.dwLength = sizeof(status);
    return GlobalMemoryStatusEx(&status) ? status.ullAvailPhys : 0;
}

void System::limitMemory(quint64 bytes)
{
    // The job is never closed: it lives as long as the process that is in it.
    HANDLE job = CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_PROCESS_MEMORY;
    limits.ProcessMemoryLimit = SIZE_T(bytes);
    if (!job
        || !SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof(limits))
        || !AssignProcessToJobObject(job, GetCurrentProcess()))
        qWarning("The memory of this process cannot be limited");
}

QPixmap System::fileTypeIcon(const QString &extension, int side)
{
    if (extension.isEmpty() || side < 1)
        return {};
    const std::wstring name = (QStringLiteral("file.") + extension).toStdWString();
    SHFILEINFOW info = {};
    if (!SHGetFileInfoW(name.c_str(), FILE_ATTRIBUTE_NORMAL, &info, sizeof(info),
                        SHGFI_USEFILEATTRIBUTES | SHGFI_SYSICONINDEX))
        return {};

    IImageList *list = nullptr;
    if (FAILED(SHGetImageList(imageListFor(side), __uuidof(IImageList),
                              reinterpret_cast<void **>(&list))))
        return {};
    HICON icon = nullptr;
    const HRESULT result = list->GetIcon(info.iIcon, ILD_TRANSPARENT, &icon);
    list->Release();
    if (FAILED(result) || !icon)
        return {};
    QPixmap pixmap = toPixmap(icon);
    DestroyIcon(icon);
    if (!pixmap.isNull() && pixmap.size() != QSize(side, side))
        pixmap = pixmap.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return pixmap;
}

void System::registerFontSubstitutes()
{
    // the families are part of the system
}

void System::removeClassShadow(WId window)
{
    const auto handle = reinterpret_cast<HWND>(window);
    SetClassLongW(handle, GCL_STYLE,
                  LONG(GetClassLongW(handle, GCL_STYLE) & ~DWORD(CS_DROPSHADOW)));
}

bool System::windowsAreBlended()
{
    return true; // by the desktop window manager, which cannot be turned off
}

bool System::hasDisplay()
{
    return true;
}

void System::pinModule(const void *address)
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       static_cast<LPCWSTR>(address), &module);
}
