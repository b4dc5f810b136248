#pragma once

#include <QPair>
#include <QScopedPointer>
#include <QString>
#include <QVector>

/// What a user has set, made up by a test in the form that the system keeps it: for the processes
/// that the test starts with environment(). What was there before comes back in the end.
class UserSettings
{
public:
    UserSettings();
    ~UserSettings();

    /// The application's own settings, in place of those that are there.
    void store(const QVector<QPair<QString, QString>> &values);
    void setSystemDark(bool dark);
    /// For a process that is to find all this.
    QList<QPair<QString, QString>> environment() const;

private:
    class Private;
    QScopedPointer<Private> d;
};
