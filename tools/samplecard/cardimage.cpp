#include "cardimage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QtEndian>

#include <algorithm>
#include <stdexcept>

static constexpr qint64 MiB = 1024 * 1024;
static constexpr qint64 SmallestFat32 = 280 * MiB; // FAT32 wants 65525 clusters, ours have 4 KiB

[[noreturn]] static void fail(const QString &message)
{
    throw std::runtime_error(message.toStdString());
}

static QString onCard(const QString &path)
{
    return QStringLiteral("::/") + path;
}

static QString toolPath(const QString &name)
{
    // mkfs.fat lives where only root looks
    const QString found = QStandardPaths::findExecutable(name);
    return found.isEmpty() ? QStandardPaths::findExecutable(
               name, {QStringLiteral("/usr/sbin"), QStringLiteral("/sbin")})
                           : found;
}

CardImage::CardImage(const QString &path)
    : m_path(path)
{
    const QPair<QString, QString> tools[] = {
        {QStringLiteral("mkfs.fat"), QStringLiteral("dosfstools")},
        {QStringLiteral("mcopy"), QStringLiteral("mtools")},
        {QStringLiteral("mmd"), QStringLiteral("mtools")},
        {QStringLiteral("mdel"), QStringLiteral("mtools")},
        {QStringLiteral("mrd"), QStringLiteral("mtools")},
        {QStringLiteral("mshowfat"), QStringLiteral("mtools")},
    };
    for (const auto &[tool, package] : tools)
        if (toolPath(tool).isEmpty())
            fail(QStringLiteral("%1 is missing: install the package %2").arg(tool, package));
    QFile image(m_path);
    if (!image.open(QIODevice::WriteOnly | QIODevice::Truncate))
        fail(QStringLiteral("%1: %2").arg(m_path, image.errorString()));
    if (!m_staging.isValid())
        fail(QStringLiteral("no temporary folder: %1").arg(m_staging.errorString()));
}

void CardImage::write(const QVector<CardFile> &files)
{
    qint64 bytes = 0;
    for (const CardFile &file : files)
        bytes += file.content.size() + 4096;
    format(std::max(SmallestFat32, (bytes * 9 / 8 / MiB + 8) * MiB));
    makeFolders(files);
    const CardFile *victim = nullptr;
    const CardFile *by = nullptr;
    for (const CardFile &file : files) {
        if (file.fate == CardFile::Overwriting)
            by = &file;
        else
            copy(file);
        if (file.fate == CardFile::Overwritten)
            victim = &file;
    }
    if (victim && by)
        overwrite(*victim, *by);
    remove(files);
}

void CardImage::format(qint64 bytes)
{
    QFile image(m_path);
    if (!image.open(QIODevice::WriteOnly | QIODevice::Truncate) || !image.resize(bytes))
        fail(QStringLiteral("%1: %2").arg(m_path, image.errorString()));
    image.close();
    run(QStringLiteral("mkfs.fat"),
        {QStringLiteral("--invariant"), QStringLiteral("-F"), QStringLiteral("32"),
         QStringLiteral("-s"), QStringLiteral("8"), QStringLiteral("-n"), QStringLiteral("QUARVO"),
         m_path});
}

void CardImage::makeFolders(const QVector<CardFile> &files)
{
    QStringList folders;
    for (const CardFile &file : files) {
        const QStringList parts = file.path.split(QLatin1Char('/'));
        for (int i = 1; i < parts.size(); ++i) {
            const QString folder = parts.mid(0, i).join(QLatin1Char('/'));
            if (!folders.contains(folder))
                folders << folder;
        }
    }
    for (const QString &folder : qAsConst(folders))
        run(QStringLiteral("mmd"), {QStringLiteral("-i"), m_path, onCard(folder)});
}

void CardImage::copy(const CardFile &file)
{
    const QString staged = m_staging.filePath(QStringLiteral("file"));
    QFile local(staged);
    if (!local.open(QIODevice::WriteOnly | QIODevice::Truncate)
        || local.write(file.content) != file.content.size() || !local.flush())
        fail(QStringLiteral("%1: %2").arg(staged, local.errorString()));
    local.setFileTime(file.time, QFileDevice::FileModificationTime);
    local.close();
    run(QStringLiteral("mcopy"),
        {QStringLiteral("-i"), m_path, QStringLiteral("-m"), staged, onCard(file.path)});
}

void CardImage::overwrite(const CardFile &victim, const CardFile &by)
{
    QByteArray listing;
    run(QStringLiteral("mshowfat"), {QStringLiteral("-i"), m_path, onCard(victim.path)}, &listing);
    static const QRegularExpression s_firstCluster(QStringLiteral("<(\\d+)"));
    const quint32 cluster = s_firstCluster.match(QString::fromUtf8(listing)).captured(1).toUInt();
    if (cluster < 2)
        fail(QStringLiteral("the clusters of %1 are unknown").arg(victim.path));
    run(QStringLiteral("mdel"), {QStringLiteral("-i"), m_path, onCard(victim.path)});

    // The information sector says where a writer should look for room first.
    constexpr qint64 NextFreeCluster = 512 + 492;
    const quint32 hint = qToLittleEndian(cluster);
    QFile image(m_path);
    if (!image.open(QIODevice::ReadWrite) || !image.seek(NextFreeCluster)
        || image.write(reinterpret_cast<const char *>(&hint), sizeof hint) != sizeof hint)
        fail(QStringLiteral("%1: %2").arg(m_path, image.errorString()));
    image.close();
    copy(by);
}

void CardImage::remove(const QVector<CardFile> &files)
{
    QStringList folders; // those in which nothing is left go too
    QSet<QString> inUse;
    for (const CardFile &file : files) {
        const QString folder = file.path.section(QLatin1Char('/'), 0, -2);
        if (file.fate == CardFile::Deleted) {
            run(QStringLiteral("mdel"), {QStringLiteral("-i"), m_path, onCard(file.path)});
            if (!folders.contains(folder))
                folders << folder;
        } else if (file.fate != CardFile::Overwritten) {
            inUse << folder;
        }
    }
    for (const QString &folder : qAsConst(folders))
        if (!inUse.contains(folder))
            run(QStringLiteral("mrd"), {QStringLiteral("-i"), m_path, onCard(folder)});
}

void CardImage::run(const QString &program, const QStringList &arguments, QByteArray *output) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8")); // names are not ASCII
    environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
    environment.insert(QStringLiteral("SOURCE_DATE_EPOCH"), QStringLiteral("1716000000"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(toolPath(program), arguments);
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0)
        fail(QStringLiteral("%1 %2: %3")
                 .arg(program, arguments.join(QLatin1Char(' ')),
                      QString::fromLocal8Bit(process.readAllStandardError()).trimmed()));
    if (output)
        *output = process.readAllStandardOutput();
}
