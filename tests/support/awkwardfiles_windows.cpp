#include "support/awkwardfiles.h"

#include <QDir>

#include <qt_windows.h>

#include <cstdlib>

void AwkwardFiles::setTemporaryFolder(const QString &folder)
{
    const std::wstring native = QDir::toNativeSeparators(folder).toStdWString();
    for (const wchar_t *variable : {L"TMP", L"TEMP"})
        _wputenv_s(variable, native.c_str());
}

QString AwkwardFiles::nowhere()
{
    return QStringLiteral("Q:/nowhere");
}

class AwkwardFiles::Unreadable::Private
{
public:
    HANDLE file;
};

AwkwardFiles::Unreadable::Unreadable(const QString &path)
    : d(new Private{CreateFileW(QDir::toNativeSeparators(path).toStdWString().c_str(),
                                GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE,
                                nullptr)})
{
}

AwkwardFiles::Unreadable::~Unreadable()
{
    CloseHandle(d->file);
}
