#pragma once

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTextStream>

/// What is made once in a process, or depends on the screen it starts with, is tested in a second
/// process: the test program starts itself with other settings and reads what it prints.
namespace Probe {

using Environment = QList<QPair<QString, QString>>;

inline bool isChild()
{
    return qEnvironmentVariableIsSet("TEST_PROBE");
}

inline QString task()
{
    return qEnvironmentVariable("TEST_PROBE");
}

/// Empty when the child failed.
inline QJsonObject run(const QString &task, const Environment &environment)
{
    QProcess child;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert(QStringLiteral("TEST_PROBE"), task);
    for (const auto &variable : environment)
        variables.insert(variable.first, variable.second);
    child.setProcessEnvironment(variables);
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), QStringList());
    if (!child.waitForFinished() || child.exitStatus() != QProcess::NormalExit
        || child.exitCode() != 0)
        return {};
    return QJsonDocument::fromJson(child.readAllStandardOutput()).object();
}

inline int answer(const QJsonObject &result)
{
    QTextStream(stdout) << QString::fromUtf8(QJsonDocument(result).toJson());
    return 0;
}

} // namespace Probe
