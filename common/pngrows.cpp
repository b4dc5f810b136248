#include "common/pngrows.h"

#include <cstdlib>
#include <cstring>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define SCAN_HAS_SSE2
#endif

namespace {

enum Filter { None, Sub, Up, Average, Paeth };

void addLeft(uchar *row, int size, int pixelBytes)
{
    for (int i = pixelBytes; i < size; ++i)
        row[i] = uchar(row[i] + row[i - pixelBytes]);
}

void addAbove(uchar *row, const uchar *above, int size)
{
    for (int i = 0; i < size; ++i)
        row[i] = uchar(row[i] + above[i]);
}

void addAverage(uchar *row, const uchar *above, int size, int pixelBytes)
{
    for (int i = 0; i < pixelBytes && i < size; ++i)
        row[i] = uchar(row[i] + above[i] / 2);
    for (int i = pixelBytes; i < size; ++i)
        row[i] = uchar(row[i] + (row[i - pixelBytes] + above[i]) / 2);
}

#ifdef SCAN_HAS_SSE2

__m128i absolute(__m128i value)
{
    return _mm_max_epi16(value, _mm_sub_epi16(_mm_setzero_si128(), value));
}

__m128i chosen(__m128i mask, __m128i yes, __m128i no)
{
    return _mm_or_si128(_mm_and_si128(mask, yes), _mm_andnot_si128(mask, no));
}

__m128i pixelAt(const uchar *bytes)
{
    int pixel;
    std::memcpy(&pixel, bytes, sizeof pixel); // four bytes at once, even of a pixel of three
    return _mm_unpacklo_epi8(_mm_cvtsi32_si128(pixel), _mm_setzero_si128());
}

/// All channels of a pixel side by side.
template <int PixelBytes>
void addPaeth(uchar *row, const uchar *above, int size)
{
    const __m128i byte = _mm_set1_epi16(0xFF);
    __m128i left = _mm_setzero_si128();
    __m128i corner = left;
    for (int i = 0; i < size; i += PixelBytes) {
        const __m128i up = pixelAt(above + i);
        const __m128i toLeft = _mm_sub_epi16(up, corner);
        const __m128i toUp = _mm_sub_epi16(left, corner);
        const __m128i farCorner = absolute(_mm_add_epi16(toLeft, toUp));
        const __m128i farLeft = absolute(toLeft);
        const __m128i farUp = absolute(toUp);
        const __m128i least = _mm_min_epi16(farCorner, _mm_min_epi16(farLeft, farUp));
        const __m128i guess = chosen(_mm_cmpeq_epi16(least, farLeft), left,
                                     chosen(_mm_cmpeq_epi16(least, farUp), up, corner));
        corner = up;
        left = _mm_and_si128(_mm_add_epi16(pixelAt(row + i), guess), byte);
        const int pixel = _mm_cvtsi128_si32(_mm_packus_epi16(left, left));
        std::memcpy(row + i, &pixel, PixelBytes);
    }
}

#else

template <int PixelBytes>
void addPaeth(uchar *row, const uchar *above, int size)
{
    int left[PixelBytes] = {};
    int corner[PixelBytes] = {};
    for (int i = 0; i < size; i += PixelBytes) {
        for (int channel = 0; channel < PixelBytes; ++channel) {
            const int up = above[i + channel];
            const int toLeft = up - corner[channel];
            const int toUp = left[channel] - corner[channel];
            const int farLeft = std::abs(toLeft);
            const int farUp = std::abs(toUp);
            const int farCorner = std::abs(toLeft + toUp);
            const int guess = farLeft <= farUp && farLeft <= farCorner ? left[channel]
                : farUp <= farCorner                                   ? up
                                                                       : corner[channel];
            corner[channel] = up;
            left[channel] = (row[i + channel] + guess) & 0xFF;
            row[i + channel] = uchar(left[channel]);
        }
    }
}

#endif

void addPaeth(uchar *row, const uchar *above, int size, int pixelBytes)
{
    switch (pixelBytes) {
    case 1:
        return addPaeth<1>(row, above, size);
    case 2:
        return addPaeth<2>(row, above, size);
    case 3:
        return addPaeth<3>(row, above, size);
    default:
        return addPaeth<4>(row, above, size);
    }
}

} // namespace

namespace PngRows {

bool unfilter(int filter, uchar *row, const uchar *above, int size, int pixelBytes)
{
    switch (filter) {
    case None:
        return true;
    case Sub:
        addLeft(row, size, pixelBytes);
        return true;
    case Up:
        addAbove(row, above, size);
        return true;
    case Average:
        addAverage(row, above, size, pixelBytes);
        return true;
    case Paeth:
        addPaeth(row, above, size, pixelBytes);
        return true;
    default:
        return false;
    }
}

} // namespace PngRows
