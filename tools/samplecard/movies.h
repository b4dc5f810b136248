#pragma once

#include "cardfile.h"

#include <QVector>

/// Short clips: a camera's pan over drawn scenes. Throws std::runtime_error. \a shrink divides
/// both sides of the frame.
QVector<CardFile> cardMovies(int shrink);
