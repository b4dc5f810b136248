#include "support/awkwardfiles.h"

#include <QFile>

#include <sys/stat.h>

void AwkwardFiles::setTemporaryFolder(const QString &folder)
{
    qputenv("TMPDIR", QFile::encodeName(folder));
}

QString AwkwardFiles::nowhere()
{
    return QStringLiteral("/proc/nowhere");
}

class AwkwardFiles::Unreadable::Private
{
public:
    QString path;
};

AwkwardFiles::Unreadable::Unreadable(const QString &path)
    : d(new Private{path})
{
    mkfifo(QFile::encodeName(path).constData(), S_IRUSR | S_IWUSR);
}

AwkwardFiles::Unreadable::~Unreadable()
{
    QFile::remove(d->path);
}
