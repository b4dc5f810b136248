#include "cardbuilder.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <QtEndian>
#include <QtTest>

namespace {

constexpr int SectorSize = 512;
constexpr int ToolMs = 60000;

QString toolPath(const QString &tool)
{
    const QString found = QStandardPaths::findExecutable(tool);
    // Tools that make file systems are not always in a user's search path.
    return found.isEmpty() ? QStandardPaths::findExecutable(
               tool, {QStringLiteral("/usr/sbin"), QStringLiteral("/sbin")})
                           : found;
}

} // namespace

CardBuilder::CardBuilder(const QString &path, qint64 bytes, qint64 offset)
    : m_path(path)
    , m_offset(offset)
    , m_bytes(bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(bytes));
}

bool CardBuilder::hasTools(const QStringList &tools)
{
    for (const QString &tool : tools) {
        if (toolPath(tool).isEmpty())
            return false;
    }
    return true;
}

bool CardBuilder::run(const QString &tool, const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("MTOOLS_SKIP_CHECK"), QStringLiteral("1"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    process.setProcessEnvironment(environment);
    process.start(toolPath(tool), arguments);
    if (process.waitForFinished(ToolMs) && process.exitCode() == 0)
        return true;
    qWarning() << tool << arguments << process.readAllStandardError();
    return false;
}

void CardBuilder::format(const QString &tool, const QStringList &arguments)
{
    QVERIFY(run(tool, arguments + QStringList{m_path}));
}

void CardBuilder::formatFat(int bits, const QString &label)
{
    const qint64 kilobytes = (m_bytes - m_offset) / 1024;
    QVERIFY(run(QStringLiteral("mkfs.fat"),
                {QStringLiteral("-F"), QString::number(bits), QStringLiteral("-n"), label,
                 QStringLiteral("--offset"), QString::number(m_offset / SectorSize), m_path,
                 QString::number(kilobytes)}));
}

void CardBuilder::writePartitionTable(uchar type)
{
    constexpr int TableOffset = 446;
    QByteArray sector(SectorSize, 0);
    uchar *entry = reinterpret_cast<uchar *>(sector.data()) + TableOffset;
    entry[4] = type;
    qToLittleEndian(quint32(m_offset / SectorSize), entry + 8);
    qToLittleEndian(quint32((m_bytes - m_offset) / SectorSize), entry + 12);
    sector[SectorSize - 2] = char(0x55);
    sector[SectorSize - 1] = char(0xaa);
    poke(0, sector);
}

QString CardBuilder::mtoolsImage() const
{
    return m_offset == 0 ? m_path : QStringLiteral("%1@@%2").arg(m_path).arg(m_offset);
}

void CardBuilder::makeFolder(const QString &cardPath)
{
    QVERIFY(run(QStringLiteral("mmd"),
                {QStringLiteral("-i"), mtoolsImage(), QStringLiteral("::") + cardPath}));
}

void CardBuilder::put(const QString &cardPath, const QByteArray &contents,
                      const QDateTime &modified)
{
    QTemporaryFile file;
    QVERIFY(file.open());
    QCOMPARE(file.write(contents), qint64(contents.size()));
    QVERIFY(file.flush());
    if (modified.isValid())
        QVERIFY(file.setFileTime(modified, QFileDevice::FileModificationTime));
    QStringList arguments{QStringLiteral("-i"), mtoolsImage()};
    if (modified.isValid())
        arguments << QStringLiteral("-m");
    arguments << file.fileName() << QStringLiteral("::") + cardPath;
    QVERIFY(run(QStringLiteral("mcopy"), arguments));
}

void CardBuilder::remove(const QString &cardPath)
{
    QVERIFY(run(QStringLiteral("mdel"),
                {QStringLiteral("-i"), mtoolsImage(), QStringLiteral("::") + cardPath}));
}

void CardBuilder::removeTree(const QString &cardPath)
{
    QVERIFY(run(QStringLiteral("mdeltree"),
                {QStringLiteral("-i"), mtoolsImage(), QStringLiteral("::") + cardPath}));
}

void CardBuilder::poke(qint64 offset, const QByteArray &bytes)
{
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.seek(offset));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

void CardBuilder::truncate(qint64 bytes)
{
    QVERIFY(QFile::resize(m_path, bytes));
}

QByteArray CardBuilder::bytes() const
{
    QFile file(m_path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray noise(int size, quint32 seed)
{
    QRandomGenerator generator(seed);
    QByteArray bytes(size, Qt::Uninitialized);
    for (char &byte : bytes)
        byte = char(generator.generate() & 0xff);
    return bytes;
}
