#pragma once

#include "host/media/mediapool.h"
#include "host/scan/filecategory.h"

namespace MediaJobs {

/// Fills in what \a item itself tells. False when the helper can do nothing with such a file.
bool prepare(const FoundItem &item, const QString &extension, MediaPool::Job *job);

} // namespace MediaJobs
