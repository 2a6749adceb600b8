/**
 * @file
 * Lanes: several doubles computed side by side in one register, from one source for every processor.
 *
 * Each lane gets the same bits as a single double would, so lanes serve results that do not depend on each
 * other. The usual operators work lane by lane, also with a plain double on one side. A comparison gives a
 * mask, `&` and `|` combine masks, and `v[k]` is lane k.
 *
 * @code
 * constexpr int width = korvel::lanes::registerWidth;
 * for (; j + width <= columns; j += width) {
 *     const auto x = lanes::load<width>(row + j);
 *     const auto sum = lanes::load<width>(sums + j) + lanes::only(x != MISSING_DBL, w * x);
 *     lanes::store(sums + j, sum);
 * }
 * @endcode
 *
 * The width is a template argument: 2, 4 or 8 doubles, at most `registerWidth`. A loop that needs more at
 * once holds several registers in an array. On a 64-bit Arm processor, as on x86 without AVX, a register has
 * two doubles.
 *
 * All functions are always inlined, even without optimisation, and leave no copy that the linker could share.
 * So the sources in `kernels/`, each compiled for one instruction set, may use them. `registerWidth` there is
 * that set's width; it must not be passed in from another source.
 */
#ifndef KORVEL_PLATFORM_LANES_H
#define KORVEL_PLATFORM_LANES_H

#include <cstddef>
#include <cstdint>
#include <utility>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#define KORVEL_IN_LANES inline __attribute__((always_inline))

namespace korvel::lanes
{

/** Doubles in a register of the instruction set that the source is compiled for; its own in each source. */
#if defined(__AVX512F__)
constexpr int registerWidth = 8;
#elif defined(__AVX__)
constexpr int registerWidth = 4;
#else
constexpr int registerWidth = 2;
#endif

namespace detail
{

/** `Width` elements of type `T` in a register, and the same at any address. */
template <class T, int Width>
struct register_of {
    static_assert(Width * sizeof(T) <= registerWidth * sizeof(double), "no register is so wide: use several");

    typedef T type __attribute__((vector_size(Width * sizeof(T))));
    typedef T loose __attribute__((vector_size(Width * sizeof(T)), aligned(alignof(T)), may_alias));
};

template <class T, int Width>
KORVEL_IN_LANES typename register_of<T, Width>::type loadAny(const T* from)
{
    return *reinterpret_cast<const typename register_of<T, Width>::loose*>(from);
}

/** Number of lanes in a type. */
template <class Lanes>
constexpr int widthOf = static_cast<int>(sizeof(Lanes) / sizeof(double));

} // namespace detail

/** `Width` doubles. */
template <int Width>
using doubles = typename detail::register_of<double, Width>::type;

/** For each of `Width` lanes all bits set or none: what comparing `doubles` gives. */
template <int Width>
using mask = decltype(doubles<Width>{} < doubles<Width>{});

/** The `Width` doubles from `from` on, at any address. */
template <int Width>
KORVEL_IN_LANES doubles<Width> load(const double* from)
{
    return detail::loadAny<double, Width>(from);
}

/** The `Width` integers from `from` on, as doubles. */
template <int Width>
KORVEL_IN_LANES doubles<Width> load(const int* from)
{
#if defined(__SSE2__)
    if constexpr (Width == 2) {
        return _mm_cvtepi32_pd(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(from)));
    } else
#endif
    {
        return __builtin_convertvector(detail::loadAny<int, Width>(from), doubles<Width>);
    }
}

/** Which of the `Width` flags from `from` on are 0. */
template <int Width>
KORVEL_IN_LANES mask<Width> areClear(const short int* from)
{
#if defined(__SSE2__)
    if constexpr (Width == 2) {
        int both = 0;
        __builtin_memcpy(&both, from, sizeof both);
        const __m128i clear = _mm_cmpeq_epi16(_mm_cvtsi32_si128(both), _mm_setzero_si128());
        const __m128i doubled = _mm_unpacklo_epi16(clear, clear);
        return reinterpret_cast<mask<2>>(_mm_unpacklo_epi32(doubled, doubled));
    } else
#endif
    {
        return __builtin_convertvector(detail::loadAny<short int, Width>(from) == 0, mask<Width>);
    }
}

/** Stores the lanes as doubles from `to` on, at any address. */
template <class Doubles>
KORVEL_IN_LANES void store(double* to, Doubles values)
{
    *reinterpret_cast<typename detail::register_of<double, detail::widthOf<Doubles>>::loose*>(to) = values;
}

namespace detail
{

template <int Width, std::size_t... Lane>
KORVEL_IN_LANES doubles<Width> repeat(double x, std::index_sequence<Lane...>)
{
    return doubles<Width>{(static_cast<void>(Lane), x)...};
}

} // namespace detail

