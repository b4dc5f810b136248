#pragma once

#include <QCoreApplication>

/// What users read about sources, in a context of its own for all files of the folder.
struct ScanTexts
{
    Q_DECLARE_TR_FUNCTIONS(ScanSource)
};
