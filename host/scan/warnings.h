#pragma once

#include <QStringList>

/// Collects what a scan had to skip. A ruined medium has thousands of faults: the lines are
/// limited, the count is not.
class Warnings
{
public:
    void add(const QString &line)
    {
        ++m_count;
        if (m_lines.size() < MaxLines)
            m_lines.append(line);
    }
    QStringList lines() const { return m_lines; }
    int count() const { return m_count; }

private:
    static constexpr int MaxLines = 50;
    QStringList m_lines;
    int m_count = 0;
};
