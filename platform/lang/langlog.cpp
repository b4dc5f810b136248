#include "langlog.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>

LangLog &LangLog::instance()
{
    static LangLog log;
    return log;
}

bool LangLog::open(const QString &path)
{
    QMutexLocker lock(&m_mutex);
    m_open = true;
    m_path = path;
    m_lastLine.clear();
    if (path.isEmpty())
        return true;
    if (QDir().mkpath(QFileInfo(path).absolutePath())
        && append(QStringLiteral("language service started")))
        return true;
    m_path.clear();
    return false;
}

void LangLog::close()
{
    QMutexLocker lock(&m_mutex);
    if (!m_path.isEmpty())
        append(QStringLiteral("language service stopped"));
    m_path.clear();
    m_open = false;
}

bool LangLog::isOpen() const
{
    QMutexLocker lock(&m_mutex);
    return m_open;
}

void LangLog::write(const QString &line)
{
    QMutexLocker lock(&m_mutex);
    if (m_path.isEmpty() || line == m_lastLine)
        return;
    m_lastLine = line;
    append(line);
}

bool LangLog::append(const QString &line)
{
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text))
        return false;
    const QString stamp = QDateTime::currentDateTime().toString(Qt::ISODateWithMs);
    const QByteArray text = (stamp + QLatin1Char(' ') + line + QLatin1Char('\n')).toUtf8();
    return file.write(text) == text.size() && file.flush();
}
