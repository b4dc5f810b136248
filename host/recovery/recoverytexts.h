#pragma once

#include <QCoreApplication>

/// What users read about a recovery, in a context of its own for all files of the folder.
struct RecoveryTexts
{
    Q_DECLARE_TR_FUNCTIONS(Recovery)
};
