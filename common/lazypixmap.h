#pragma once

#include <QPixmap>
#include <QString>

/// A picture that is read when it is first asked for: most pages show few of those that they may
/// come to need. GUI thread.
class LazyPixmap
{
public:
    using Reader = QPixmap (*)(const QString &name);

    LazyPixmap() = default;
    LazyPixmap(Reader reader, const QString &name)
        : m_reader(reader)
        , m_name(name)
    {
    }

    const QPixmap &pixmap() const
    {
        if (m_reader)
            m_pixmap = m_reader(m_name);
        m_reader = nullptr;
        return m_pixmap;
    }
    operator const QPixmap &() const { return pixmap(); }

private:
    mutable Reader m_reader = nullptr;
    QString m_name;
    mutable QPixmap m_pixmap;
};
