#include "common/qssloader.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QVariant>
#include <QWidget>

namespace QSSLoader {

QString loadStyleSheet(const QString &folder, const QStringList &fileNames)
{
    const QCoreApplication *app = QCoreApplication::instance();
    const bool dark = app && app->property("ThemeType").toInt() != 0;
    const QString directory = QCoreApplication::applicationDirPath()
        + (dark ? QStringLiteral("/theme/dark/") : QStringLiteral("/theme/light/")) + folder
        + QLatin1Char('/');

    QStringList paths;
    paths.reserve(fileNames.size());
    for (const QString &name : fileNames)
        paths += directory + name;
    return loadFiles(paths);
}

QString loadFiles(const QStringList &paths)
{
    QString text;
    for (const QString &path : paths) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly | QIODevice::Text))
            text += QString::fromUtf8(file.readAll());
        else
            qDebug() << "QSSLoader: Failed to load QSS file:" << path;
    }
    return text;
}

void applyStyleSheet(QWidget *widget, const QString &fileName)
{
    if (!widget)
        return;
    const QString text = loadStyleSheet(QStringLiteral("SDCardScanContentPlugin"), {fileName});
    if (text.isEmpty() || text == widget->styleSheet())
        return;
    // Children of a widget that was never shown may have drawn on its first sheet already; a second
    // one reaches them only when the widget itself counts as styled.
    if (!widget->styleSheet().isEmpty())
        widget->ensurePolished();
    widget->setStyleSheet(text);
}

} // namespace QSSLoader
