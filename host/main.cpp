#include "host/app/automation.h"
#include "host/app/commandline.h"
#include "host/app/contentplugin.h"
#include "host/app/hostsettings.h"
#include "host/app/languages.h"
#include "host/app/session.h"
#include "host/media/thumbnailfiles.h"
#include "host/ui/mainwindow.h"
#include "platform/system/system.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTextStream>

namespace {

enum ExitCode { Success = 0, Failure = 1, WrongUsage = 2 };

void tell(const QString &message)
{
    QTextStream(stderr) << "quarvo-host: " << message << '\n';
}

/// The card that is shown when nobody names one; empty when it has not been made.
QString sampleCard()
{
    const QString chosen = qEnvironmentVariable("QUARVO_SAMPLE_CARD");
    const QString file = chosen.isEmpty()
        ? QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("sample-card.img"))
        : chosen;
    return QFileInfo::exists(file) ? file : QString();
}

/// Before there is a window system: whether one is needed, and which, is decided after this. False
/// when the program ends here.
bool readCommandLine(int &argc, char *argv[], CommandLine *wishes, int *exitCode)
{
    const QCoreApplication early(argc, argv);
    QString message;
    switch (wishes->parse(QCoreApplication::arguments(), &message)) {
    case CommandLine::Run:
        return true;
    case CommandLine::Usage:
        tell(message + QStringLiteral("; see --help"));
        *exitCode = WrongUsage;
        return false;
    case CommandLine::Help:
    case CommandLine::Version:
        QTextStream(stdout) << message << '\n';
        return false;
    }
    return false;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("Quarvo"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.0.0"));

    CommandLine wishes;
    int exitCode = Success;
    if (!readCommandLine(argc, argv, &wishes, &exitCode))
        return exitCode;

    if (!System::hasDisplay() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        tell(QStringLiteral("there is no display: running offscreen"));
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication app(argc, argv);
    System::registerFontSubstitutes();
    QFont font(QStringLiteral("Segoe UI"));
    font.setPixelSize(13);
    QApplication::setFont(font);
    ThumbnailFiles::sweep();

    ContentPlugin plugin;
    QString message;
    const QString pluginFile = wishes.plugin.isEmpty() ? qEnvironmentVariable("QUARVO_PLUGIN")
                                                       : wishes.plugin;
    if (!plugin.load(pluginFile, &message)) {
        tell(message);
        return Failure;
    }
    Session session(plugin);
    MainWindow window(plugin, session);
    const Language *language = Languages::find(wishes.language.isEmpty() ? HostSettings::language()
                                                                         : wishes.language);
    if (!language)
        language = Languages::ofSystem();
    if (!Languages::apply(*language))
        tell(QStringLiteral("there are no texts in %1").arg(QLatin1String(language->name)));
    if (wishes.theme >= 0)
        window.setTheme(THEMETYPE(wishes.theme));
    if (wishes.size.isValid())
        window.resize(wishes.size);
    window.show();

    Automation automation(wishes, plugin, session, window);
    window.setViewMode(wishes.viewMode);
    const QString source = wishes.source.isEmpty() ? sampleCard() : wishes.source;
    if (source.isEmpty()) {
        window.tellMissingSample();
        tell(QStringLiteral("the sample card has not been made; name a folder, a disk image or a "
                            "device"));
        if (wishes.quit)
            return Failure;
    } else {
        window.openSource(source);
    }
    return QApplication::exec();
}
