#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// A language of the program, by the name that its makers gave it.
struct Language
{
    const char *name;       ///< as in "Chinese Simplified"
    const char *nativeName; ///< UTF-8, as those write it who speak it
    const char *code;       ///< of the files with its texts
    const char *locale;     ///< for dates and numbers
    const char *otherNames; ///< what people call it besides, with commas between
};

namespace Languages {

const QVector<Language> &all();

/// By any of its names, its code or its locale. Letter case, spaces, hyphens and underscores do not
/// matter. Null when \a name is none of them.
const Language *find(const QString &name);
QStringList names();
/// What the desktop speaks; English when that is none of ours.
const Language *ofSystem();

/// Makes \a language that of the whole process: texts, dates, numbers, fonts, writing direction;
/// every widget hears of it by QEvent::LanguageChange. To be called when the plug-in has made its
/// frames. False when its texts are missing; then everything else has been set nevertheless, and
/// the texts are English. GUI thread.
bool apply(const Language &language);
/// The one applied last; null before.
const Language *current();

} // namespace Languages
