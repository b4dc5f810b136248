#pragma once

#include <QString>

struct ItemRecord;

/// How the host writes amounts and names.
namespace Texts {

QString size(qint64 bytes);
QString number(qint64 number);
QString files(int count); ///< "1 file", "12 files"
QString folders(int count);
/// What a folder, a volume or a kind is called.
QString titleOf(const ItemRecord &record);

} // namespace Texts
