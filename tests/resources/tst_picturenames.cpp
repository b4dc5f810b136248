#include "picturefiles.h"

#include "platform/item/treeitemdata.h"
#include "support/datarow.h"
#include "thumbnails/filetypeicons.h"

#include <QFile>
#include <QMap>
#include <QTest>

namespace {

const char *const s_folders[] = {"common", "model",   "thumbnails", "delegates", "popups",
                                 "detail", "content", "plugin",     "host",      "resources"};

QString folderOf(const QString &base)
{
    return QFileInfo(base).path();
}

/// Pictures that a name in the code may mean: a path, or what stands in a folder of pictures. A
/// name with %1, or one that ends where code appends the rest, means all that fit.
QStringList meantBy(const QString &name, const QStringList &pictures)
{
    QString pattern = QRegularExpression::escape(
        QString(name).remove(QRegularExpression(QStringLiteral("^:/?"))));
    pattern.replace(QRegularExpression(QStringLiteral("\\\\%\\d")), QStringLiteral("[^/]+"));
    if (name.endsWith(QLatin1Char('_')) || name.endsWith(QLatin1Char('-')))
        pattern += QStringLiteral("[^/]+");
    pattern.prepend(name.startsWith(QLatin1Char(':')) ? QStringLiteral(":/")
                                                      : QStringLiteral(":/Images/(?:.*/)?"));
    const QRegularExpression fits(QRegularExpression::anchoredPattern(pattern));
    QStringList meant;
    for (const QString &base : pictures)
        if (fits.match(base).hasMatch())
            meant.append(base);
    return meant;
}

/// Every picture that code and stylesheets name, with the file that does.
QMap<QString, QString> namesOfTheCode()
{
    static const QRegularExpression name(QStringLiteral(
        "(?:\"|@images@/)((?::/?Images/|:/?Resources/)?(?:[\\w%-]+/)*(?:icon|image|thumbmask)\\d*_"
        "[\\w %-]*?|:/?(?:Images|Resources)/[\\w %/-]*[\\w%])(?:@2x)?(?:\\.png)?[\")]"));
    QMap<QString, QString> names;
    for (const char *folder : s_folders) {
        QDirIterator files(QLatin1String(SOURCE_FOLDER "/") + QLatin1String(folder),
                           {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.ui"),
                            QStringLiteral("*.qss")},
                           QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly))
                continue;
            const QString code = QString::fromUtf8(file.readAll());
            for (auto it = name.globalMatch(code); it.hasNext();)
                names.insert(it.next().captured(1), QFileInfo(file.fileName()).fileName());
        }
    }
    return names;
}

} // namespace

/// What the code asks for is there.
class TestPictureNames : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void isThere_data();
    void isThere();

private:
    void verifyWhole(const QString &base);

    QStringList m_pictures;
};

void TestPictureNames::initTestCase()
{
    m_pictures = PictureFiles::bases();
    QVERIFY(!m_pictures.isEmpty());
}

void TestPictureNames::verifyWhole(const QString &base)
{
    QVERIFY2(QFile::exists(PictureFiles::path(base, 1)), qPrintable(base));
    if (!PictureFiles::sheetOf(base))
        QVERIFY2(QFile::exists(PictureFiles::path(base, 2)), qPrintable(base));
}

void TestPictureNames::isThere_data()
{
    addColumns<QString, QString>({"name", "file"});
    const QMap<QString, QString> names = namesOfTheCode();
    QVERIFY(names.size() > 30);
    for (auto it = names.cbegin(); it != names.cend(); ++it)
        QTest::newRow(qPrintable(it.key())) << it.key() << it.value();
}

void TestPictureNames::isThere()
{
    QFETCH(QString, name);
    QFETCH(QString, file);

    const QStringList meant = meantBy(name, m_pictures);
    QVERIFY2(!meant.isEmpty(), qPrintable(QLatin1String("named in ") + file));
    for (const QString &base : meant)
        verifyWhole(base);

    // a name without a folder is looked up by theme; the dark one may fall back on the light one
    if (!name.contains(QLatin1Char('/'))) {
        bool light = false;
        for (const QString &base : meant)
            light = light || !folderOf(base).contains(QLatin1String("/Dark"));
        QVERIFY2(light, qPrintable(QLatin1String("only dark, named in ") + file));
    }
}

QTEST_MAIN(TestPictureNames)
#include "tst_picturenames.moc"
