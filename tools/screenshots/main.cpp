// Renders every page and view of the content area, as a host would show it, into a folder with an
// index page.
#include "coordinator.h"
#include "pages.h"
#include "platform/system/system.h"
#include "stage.h"

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

constexpr int QuickPng = 80; // what is looked at once need not be small

bool renderScale(const Wishes &wishes)
{
    Stage stage(wishes.size);
    if (!stage.load())
        return false;
    const QDir folder(wishes.folder);
    const qreal scale = stage.window().devicePixelRatioF();
    bool well = true;
    for (const QString &language : wishes.languages) {
        stage.setLanguage(language);
        for (const QString &theme : wishes.themes) {
            stage.setTheme(theme);
            for (const QString &page : wishes.pages) {
                QImage picture;
                stage.setOnDialog([&] { picture = stage.picture(scale); });
                Pages::prepare(page, stage);
                if (picture.isNull())
                    picture = stage.picture(scale);
                const QString file = folder.filePath(
                    wishes.fileName(page, language, theme, wishes.onlyScale));
                if (picture.save(file, "png", QuickPng))
                    continue;
                QTextStream(stderr) << "quarvo-screenshots: cannot write " << file << '\n';
                well = false;
            }
        }
    }
    return well;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("quarvo-screenshots"));
    Wishes wishes;
    int exitCode = 0;
    {
        const QCoreApplication early(argc, argv);
        if (!wishes.read(QCoreApplication::arguments(), &exitCode))
            return exitCode;
        if (wishes.onlyScale.isEmpty())
            return Coordinator::run(wishes) ? 0 : 1;
    }
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication app(argc, argv);
    QTemporaryDir settings; // the theme of whoever runs this stays as it is
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    System::registerFontSubstitutes();
    QFont font(QStringLiteral("Segoe UI"));
    font.setPixelSize(13);
    QApplication::setFont(font);
    return renderScale(wishes) ? 0 : 1;
}
