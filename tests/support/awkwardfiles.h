#pragma once

#include <QScopedPointer>
#include <QString>

/// Files as they should not be, made in the way of the system that the test runs on.
namespace AwkwardFiles {

/// What QDir::tempPath() says from now on, whatever letters are in it.
void setTemporaryFolder(const QString &folder);
/// A place where no folder can be made.
QString nowhere();

/// A file that is there and gives nothing away as long as the object lives: another program has
/// locked it, or it is a pipe to which nobody writes.
class Unreadable
{
public:
    explicit Unreadable(const QString &path);
    ~Unreadable();

private:
    class Private;
    QScopedPointer<Private> d;
};

} // namespace AwkwardFiles
