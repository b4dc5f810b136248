#include "model/nameletters.h"

namespace {

// The first letter settles most, and digits must be told apart in names that only count up.
constexpr int FirstBits = 8;
constexpr int OtherBits = 3;
constexpr int Others = 8;
static_assert(FirstBits + Others * OtherBits == 32, "one number for each name");

constexpr quint32 FirstMask = (1u << FirstBits) - 1;
constexpr quint32 OtherMask = (1u << OtherBits) - 1;

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

quint32 NameLetters::of(QStringView name)
{
    const int size = int(name.size());
    if (size == 0)
        return 0;
    quint32 letters = folded(name.at(0)) & FirstMask;
    int shift = FirstBits;
    for (int i = 1; i < size && i <= Others; ++i, shift += OtherBits)
        letters |= (folded(name.at(i)) & OtherMask) << shift;
    return letters;
}

NameLetters::Pattern::Pattern(const QString &text)
    : m_mask(0)
    , m_bits(of(text))
{
    const int known = qMin(text.size(), 1 + Others);
    const int bits = known == 0 ? 0 : FirstBits + (known - 1) * OtherBits;
    m_mask = bits == 32 ? ~0u : (1u << bits) - 1;
}
