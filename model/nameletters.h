#pragma once

#include <QString>
#include <QStringView>

/// What a million names are looked through for without reading them: a few bits for each of the
/// first letters, whatever their case. Names that begin alike have the same bits; a name with the
/// right bits is still to be read.
namespace NameLetters {

quint16 of(QStringView name);

/// The bits of all names that begin with \a text, however they are written.
class Pattern
{
public:
    explicit Pattern(const QString &text);
    bool fits(quint16 letters) const { return (letters & m_mask) == m_bits; }

private:
    quint16 m_mask;
    quint16 m_bits;
};

} // namespace NameLetters
