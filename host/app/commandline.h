#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

/// What the program was asked to do.
struct CommandLine
{
    QString source; ///< empty: the sample card
    int viewMode = 0;
    int theme = -1; ///< a THEMETYPE; below 0: that of the settings
    QString language;
    QString search;
    bool described = false; ///< the search is by description
    QStringList checkPatterns;
    QString recoverTo;
    QString screenshot;
    QString report;
    QSize size;
    QString plugin;
    bool quit = false;

    enum Answer { Run, Usage, Help, Version };

    /// Usage: \a message says what is wrong. Help and Version: \a message is what was asked for.
    Answer parse(const QStringList &arguments, QString *message);
};
