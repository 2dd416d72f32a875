// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT

// Compiled for SSSE3, so nothing but intrinsics is included here: an inline function of a common
// header, compiled for SSSE3 as well, could be the copy that the linker keeps for every caller.
#include "base/PixelRows.h"

#include <tmmintrin.h>

namespace {

__m128i load(const std::uint32_t* pixels)
{
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(pixels));
}

void store(std::uint8_t* out, __m128i bytes)
{
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out), bytes);
}

struct Plain {
    __m128i operator()(int x) const { return load(row + x); }
    const std::uint32_t* row;
};

// The difference of two pixels has the same bytes as the difference of their reordered bytes.
struct Difference {
    __m128i operator()(int x) const { return _mm_sub_epi8(load(row + x), load(above + x)); }
    const std::uint32_t* row;
    const std::uint32_t* above;
};

/// How many pixels it did; it leaves what is no multiple of its stride.
template <typename Value>
int writeRgb(Value value, std::uint8_t* out, int width)
{
    const __m128i order = _mm_setr_epi8(2, 1, 0, 6, 5, 4, 10, 9, 8, 14, 13, 12, -1, -1, -1, -1);
    int x = 0;
    for (; x + 16 <= width; x += 16, out += 48) { // Four times 12 bytes make three times 16.
        _mm_prefetch(value.row + x + pixelsAhead, _MM_HINT_T0);
        const __m128i a = _mm_shuffle_epi8(value(x), order);
        const __m128i b = _mm_shuffle_epi8(value(x + 4), order);
        const __m128i c = _mm_shuffle_epi8(value(x + 8), order);
        const __m128i d = _mm_shuffle_epi8(value(x + 12), order);
        store(out, _mm_or_si128(a, _mm_slli_si128(b, 12)));
        store(out + 16, _mm_or_si128(_mm_srli_si128(b, 4), _mm_slli_si128(c, 8)));
        store(out + 32, _mm_or_si128(_mm_srli_si128(c, 8), _mm_slli_si128(d, 4)));
    }
    return x;
}

template <typename Value>
int writeRgba(Value value, std::uint8_t* out, int width)
{
    const __m128i order = _mm_setr_epi8(2, 1, 0, 3, 6, 5, 4, 7, 10, 9, 8, 11, 14, 13, 12, 15);
    int x = 0;
    for (; x + 4 <= width; x += 4, out += 16)
        store(out, _mm_shuffle_epi8(value(x), order));
    return x;
}

void rgb(const std::uint32_t* row, const std::uint32_t* above, std::uint8_t* out, int width)
{
    const int done
        = above ? writeRgb(Difference {row, above}, out, width) : writeRgb(Plain {row}, out, width);
    portablePixelRows().rgb(
        row + done, above ? above + done : nullptr, out + 3 * done, width - done);
}

void rgba(const std::uint32_t* row, const std::uint32_t* above, std::uint8_t* out, int width)
{
    const int done = above ? writeRgba(Difference {row, above}, out, width)
                           : writeRgba(Plain {row}, out, width);
    portablePixelRows().rgba(
        row + done, above ? above + done : nullptr, out + 4 * done, width - done);
}

bool opaque(const std::uint32_t* row, int width)
{
    __m128i common = _mm_set1_epi32(-1);
    int x = 0;
    for (; x + 4 <= width; x += 4)
        common = _mm_and_si128(common, load(row + x));
    const __m128i full = _mm_cmpeq_epi8(common, _mm_set1_epi32(-1));
    return (_mm_movemask_epi8(full) & 0x8888) == 0x8888
        && portablePixelRows().opaque(row + x, width - x);
}

constexpr PixelRows table {rgb, rgba, opaque};

} // namespace

const PixelRows* vectorPixelRows()
{
    return __builtin_cpu_supports("ssse3") ? &table : nullptr;
}
