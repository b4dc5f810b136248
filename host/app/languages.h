#pragma once

#include <QString>
#include <QStringList>

/// The languages of the program, by the names that its makers gave them.
struct Language
{
    const char *name;   ///< as in "Chinese Simplified"
    const char *code;   ///< of the file with its texts
    const char *locale; ///< for dates and numbers
};

namespace Languages {

/// Null when \a name is none of them; letter case does not matter.
const Language *find(const QString &name);
QStringList names();

/// Makes \a language that of the whole process: texts, dates, numbers, fonts, writing direction.
/// To be called when the plug-in has made its frames. False when its texts are missing; then
/// everything else has been set nevertheless.
bool apply(const Language &language);

} // namespace Languages
