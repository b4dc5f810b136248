#include "cardimage.h"
#include "documents.h"
#include "movies.h"
#include "photolist.h"
#include "sounds.h"

#include <QCommandLineParser>
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMutex>
#include <QTextStream>
#include <QtConcurrent>

#include <exiv2/exiv2.hpp>

#include <atomic>
#include <stdexcept>

namespace {

enum ExitCode { Done = 0, Failed = 1, WrongUsage = 2 };

QVector<CardFile> drawnPhotos(int shrink)
{
    QVector<Photo> photos = cardPhotos();
    std::atomic<bool> failed{false};
    QMutex mutex;
    QString reason;
    QtConcurrent::blockingMap(photos, [&](Photo &photo) {
        try {
            photo.file.content = photoContent(photo, shrink);
        } catch (const std::exception &error) {
            const QMutexLocker lock(&mutex);
            failed = true;
            reason = photo.file.path + QStringLiteral(": ") + QString::fromUtf8(error.what());
        }
    });
    if (failed)
        throw std::runtime_error(reason.toStdString());
    QVector<CardFile> files;
    for (const Photo &photo : qAsConst(photos))
        files << photo.file;
    return files;
}

/// A live text, half as large as the photo whose place it takes.
CardFile overwritingFile(const CardFile &victim)
{
    QByteArray log("Camera service log\n");
    for (int line = 1; log.size() < victim.content.size() / 2; ++line)
        log += "frame " + QByteArray::number(line)
            + " exposure locked, sensor temperature nominal\n";
    return {QStringLiteral("MISC/SERVICE.LOG"), victim.time.addDays(9), CardFile::Overwriting, log};
}

QVector<CardFile> cardFiles(int shrink)
{
    QVector<CardFile> files = drawnPhotos(shrink);
    files += cardDocuments();
    files += cardSounds();
    files += cardMovies(shrink);
    for (const CardFile &file : qAsConst(files))
        if (file.fate == CardFile::Overwritten) {
            files << overwritingFile(file);
            break;
        }
    return files;
}

void writeManifest(const QString &path, const QVector<CardFile> &files)
{
    QJsonArray list;
    for (const CardFile &file : files)
        list << QJsonObject{
            {QStringLiteral("path"), file.path},
            {QStringLiteral("size"), file.content.size()},
            {QStringLiteral("sha256"),
             QString::fromLatin1(
                 QCryptographicHash::hash(file.content, QCryptographicHash::Sha256).toHex())},
            {QStringLiteral("modified"), file.time.toString(Qt::ISODate)},
            {QStringLiteral("deleted"),
             file.fate == CardFile::Deleted || file.fate == CardFile::Overwritten},
            {QStringLiteral("damaged"), file.fate == CardFile::Overwritten},
        };
    QFile manifest(path);
    const QByteArray text = QJsonDocument(QJsonObject{{QStringLiteral("files"), list}}).toJson();
    if (!manifest.open(QIODevice::WriteOnly) || manifest.write(text) != text.size())
        throw std::runtime_error(
            (path + QStringLiteral(": ") + manifest.errorString()).toStdString());
}

QString manifestPath(const QString &image)
{
    const QFileInfo info(image);
    return info.path() + QLatin1Char('/') + info.completeBaseName() + QStringLiteral(".json");
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // it draws, but never on a screen
    qputenv("LC_ALL", "C.UTF-8"); // names on the card are not ASCII, whatever the user's locale
    QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Makes a camera's card: a FAT32 image with live and deleted files, and "
                       "OUTPUT.json that lists them."));
    parser.addHelpOption();
    const QCommandLineOption shrinkOption(
        QStringLiteral("shrink"),
        QStringLiteral("Divide the sides of photos and videos by N (1 to 8)."), QStringLiteral("N"),
        QStringLiteral("1"));
    parser.addOption(shrinkOption);
    parser.addPositionalArgument(QStringLiteral("OUTPUT.img"),
                                 QStringLiteral("The image to write; an old one is replaced."));
    parser.process(application);

    QTextStream errors(stderr);
    const int shrink = parser.value(shrinkOption).toInt();
    if (parser.positionalArguments().size() != 1 || shrink < 1 || shrink > 8) {
        errors << parser.helpText();
        return WrongUsage;
    }
    const QString output = parser.positionalArguments().constFirst();
    const QString unfinished = output + QStringLiteral(".part");
    try {
        Exiv2::XmpParser::initialize();
        CardImage image(
            unfinished); // before the drawing: it knows at once whether its tools are there
        const QVector<CardFile> files = cardFiles(shrink);
        image.write(files);
        writeManifest(manifestPath(output), files);
        QFile::remove(output);
        if (!QFile::rename(unfinished, output))
            throw std::runtime_error("cannot rename " + unfinished.toStdString());
        Exiv2::XmpParser::terminate();
    } catch (const std::exception &error) {
        QFile::remove(unfinished);
        errors << "quarvo-sample-card: " << error.what() << '\n';
        return Failed;
    }
    return Done;
}
