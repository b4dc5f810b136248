// A host that knows nothing but the installed SDK proves what it says, in both directions:
//   blackbox-host PLUG-IN
// A line for each proof; the exit code is 1 when something is not proved. It calls itself with
// PLUG-IN --theme for a process in which nothing has been decided yet.
#include "proofs.h"
#include "report.h"
#include "stage.h"
#include "support/usersettings.h"

#include <QApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QLibrary>
#include <QLoggingCategory>
#include <QPluginLoader>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTranslator>

#include <algorithm>
#include <new>

namespace {

const QString s_name = QStringLiteral("SDCardScanContentPlugin");

void proveFile(const QString &file)
{
    const QFileInfo info(file);
    Report::tell(info.isFile() && info.completeBaseName() == s_name && QLibrary::isLibrary(file),
                 QStringLiteral("the file"), info.fileName());
}

void proveMetaData(const QPluginLoader &loader)
{
    const QJsonObject about = loader.metaData();
    const QJsonObject own = about[QStringLiteral("MetaData")].toObject();
    const auto says = [](const QJsonObject &object, const char *key, const QJsonValue &value) {
        const QJsonValue said = object[QLatin1String(key)];
        Report::tell(said == value, QStringLiteral("metadata %1").arg(QLatin1String(key)),
                     said.toVariant().toString());
    };
    says(about, "IID", QStringLiteral("com.Quarvo.SDCardScanContentPluginInterface"));
    says(about, "className", s_name);
    says(own, "name", s_name);
    says(own, "version", QStringLiteral("1.0.0"));
    says(own, "date", QStringLiteral("2026/08/25"));
    says(own, "des", QStringLiteral("SD 卡扫描页主内容区域插件：缩略图网格"));
    says(own, "enabled", true);
    says(own, "dependencies", QJsonArray());
    Report::tell(!own[QStringLiteral("author")].toString().isEmpty(),
                 QStringLiteral("metadata author"), own[QStringLiteral("author")].toString());
    Report::tell(!loader.isLoaded(), QStringLiteral("the metadata is read before loading"));
}

/// The host's compiler makes the room for a record, the library fills it.
void proveRoom()
{
    constexpr int Fence = 64;
    alignas(TreeItemData) unsigned char room[sizeof(TreeItemData) + Fence];
    std::fill(std::begin(room), std::end(room), 0xA5);
    auto *record = new (room) TreeItemData;
    const bool filled = record->fileId == -1;
    record->~TreeItemData();
    Report::tell(filled && std::count(std::end(room) - Fence, std::end(room), 0xA5) == Fence,
                 QStringLiteral("a record fits where the host puts it"));
}

/// Loads the plug-in, lets \a use have it and unloads it.
void withPlugin(QPluginLoader *loader, const std::function<void(Stage &)> &use)
{
    QObject *plugin = loader->instance();
    if (!qobject_cast<SDCardScanContentPluginInterface *>(plugin)) {
        Report::tell(false, QStringLiteral("the plug-in has the interface"), loader->errorString());
        return;
    }
    const QPointer<QObject> object = plugin;
    {
        Stage stage(plugin);
        const QPointer<QFrame> frame = stage.scan.frame();
        use(stage);
        Report::tell(loader->unload() && !object && !frame,
                     QStringLiteral("unloaded, frames and all"));
    }
}

int tellTheme(const QString &file)
{
    QPluginLoader loader(file);
    withPlugin(&loader, [](Stage &stage) {
        stage.view->updateScanData(&stage.card.root);
        QTextStream(stdout) << "theme " << qApp->property("ThemeType").toInt()
                            << (stage.scan.background().lightness() > 127 ? " bright" : " dark")
                            << Qt::endl;
    });
    return Report::failures();
}

void proveTheme(UserSettings *user, const QString &file)
{
    struct Case
    {
        const char *name;
        QVector<QPair<QString, QString>> stored;
        bool systemDark;
        const char *seen;
    };
    const QPair<QString, QString> ownWay{QStringLiteral("followSystemTheme"),
                                         QStringLiteral("false")};
    const Case cases[] = {
        {"the system is dark", {}, true, "theme 1 dark"},
        {"the user chose light",
         {ownWay, {QStringLiteral("theme"), QStringLiteral("0")}},
         true,
         "theme 0 bright"},
    };
    for (const Case &c : cases) {
        user->store(c.stored);
        user->setSystemDark(c.systemDark);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        const auto variables = user->environment();
        for (const auto &variable : variables)
            environment.insert(variable.first, variable.second);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QCoreApplication::applicationFilePath(), {file, QStringLiteral("--theme")});
        process.waitForFinished(60000);
        const QString seen = QString::fromUtf8(process.readAll()).simplified();
        Report::tell(seen.contains(QLatin1String(c.seen)) && process.exitCode() == 0,
                     QStringLiteral("theme where ") + QLatin1String(c.name), seen);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2)
        qFatal("blackbox-host PLUG-IN");
    QTranslator texts;
    if (texts.load(QCoreApplication::applicationDirPath()
                   + QStringLiteral("/translations/quarvo_en.qm")))
        QCoreApplication::installTranslator(&texts);
    if (arguments.size() > 2)
        return tellTheme(arguments.at(1));

    // what is decided here must not become the settings of whoever runs this
    UserSettings user;
    const auto variables = user.environment();
    for (const auto &variable : variables)
        qputenv(variable.first.toLatin1().constData(), variable.second.toLocal8Bit());
    const QTemporaryDir icons;
    provideDesktopIcons(icons.path());

    const QString file = QFileInfo(arguments.at(1)).absoluteFilePath();
    proveFile(file);
    proveRoom();
    QPluginLoader loader(file);
    proveMetaData(loader);
    withPlugin(&loader, [&](Stage &stage) {
        proveOperations(stage);
        proveSignals(stage);
        proveDesktopIcons(stage);
        proveFonts(stage);
    });
    withPlugin(&loader, [](Stage &stage) {
        stage.begin();
        Report::tell(stage.scan.rows() == stage.card.root.itemCount,
                     QStringLiteral("loaded again, shows records again"));
    });
    proveTheme(&user, file);
    Report::tell(Report::failures() == 0, QStringLiteral("all proved"));
    return Report::failures() ? 1 : 0;
}
