#pragma once

#include <QString>

/// What the keys of a record's metadata and the ids of its scenes are called.
namespace MetadataTitles {

/// Translation key of a metadata key's title; empty for an unknown key.
QString titleKey(const QString &metadataKey);
/// Place of a metadata key in the pane; unknown keys come last.
int order(const QString &metadataKey);
/// True for keys that have a place of their own in the pane.
bool hasOwnRow(const QString &metadataKey);
/// Translation key of a scene's tag; empty for an unknown scene.
QString sceneTagKey(const QString &sceneId);

} // namespace MetadataTitles
