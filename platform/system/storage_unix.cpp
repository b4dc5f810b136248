#include "platform/system/storage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <QVector>

#include <optional>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace {

constexpr int MaxDepth = 8; // disks on disks; there are circles only in a broken system

std::optional<struct stat> statOf(const QString &path)
{
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return status;
}

bool isSame(const struct stat &one, const struct stat &other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

QByteArray nameOf(dev_t device)
{
    return QByteArray::number(major(device)) + ':' + QByteArray::number(minor(device));
}

QByteArray lineOf(const QString &file)
{
    QFile in(file);
    return in.open(QIODevice::ReadOnly) ? in.readAll().trimmed() : QByteArray();
}

/// Some file systems have numbers of their own in place of their device's.
QByteArray deviceOf(const QString &path, const struct stat &status)
{
    if (S_ISBLK(status.st_mode))
        return nameOf(status.st_rdev);
    if (major(status.st_dev) == 0) {
        const auto node = statOf(QString::fromLocal8Bit(QStorageInfo(path).device()));
        if (node && S_ISBLK(node->st_mode))
            return nameOf(node->st_rdev);
    }
    return nameOf(status.st_dev);
}

struct Layers
{
    QSet<QByteArray> devices; // partitions, whole disks and all that lies beneath
    QSet<QByteArray> disks;
    QVector<QString> images; // that are mounted somewhere on the way
};

void addLayers(const QByteArray &device, Layers *layers, int depth = 0)
{
    if (depth > MaxDepth || layers->devices.contains(device))
        return;
    layers->devices.insert(device);
    const QDir node(QLatin1String("/sys/dev/block/") + QString::fromLatin1(device));
    const QString image = QString::fromLocal8Bit(lineOf(node.filePath("loop/backing_file")));
    if (!image.isEmpty()) {
        layers->images.append(image);
        if (const auto status = statOf(image))
            addLayers(deviceOf(image, *status), layers, depth + 1);
        return;
    }
    if (node.exists(QStringLiteral("partition"))) {
        const QDir whole(QFileInfo(node.path()).canonicalFilePath() + QLatin1String("/.."));
        addLayers(lineOf(whole.filePath("dev")), layers, depth + 1);
        return;
    }
    const QDir slaves(node.filePath("slaves"));
    const QStringList below = slaves.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &slave : below)
        addLayers(lineOf(slaves.filePath(slave + QLatin1String("/dev"))), layers, depth + 1);
    if (below.isEmpty())
        layers->disks.insert(device);
}

Layers layersOf(const QString &path)
{
    Layers layers;
    if (const auto status = statOf(path))
        addLayers(deviceOf(path, *status), &layers);
    return layers;
}

/// Where something lies in its file system, whichever mount shows it.
struct Place
{
    QByteArray fileSystem;
    QByteArray path;
};

/// The octal codes with which the system writes spaces and the like.
QByteArray plain(const QByteArray &field)
{
    QByteArray text;
    for (int i = 0; i < field.size(); ++i) {
        if (field[i] == '\\' && i + 3 < field.size()) {
            text += char(field.mid(i + 1, 3).toInt(nullptr, 8));
            i += 3;
        } else {
            text += field[i];
        }
    }
    return text;
}

bool isBelow(const QByteArray &path, const QByteArray &folder)
{
    return path == folder || folder == "/"
        || (path.startsWith(folder) && path.at(folder.size()) == '/');
}

Place placeOf(const QString &path)
{
    const QByteArray canonical = QFile::encodeName(QFileInfo(path).canonicalFilePath());
    QFile mounts(QStringLiteral("/proc/self/mountinfo"));
    Place place;
    if (canonical.isEmpty() || !mounts.open(QIODevice::ReadOnly))
        return place;
    int longest = 0;
    const QList<QByteArray> lines = mounts.readAll().split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> fields = line.split(' ');
        if (fields.size() < 5)
            continue;
        const QByteArray point = plain(fields[4]);
        if (!isBelow(canonical, point) || point.size() < longest)
            continue; // a later mount at the same point covers the earlier one
        longest = point.size();
        const QByteArray root = plain(fields[3]);
        const QByteArray rest = point == "/" ? canonical : canonical.mid(point.size());
        place.fileSystem = fields[2];
        place.path = (root == "/" ? QByteArray() : root) + (rest == "/" ? QByteArray() : rest);
        if (place.path.isEmpty())
            place.path = "/";
    }
    return place;
}

} // namespace

bool System::isSameFile(const QString &path, const QString &other)
{
    const auto one = statOf(path);
    const auto two = statOf(other);
    return one && two && isSame(*one, *two);
}

bool System::isInside(const QString &path, const QString &folder)
{
    const auto wanted = statOf(folder);
    if (!wanted)
        return false;
    QString above = QFileInfo(path).canonicalFilePath();
    while (!above.isEmpty()) {
        const auto status = statOf(above);
        if (status && isSame(*status, *wanted))
            return true;
        if (above == QLatin1String("/"))
            break;
        above = QFileInfo(above).path();
    }
    // a part of the folder may be mounted a second time, where nothing above it is the folder
    const Place place = placeOf(path);
    const Place outer = placeOf(folder);
    return !place.fileSystem.isEmpty() && place.fileSystem == outer.fileSystem
        && isBelow(place.path, outer.path);
}

bool System::isOnMedium(const QString &folder, const QString &medium)
{
    const auto status = statOf(medium);
    if (!status)
        return false;
    const Layers layers = layersOf(folder);
    if (S_ISBLK(status->st_mode))
        return layers.devices.contains(nameOf(status->st_rdev));
    for (const QString &image : layers.images) {
        if (isSameFile(image, medium))
            return true;
    }
    return false;
}

QSet<QByteArray> System::disksOf(const QString &path)
{
    return layersOf(path).disks;
}
