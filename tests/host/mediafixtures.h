#pragma once

#include <QString>

/// A second of blue, 320 x 180 at 25 frames a second, which says that it is to be shown turned by
/// \a degrees. Throws std::runtime_error.
void writeVideo(const QString &path, double degrees);
