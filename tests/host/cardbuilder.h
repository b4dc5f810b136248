#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <QDateTime>

/// Makes disk images for tests with the systems' own tools (dosfstools, mtools, e2fsprogs,
/// exfatprogs, ntfs-3g), so that what we read was not written by us.
class CardBuilder
{
public:
    /// An image file \a path of \a bytes zeros. The file system begins at \a offset.
    CardBuilder(const QString &path, qint64 bytes, qint64 offset = 0);

    /// The tool is not installed: for QSKIP.
    static bool hasTools(const QStringList &tools);

    void format(const QString &tool, const QStringList &arguments);
    void formatFat(int bits, const QString &label = QStringLiteral("CARD"));
    /// A partition table with one entry of type \a type from the file system's offset to the end.
    void writePartitionTable(uchar type);

    void makeFolder(const QString &cardPath);
    void put(const QString &cardPath, const QByteArray &contents,
             const QDateTime &modified = QDateTime());
    void remove(const QString &cardPath);
    void removeTree(const QString &cardPath);

    /// Overwrites bytes of the image, wherever they belong to.
    void poke(qint64 offset, const QByteArray &bytes);
    void truncate(qint64 bytes);
    QString path() const { return m_path; }
    QByteArray bytes() const;

    static bool run(const QString &tool, const QStringList &arguments);

private:
    QString mtoolsImage() const;
    QString m_path;
    qint64 m_offset;
    qint64 m_bytes;
};

/// Bytes that do not compress or repeat, the same for the same seed.
QByteArray noise(int size, quint32 seed);