/** `x` in every lane, bit for bit. */
template <int Width>
KORVEL_IN_LANES doubles<Width> everywhere(double x)
{
    return detail::repeat<Width>(x, std::make_index_sequence<Width>());
}

/** Every lane chosen, or none. */
template <int Width>
KORVEL_IN_LANES mask<Width> everyLane(bool chosen)
{
    return mask<Width>{} - (chosen ? 1 : 0);
}

/** `a` in the lanes that are chosen, `b` in the others. `chosen` is a comparison, or several combined. */
template <class Mask, class Doubles>
KORVEL_IN_LANES Doubles select(Mask chosen, Doubles a, Doubles b)
{
    return chosen ? a : b;
}

/** `x` in the lanes that are kept, +0.0 in the others. */
template <class Mask, class Doubles>
KORVEL_IN_LANES Doubles only(Mask kept, Doubles x)
{
#if defined(__SSE2__)
    // With integer operands the compiler would choose an integer instruction, which costs a cycle more.
    if constexpr (detail::widthOf<Doubles> == 2) {
        return _mm_and_pd(reinterpret_cast<__m128d>(kept), x);
    } else
#endif
    {
        return reinterpret_cast<Doubles>(kept & reinterpret_cast<Mask>(x));
    }
}

/** The lanes that are chosen in one of the two: `a | b`, by the same way as `only`. */
template <class Mask>
KORVEL_IN_LANES Mask either(Mask a, Mask b)
{
#if defined(__SSE2__)
    if constexpr (detail::widthOf<Mask> == 2) {
        return reinterpret_cast<Mask>(_mm_or_pd(reinterpret_cast<__m128d>(a), reinterpret_cast<__m128d>(b)));
    } else
#endif
    {
        return a | b;
    }
}

/** The lanes that are chosen in both: `a & b`, by the same way as `only`. */
template <class Mask>
KORVEL_IN_LANES Mask both(Mask a, Mask b)
{
#if defined(__SSE2__)
    if constexpr (detail::widthOf<Mask> == 2) {
        return reinterpret_cast<Mask>(_mm_and_pd(reinterpret_cast<__m128d>(a), reinterpret_cast<__m128d>(b)));
    } else
#endif
    {
        return a & b;
    }
}

/** `x` in the lanes that are kept, and in the others a NaN, which fails every comparison. */
template <class Mask, class Doubles>
KORVEL_IN_LANES Doubles onlyOrNaN(Mask kept, Doubles x)
{
    return reinterpret_cast<Doubles>(~kept | reinterpret_cast<Mask>(x));
}

/** Whether a lane is chosen. */
template <class Mask>
KORVEL_IN_LANES bool any(Mask chosen)
{
#if defined(__SSE2__)
    if constexpr (detail::widthOf<Mask> == 2) {
        return _mm_movemask_pd(reinterpret_cast<__m128d>(chosen)) != 0;
    } else
#endif
    {
        auto together = chosen[0];
        for (int k = 1; k < detail::widthOf<Mask>; ++k) {
            together |= chosen[k];
        }
        return together != 0;
    }
}

/** Four integers, and for each of four all bits set or none. */
using integers4 = detail::register_of<int, 4>::type;

/** The four integers from `from` on, at any address. */
KORVEL_IN_LANES integers4 loadIntegers(const int* from)
{
    return detail::loadAny<int, 4>(from);
}

/** `x` four times. */
KORVEL_IN_LANES integers4 fourTimes(int x)
{
    return integers4{x, x, x, x};
}

/** Whether one of four is chosen. */
KORVEL_IN_LANES bool anyOfFour(integers4 chosen)
{
#if defined(__SSE2__)
    return _mm_movemask_epi8(reinterpret_cast<__m128i>(chosen)) != 0;
#else
    return (chosen[0] | chosen[1] | chosen[2] | chosen[3]) != 0;
#endif
}

/** Which of two lanes are chosen: bit k for lane k. */
KORVEL_IN_LANES unsigned chosenBits(mask<2> chosen)
{
#if defined(__SSE2__)
    return static_cast<unsigned>(_mm_movemask_pd(reinterpret_cast<__m128d>(chosen)));
#else
    return static_cast<unsigned>((chosen[0] & 1) | (chosen[1] & 2));
#endif
}

/** `a < b ? a : b`. So the result is `b` where one of the two is a NaN, and for two zeros. */
template <class Doubles>
KORVEL_IN_LANES Doubles smaller(Doubles a, Doubles b)
{
    return a < b ? a : b;
}

/** `a > b ? a : b`. */
template <class Doubles>
KORVEL_IN_LANES Doubles larger(Doubles a, Doubles b)
{
    return a > b ? a : b;
}

