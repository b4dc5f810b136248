#pragma once

#include <QString>

/// How the host writes amounts.
namespace Texts {

QString size(qint64 bytes);
QString number(qint64 number);
QString files(int count); ///< "1 file", "12 files"
QString folders(int count);

} // namespace Texts
