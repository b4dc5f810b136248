#include "thumbnails/hostfiles.h"

#include <algorithm>

namespace {

constexpr QChar IdMark(0x1);

/// The path with a mark in place of the id that its file name begins with.
QString patternOf(qint64 fileId, const QString &path)
{
    const QString id = QString::number(fileId);
    const int name = std::max(path.lastIndexOf(QLatin1Char('/')),
                              path.lastIndexOf(QLatin1Char('\\')))
        + 1;
    if (path.contains(IdMark) || path.midRef(name, id.size()) != id)
        return path;
    return path.leftRef(name) + IdMark + path.midRef(name + id.size());
}

} // namespace

void HostFiles::remember(qint64 fileId, const File &file)
{
    Known known = {patternOf(fileId, file.path), file.size, file.devicePixelRatio, false};
    known.shared = known.pattern != file.path;
    const std::lock_guard<std::mutex> lock(m_lock);
    if (known.shared)
        known.pattern = *m_patterns.insert(known.pattern);
    m_files.insert(fileId, known);
}

HostFiles::File HostFiles::file(qint64 fileId) const
{
    const std::lock_guard<std::mutex> lock(m_lock);
    Known known = m_files.value(fileId);
    if (known.shared)
        known.pattern.replace(IdMark, QString::number(fileId));
    return {known.pattern, known.size, known.devicePixelRatio};
}

void HostFiles::forget(qint64 fileId)
{
    const std::lock_guard<std::mutex> lock(m_lock);
    m_files.remove(fileId);
}

void HostFiles::clear()
{
    const std::lock_guard<std::mutex> lock(m_lock);
    m_files.clear();
    m_patterns.clear();
}
