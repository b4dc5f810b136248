#include "model/nameletters.h"

namespace {

// The first letter settles most, the next few are often the same in thousands of names, and then
// come digits that must be told apart in names that only count up.
constexpr int Known = 8;
constexpr int Shifts[Known + 1] = {0, 5, 6, 7, 8, 10, 12, 14, 16};

constexpr uint maskOf(int letter)
{
    return (1u << (Shifts[letter + 1] - Shifts[letter])) - 1;
}

/// Five bits: a number for each of A to Z, and the others for digits.
uint firstBits(ushort folded)
{
    constexpr uint BehindZ = 27;
    constexpr uint Left = 32 - BehindZ;
    return folded < '@' ? BehindZ + folded % Left : folded & maskOf(0);
}

/// A letter beyond the basic plane only says that there is one.
ushort foldedBeyondAscii(QChar letter)
{
    return letter.isSurrogate() ? ushort(0) : letter.toCaseFolded().unicode();
}

// No branch that depends on the case: a wrong guess stops the processor, which reads ahead.
ushort folded(QChar letter)
{
    const ushort unit = letter.unicode();
    constexpr uint Letters = 'Z' - 'A' + 1;
    const uint isCapital = uint(unit - 'A') < Letters;
    return unit < 0x80 ? ushort(unit + isCapital * ('a' - 'A')) : foldedBeyondAscii(letter);
}

} // namespace

quint16 NameLetters::of(QStringView name)
{
    const int size = qMin(int(name.size()), Known);
    if (size == 0)
        return 0;
    uint letters = firstBits(folded(name.at(0)));
    for (int i = 1; i < size; ++i)
        letters |= (folded(name.at(i)) & maskOf(i)) << Shifts[i];
    return quint16(letters);
}

NameLetters::Pattern::Pattern(const QString &text)
    : m_mask(quint16((1u << Shifts[qMin(text.size(), Known)]) - 1))
    , m_bits(of(text))
{
}
