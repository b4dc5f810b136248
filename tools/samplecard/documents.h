#pragma once

#include "cardfile.h"

#include <QVector>

/// The papers on the card: PDF, text, tables and a page, with their contents.
QVector<CardFile> cardDocuments();
