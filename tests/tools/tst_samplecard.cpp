#include <QBuffer>
#include <QCryptographicHash>
#include <QFile>
#include <QImageReader>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cstring>

/// The sample card as other programs see it: through mtools and through the bytes of the image.
class SampleCardTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void liveFilesCopyOutUnchanged();
    void deletedFilesAreGoneButIntact();
    void damagedPhotoCannotBeWhole();
    void photosDecode();
    void secondCardHasTheSameFiles();

private:
    static QJsonArray makeCard(const QString &image);
    QByteArray copiedOut(const QString &path) const;
    QVector<QJsonObject> files(bool deleted, bool damaged) const;

    QTemporaryDir m_folder;
    QString m_image;
    QByteArray m_bytes;
    QJsonArray m_files;
};

static int runTool(const QStringList &arguments, QByteArray *errors = nullptr)
{
    QProcess tool;
    tool.start(QCoreApplication::applicationDirPath() + QStringLiteral("/quarvo-sample-card"),
               arguments);
    if (!tool.waitForFinished(240000))
        return -1;
    if (errors)
        *errors = tool.readAllStandardError();
    return tool.exitStatus() == QProcess::NormalExit ? tool.exitCode() : -1;
}

static QByteArray sha256(const QByteArray &content)
{
    return QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
}

/// Of a whole file whose clusters follow each other, as they do on a card that was filled once.
static bool holdsFile(const QByteArray &image, const QJsonObject &file)
{
    constexpr int Sector = 512;
    const int size = file[QLatin1String("size")].toInt();
    const QByteArray wanted = file[QLatin1String("sha256")].toString().toLatin1();
    static const QHash<QString, QByteArray> s_starts{
        {QStringLiteral("jpg"), "\xff\xd8\xff"}, {QStringLiteral("png"), "\x89PNG"},
        {QStringLiteral("bmp"), "BM"},           {QStringLiteral("wav"), "RIFF"},
        {QStringLiteral("avi"), "RIFF"},         {QStringLiteral("txt"), "Packing"},
        {QStringLiteral("html"), "<!DOCTYPE"}};
    const QString path = file[QLatin1String("path")].toString();
    const QByteArray start = s_starts.value(path.section(QLatin1Char('.'), -1).toLower());
    for (int at = 0; at + size <= image.size(); at += Sector)
        if (std::memcmp(image.constData() + at, start.constData(), size_t(start.size())) == 0
            && sha256(QByteArray::fromRawData(image.constData() + at, size)) == wanted)
            return true;
    return false;
}

QJsonArray SampleCardTest::makeCard(const QString &image)
{
    QByteArray errors;
    if (runTool({QStringLiteral("--shrink"), QStringLiteral("8"), image}, &errors) != 0) {
        qWarning().noquote() << errors;
        return {};
    }
    QFile manifest(image.chopped(4) + QStringLiteral(".json"));
    if (!manifest.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(manifest.readAll())[QLatin1String("files")].toArray();
}

void SampleCardTest::initTestCase()
{
    qputenv("LC_ALL", "C.UTF-8"); // for mcopy; the names are not ASCII
    m_image = m_folder.filePath(QStringLiteral("card.img"));
    m_files = makeCard(m_image);
    QVERIFY(m_files.size() > 60);
    QFile image(m_image);
    QVERIFY(image.open(QIODevice::ReadOnly));
    m_bytes = image.readAll();
}

QVector<QJsonObject> SampleCardTest::files(bool deleted, bool damaged) const
{
    QVector<QJsonObject> chosen;
    for (const QJsonValue &value : m_files) {
        const QJsonObject file = value.toObject();
        if (file[QLatin1String("deleted")].toBool() == deleted
            && file[QLatin1String("damaged")].toBool() == damaged)
            chosen << file;
    }
    return chosen;
}

QByteArray SampleCardTest::copiedOut(const QString &path) const
{
    QProcess mcopy;
    mcopy.start(QStringLiteral("mcopy"),
                {QStringLiteral("-i"), m_image, QStringLiteral("::/") + path, QStringLiteral("-")});
    return mcopy.waitForFinished() && mcopy.exitCode() == 0 ? mcopy.readAllStandardOutput()
                                                            : QByteArray();
}

void SampleCardTest::liveFilesCopyOutUnchanged()
{
    const QVector<QJsonObject> live = files(false, false);
    QVERIFY(live.size() > 40);
    for (const QJsonObject &file : live) {
        const QString path = file[QLatin1String("path")].toString();
        const QByteArray wanted = file[QLatin1String("sha256")].toString().toLatin1();
        QVERIFY2(sha256(copiedOut(path)) == wanted, qPrintable(path));
    }
}

void SampleCardTest::deletedFilesAreGoneButIntact()
{
    const QVector<QJsonObject> deleted = files(true, false);
    QVERIFY(deleted.size() * 3 >= m_files.size() - 3);
    for (const QJsonObject &file : deleted) {
        const QString path = file[QLatin1String("path")].toString();
        QVERIFY2(copiedOut(path).isEmpty(), qPrintable(path));
        QVERIFY2(holdsFile(m_bytes, file), qPrintable(path));
    }
}

void SampleCardTest::damagedPhotoCannotBeWhole()
{
    const QVector<QJsonObject> damaged = files(true, true);
    QCOMPARE(damaged.size(), 1);
    QVERIFY(!holdsFile(m_bytes, damaged.constFirst()));
}

void SampleCardTest::photosDecode()
{
    int turned = 0;
    for (const QJsonObject &file : files(false, false)) {
        const QString path = file[QLatin1String("path")].toString();
        if (!path.endsWith(QLatin1String(".jpg"), Qt::CaseInsensitive))
            continue;
        QByteArray content = copiedOut(path);
        QBuffer buffer(&content);
        buffer.open(QIODevice::ReadOnly);
        QImageReader reader(&buffer);
        QVERIFY2(!reader.read().isNull(), qPrintable(path));
        turned += reader.transformation() == QImageIOHandler::TransformationRotate90;
    }
    QVERIFY(turned > 0);
}

void SampleCardTest::secondCardHasTheSameFiles()
{
    QCOMPARE(makeCard(m_folder.filePath(QStringLiteral("again.img"))), m_files);
}

QTEST_GUILESS_MAIN(SampleCardTest)

#include "tst_samplecard.moc"
