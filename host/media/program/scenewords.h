#pragma once

#include <QStringList>

/// The scenes that people's keywords mean.
namespace SceneWords {

/// Scene ids of \a keywords, in their order, each once. Knows the ids themselves and common English
/// words; of a path of keywords ("Nature|Mountains") every step counts.
QStringList scenesOf(const QStringList &keywords);

} // namespace SceneWords
