#include "host/app/contentplugin.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QMetaMethod>

namespace {

QStringList candidates()
{
    const QDir home(QCoreApplication::applicationDirPath());
    QStringList files;
    for (const char *folder : {"plugins", ".", "../lib/quarvo"}) {
        const QDir place(home.filePath(QLatin1String(folder)));
        const QStringList patterns{QStringLiteral("SDCardScanContentPlugin*"),
                                   QStringLiteral("libSDCardScanContentPlugin*")};
        const auto found = place.entryInfoList(patterns, QDir::Files, QDir::Name);
        for (const QFileInfo &file : found) {
            if (QLibrary::isLibrary(file.fileName()))
                files.append(file.absoluteFilePath());
        }
    }
    return files;
}

} // namespace

ContentPlugin::ContentPlugin(QObject *parent)
    : QObject(parent)
{
}

ContentPlugin::~ContentPlugin()
{
    if (m_interface)
        m_loader.unload();
}

bool ContentPlugin::load(const QString &file, QString *error)
{
    if (!file.isEmpty())
        return loadFile(QFileInfo(file).absoluteFilePath(), error);
    *error = tr("The plug-in SDCardScanContentPlugin is not beside the program.");
    const QStringList files = candidates();
    for (const QString &candidate : files) {
        if (loadFile(candidate, error))
            return true;
    }
    return false;
}

bool ContentPlugin::loadFile(const QString &file, QString *error)
{
    m_loader.setFileName(file);
    const QString iid = m_loader.metaData().value(QLatin1String("IID")).toString();
    if (iid != QLatin1String(qobject_interface_iid<SDCardScanContentPluginInterface *>())) {
        *error = iid.isEmpty() ? tr("%1 cannot be loaded: %2").arg(file, m_loader.errorString())
                               : tr("%1 is a plug-in of another kind: %2").arg(file, iid);
        return false;
    }
    m_object = m_loader.instance();
    m_interface = qobject_cast<SDCardScanContentPluginInterface *>(m_object);
    if (!m_interface) {
        *error = tr("%1 cannot be loaded: %2").arg(file, m_loader.errorString());
        return false;
    }
    connectSignals();
    return true;
}

// The class of the plug-in object is nobody's business but the plug-in's: its signals are known by
// name only, when the program runs. This is the one place for connects in string form.
void ContentPlugin::connectSignals()
{
    const struct
    {
        const char *from;
        const char *to;
    } relays[] = {
        {SIGNAL(signalTreeItemCheck(TreeItemData *, Qt::CheckState)),
         SIGNAL(treeItemChecked(TreeItemData *, Qt::CheckState))},
        {SIGNAL(signalSearchItemDataCheck(TreeItemData *, Qt::CheckState)),
         SIGNAL(searchItemChecked(TreeItemData *, Qt::CheckState))},
        {SIGNAL(signalSearchSelectAllChecked(Qt::CheckState)),
         SIGNAL(searchAllChecked(Qt::CheckState))},
        {SIGNAL(signalFolderDoubleClicked(TreeItemData *)), SIGNAL(folderOpened(TreeItemData *))},
        {SIGNAL(signalFileDoubleClicked(TreeItemData *, QString)),
         SIGNAL(fileOpened(TreeItemData *, QString))},
        {SIGNAL(signalLocateFile(TreeItemData *)), SIGNAL(locateRequested(TreeItemData *))},
        {SIGNAL(signalSaveThumbnail(TreeItemData *)), SIGNAL(thumbnailRequested(TreeItemData *))},
        {SIGNAL(signalGetMetaData(TreeItemData *)), SIGNAL(metadataRequested(TreeItemData *))},
        {SIGNAL(signalRightMenuRecover(TreeItemData *)), SIGNAL(recoverRequested(TreeItemData *))},
        {SIGNAL(signalShowTooltip(QString)), SIGNAL(tooltipRequested(QString))},
    };
    for (const auto &relay : relays)
        connect(m_object, relay.from, this, relay.to);

    const QMetaMethod counter = metaObject()->method(metaObject()->indexOfSlot("countSignal()"));
    const QMetaObject *type = m_object->metaObject();
    for (int i = type->methodOffset(); i < type->methodCount(); ++i) {
        const QMetaMethod method = type->method(i);
        if (method.methodType() != QMetaMethod::Signal)
            continue;
        m_counts.insert(QString::fromLatin1(method.name()), 0);
        connect(m_object, method, this, counter);
    }
}

void ContentPlugin::countSignal()
{
    const QMetaMethod method = m_object->metaObject()->method(senderSignalIndex());
    ++m_counts[QString::fromLatin1(method.name())];
}
