#include "platform/system/storage.h"

#include <QDir>
#include <QFileInfo>
#include <QVector>

#include <qt_windows.h>

#include <winioctl.h>

namespace {

constexpr int MaxPath = 32768;

/// With the prefix that lifts the limit of 260 characters. Qt gives it to the files that it opens,
/// and what it can write to has to be found here too.
QString unlimited(const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
    if (native.startsWith(QLatin1String("\\\\?\\")) || native.startsWith(QLatin1String("\\\\.\\")))
        return native;
    const QString whole = QDir::toNativeSeparators(
        QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    return whole.startsWith(QLatin1String("\\\\")) ? QLatin1String("\\\\?\\UNC") + whole.mid(1)
                                                   : QLatin1String("\\\\?\\") + whole;
}

/// An open file, folder, volume or disk; nothing of its contents is read or locked.
class Handle
{
public:
    explicit Handle(const QString &path)
        : m_handle(CreateFileW(reinterpret_cast<const wchar_t *>(unlimited(path).utf16()), 0,
                               FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
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

/// Links, junctions and substituted drives resolved; with the volume's own name in front, or a
/// share's, which has no such name.
QString finalPath(const QString &path)
{
    const Handle file(path);
    if (!file.isOpen())
        return {};
    QVector<wchar_t> text(MaxPath);
    for (const DWORD form : {VOLUME_NAME_GUID, VOLUME_NAME_DOS}) {
        const DWORD length = GetFinalPathNameByHandleW(file.get(), text.data(), DWORD(text.size()),
                                                       form);
        if (length > 0 && length < DWORD(text.size()))
            return QString::fromWCharArray(text.data(), int(length));
    }
    // not every file system answers for every path; what lies above may
    const QFileInfo info(QDir::cleanPath(path));
    const QString folder = info.path();
    const QString above = folder == info.filePath() ? QString() : finalPath(folder);
    return above.isEmpty() ? above : above + QLatin1Char('\\') + info.fileName();
}

bool isShare(const QString &path)
{
    return path.startsWith(QLatin1String("\\\\?\\UNC\\"));
}

/// "\\?\Volume{...}" or "\\?\UNC\server\share".
QString volumeOf(const QString &path)
{
    const QString whole = finalPath(path);
    return isShare(whole) ? whole.section(QLatin1Char('\\'), 0, 5)
                          : whole.left(whole.indexOf(QLatin1Char('}')) + 1);
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
    if (isShare(name))
        return {name.toLower().toUtf8()};
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
