#include "common/scanviewmanager.h"

#include <QtGlobal>

ScanViewManager *ScanViewManager::instance()
{
    static auto *manager = new ScanViewManager;
    return manager;
}

ScanViewManager::ScanViewManager()
    : plainPainting(qEnvironmentVariableIsSet("QUARVO_PLAIN_PAINTING"))
{
}
