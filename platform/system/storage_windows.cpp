#include "platform/system/storage.h"

#include <QDir>
#include <QFileInfo>
#include <QVector>

#include <qt_windows.h>

#include <winioctl.h>

namespace {

constexpr int MaxPath = 32768;

/// An open file, folder, volume or disk; nothing of its contents is read or locked.
class Handle
{
public:
    explicit Handle(const QString &path)
        : m_handle(
            CreateFileW(reinterpret_cast<const wchar_t *>(QDir::toNativeSeparators(path).utf16()),
                        0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                        OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr))
    {
    }
    ~Handle()
    {
        if (isOpen())
            CloseHandle(m_handle);
    }
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;

    bool isOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle;
};

bool isDevice(const QString &path)
{
    return QDir::toNativeSeparators(path).startsWith(QLatin1String("\\\\.\\"));
}

/// Links, junctions and substituted drives resolved; with the volume's own name in front.
QString finalPath(const QString &path)
{
    const Handle file(path);
    QVector<wchar_t> text(MaxPath);
    const DWORD length = file.isOpen()
        ? GetFinalPathNameByHandleW(file.get(), text.data(), DWORD(text.size()), VOLUME_NAME_GUID)
        : 0;
    return length > 0 && length < DWORD(text.size())
        ? QString::fromWCharArray(text.data(), int(length))
        : QString();
}

QString volumeOf(const QString &path)
{
    const QString whole = finalPath(path); // "\\?\Volume{...}\folder"
    return whole.left(whole.indexOf(QLatin1Char('}')) + 1);
}

QByteArray diskName(DWORD number)
{
    return "disk " + QByteArray::number(uint(number));
}

} // namespace

bool System::isSameFile(const QString &path, const QString &other)
{
    const Handle one(path);
    const Handle two(other);
    BY_HANDLE_FILE_INFORMATION a = {};
    BY_HANDLE_FILE_INFORMATION b = {};
    return one.isOpen() && two.isOpen() && GetFileInformationByHandle(one.get(), &a)
        && GetFileInformationByHandle(two.get(), &b)
        && a.dwVolumeSerialNumber == b.dwVolumeSerialNumber && a.nFileIndexHigh == b.nFileIndexHigh
        && a.nFileIndexLow == b.nFileIndexLow;
}

bool System::isInside(const QString &path, const QString &folder)
{
    QString inner = finalPath(path);
    QString outer = finalPath(folder);
    if (inner.isEmpty() || outer.isEmpty())
        return false;
    for (QString *each : {&inner, &outer}) {
        if (!each->endsWith(QLatin1Char('\\')))
            each->append(QLatin1Char('\\'));
    }
    return inner.startsWith(outer, Qt::CaseInsensitive);
}

bool System::isOnMedium(const QString &folder, const QString &medium)
{
    return isDevice(medium) && disksOf(folder).intersects(disksOf(medium));
}

QSet<QByteArray> System::disksOf(const QString &path)
{
    const QString name = isDevice(path) ? path : volumeOf(path);
    const Handle device(name);
    if (!device.isOpen())
        return {};
    STORAGE_DEVICE_NUMBER number = {};
    DWORD size = 0;
    if (DeviceIoControl(device.get(), IOCTL_STORAGE_GET_DEVICE_NUMBER, nullptr, 0, &number,
                        sizeof(number), &size, nullptr))
        return {diskName(number.DeviceNumber)};
    VOLUME_DISK_EXTENTS extents = {}; // one is what removable media have
    if (DeviceIoControl(device.get(), IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS, nullptr, 0, &extents,
                        sizeof(extents), &size, nullptr)
        && extents.NumberOfDiskExtents > 0)
        return {diskName(extents.Extents[0].DiskNumber)};
    return {name.toUtf8()};
}
