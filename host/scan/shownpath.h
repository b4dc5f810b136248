#pragma once

#include <QString>

/// \a path as users read it, fit to stand in the middle of a sentence, also of one that runs from
/// right to left. Not for opening.
QString shownPath(const QString &path);
