#pragma once

#include <QHash>
#include <QPair>
#include <QString>

/// The folders of a card, rebuilt below a target folder. Nothing that is there already is changed
/// or followed out of the target: where a link or a file stands in a folder's place, the folder
/// gets another name. One thread.
class TargetTree
{
public:
    explicit TargetTree(const QString &target);

    /// Makes sure of the target itself. False with a sentence for the user in \a error.
    bool prepare(QString *error);

    /// The folder for what lies at \a cardPath ('/' between; empty: the target), created when
    /// needed. Empty with \a error when it cannot be made.
    QString folderFor(const QString &cardPath, QString *error);

    /// The same when folderFor() has made it already; empty otherwise.
    QString knownFolder(const QString &cardPath) const
    {
        return m_folders.value(QLatin1Char('/') + cardPath);
    }

    /// Moves \a temporary, a file in \a folder, to \a name there or, where that is taken, to the
    /// first "name (2)", "name (3)" … that is free. The full path; empty with \a error on failure.
    QString settle(const QString &temporary, const QString &folder, const QString &name,
                   QString *error);

    /// A small file can be written at the target: what failed was not the target's fault.
    bool isWritable(QString *error) const;

    QString root() const { return m_root; }

private:
    QString m_root;
    QHash<QString, QString> m_folders;             // card path to target folder
    QHash<QPair<QString, QString>, int> m_numbers; // folder and name to the last number given
};
