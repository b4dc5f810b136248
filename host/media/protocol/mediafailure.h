#pragma once

#include <QStringList>

/// Why the helper program could not do what it was asked for. The helper speaks no language: it
/// sends the English words and what belongs into them, and the host puts them into the user's.
namespace MediaFailure {

/// \a words, marked for translation in the context "Media", with \a values for %1, %2 …, as a text
/// that goes through the pipe.
QString pack(const char *words, const QStringList &values = {});

/// What pack() made, or any other text, as a sentence in the language of the program.
QString sentence(const QString &packed);

} // namespace MediaFailure
