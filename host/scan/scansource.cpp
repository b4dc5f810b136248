#include "host/scan/scansource.h"

#include "host/scan/foldersource.h"
#include "host/scan/imagesource.h"
#include "host/scan/shownpath.h"
#include "host/scan/syntheticsource.h"

#include <QCoreApplication>
#include <QFileInfo>

ScanSource::ScanSource(const QString &path)
    : m_path(QFileInfo(path).absoluteFilePath())
{
}

ScanSource::~ScanSource() = default;

std::unique_ptr<ScanSource> ScanSource::create(const QString &path, QString *error)
{
    const QFileInfo info(path);
    const QString shown = shownPath(path);
    if (const int items = info.exists() ? 0 : SyntheticSource::countOf(path))
        return std::make_unique<SyntheticSource>(items);
    if (path.isEmpty() || !info.exists()) {
        *error = QCoreApplication::translate("ScanSource", "%1 does not exist.").arg(shown);
        return nullptr;
    }
    if (info.isDir())
        return FolderSource::open(path, error);
    return ImageSource::open(path, error);
}
