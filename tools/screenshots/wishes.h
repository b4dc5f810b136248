#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

/// What is to be rendered: the product of all lists.
struct Wishes
{
    QString folder;
    QStringList pages;
    QStringList languages; ///< as the host names them
    QStringList themes;
    QStringList scales;
    QSize size{1100, 720}; ///< of the window, before scaling
    QString onlyScale;     ///< in a process that renders one scale: which

    /// Reads \a arguments, the program's name first. False: the program ends with \a exitCode.
    bool read(const QStringList &arguments, int *exitCode);
    /// The same for a process that renders \a scale.
    QStringList argumentsFor(const QString &scale) const;
    QString fileName(const QString &page, const QString &language, const QString &theme,
                     const QString &scale) const;
};
