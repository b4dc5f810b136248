#pragma once

#include "cardfile.h"

#include <QVector>

/// Voice-memo like recordings: PCM in WAV, synthesised.
QVector<CardFile> cardSounds();