/** The absolute values. The sign of a NaN is cleared too. */
template <class Doubles>
KORVEL_IN_LANES Doubles absolute(Doubles x)
{
    using bits = mask<detail::widthOf<Doubles>>;
    return reinterpret_cast<Doubles>(reinterpret_cast<bits>(x) & INT64_MAX);
}

/** The first lanes of `a` and `b`, and their second lanes. */
KORVEL_IN_LANES doubles<2> firstOf(doubles<2> a, doubles<2> b)
{
    return __builtin_shufflevector(a, b, 0, 2);
}
KORVEL_IN_LANES doubles<2> secondOf(doubles<2> a, doubles<2> b)
{
    return __builtin_shufflevector(a, b, 1, 3);
}

namespace detail
{

#if defined(__AVX512F__)
/** Pairs of lanes of two registers: the first and third of each four, and the others. */
template <class Doubles>
KORVEL_IN_LANES Doubles evenPairs(Doubles a, Doubles b)
{
    return __builtin_shufflevector(a, b, 0, 1, 4, 5, 8, 9, 12, 13);
}
template <class Doubles>
KORVEL_IN_LANES Doubles oddPairs(Doubles a, Doubles b)
{
    return __builtin_shufflevector(a, b, 2, 3, 6, 7, 10, 11, 14, 15);
}
#endif

} // namespace detail

/** Transposes a square of as many registers as each has lanes: lane k of register i becomes lane i of
 * register k.
 */
KORVEL_IN_LANES void transpose(doubles<registerWidth>* square)
{
#if defined(__AVX512F__)
    doubles<8> single[8];
    doubles<8> pairs[8];
#pragma GCC unroll 4
    for (int i = 0; i < 8; i += 2) {
        const doubles<8> a = square[i];
        const doubles<8> b = square[i + 1];
        single[i] = __builtin_shufflevector(a, b, 0, 8, 2, 10, 4, 12, 6, 14);
        single[i + 1] = __builtin_shufflevector(a, b, 1, 9, 3, 11, 5, 13, 7, 15);
    }
#pragma GCC unroll 2
    for (int half = 0; half < 8; half += 4) {
        pairs[half] = detail::evenPairs(single[half], single[half + 2]);
        pairs[half + 1] = detail::evenPairs(single[half + 1], single[half + 3]);
        pairs[half + 2] = detail::oddPairs(single[half], single[half + 2]);
        pairs[half + 3] = detail::oddPairs(single[half + 1], single[half + 3]);
    }
#pragma GCC unroll 4
    for (int i = 0; i < 4; ++i) {
        square[i] = detail::evenPairs(pairs[i], pairs[i + 4]);
        square[i + 4] = detail::oddPairs(pairs[i], pairs[i + 4]);
    }
#elif defined(__AVX__)
    const doubles<4> a = __builtin_shufflevector(square[0], square[1], 0, 4, 2, 6);
    const doubles<4> b = __builtin_shufflevector(square[0], square[1], 1, 5, 3, 7);
    const doubles<4> c = __builtin_shufflevector(square[2], square[3], 0, 4, 2, 6);
    const doubles<4> d = __builtin_shufflevector(square[2], square[3], 1, 5, 3, 7);
    square[0] = __builtin_shufflevector(a, c, 0, 1, 4, 5);
    square[1] = __builtin_shufflevector(b, d, 0, 1, 4, 5);
    square[2] = __builtin_shufflevector(a, c, 2, 3, 6, 7);
    square[3] = __builtin_shufflevector(b, d, 2, 3, 6, 7);
#else
    const doubles<2> first = firstOf(square[0], square[1]);
    square[1] = secondOf(square[0], square[1]);
    square[0] = first;
#endif
}

/** Prefetches the cache line of an address, which may be any address. */
KORVEL_IN_LANES void prefetch(const void* address)
{
    __builtin_prefetch(address);
}

/**
 * Stores past the caches where the processor can do so, for data that is not read again soon. `to` is a
 * multiple of 16. `finishStreaming` must follow the last such store.
 */
KORVEL_IN_LANES void stream(double* to, doubles<2> values)
{
#if defined(__SSE2__)
    _mm_stream_pd(to, values);
#else
    store(to, values);
#endif
}
KORVEL_IN_LANES void stream(int* to, integers4 values)
{
#if defined(__SSE2__)
    _mm_stream_si128(reinterpret_cast<__m128i*>(to), reinterpret_cast<__m128i>(values));
#else
    *reinterpret_cast<detail::register_of<int, 4>::loose*>(to) = values;
#endif
}

/** Makes streamed stores visible to other threads in the order of the program. */
KORVEL_IN_LANES void finishStreaming()
{
#if defined(__SSE2__)
    _mm_sfence();
#endif
}

} // namespace korvel::lanes

#undef KORVEL_IN_LANES

#endif
