// What the reductions share: sums of N terms in the orders they keep, the dot rule of long
// contiguous runs, the single operand of an array call read once, and the loads that put four
// objects of 3 or 4 floats into vector lanes, one object per lane.
//
// A term p(k) is a product already rounded in the element type (x[k]*y[k], or x[k]*x[k] for a
// norm); every addition below is one rounded addition in the element type. Running sums of
// loops start from zero; the unrolled forms start from their first term.
#pragma once

#include <cstdint>
#include <type_traits>

#include "call.hpp"
#include "dispatch.hpp"
#include "operand.hpp"
#include "simd.hpp"

namespace tarn::reduce {

// ---- Sums of terms ------------------------------------------------------------------------

// p0 + p1 + ... + p(N-1), left to right.
template <int N, class T, class P>
inline T leftToRight(const P& p) {
  T s = p(0);
  for (int k = 1; k < N; ++k) s = s + p(k);
  return s;
}

// (p0 + p1) + (p2 + p3), then ((..) + p4) for five terms, ((..) + (p4 + p5)) for six.
template <int N, class T, class P>
inline T halves(const P& p) {
  const T q = (p(0) + p(1)) + (p(2) + p(3));
  if constexpr (N == 4) return q;
  else if constexpr (N == 5) return q + p(4);
  else return q + (p(4) + p(5));
}

// A running sum from zero, k ascending.
template <class T, class P>
inline T running(int32_t n, const P& p) {
  T s = T(0);
  for (int32_t k = 0; k < n; ++k) s = s + p(k);
  return s;
}

// Strided vectors of other lengths: one sum of the even terms and one of the odd terms, added
// at the end, and for an odd length the last term added behind them.
template <class T, class P>
inline T evenOdd(int32_t n, const P& p) {
  T e = T(0), o = T(0);
  int32_t k = 0;
  for (; k + 1 < n; k += 2) {
    e = e + p(k);
    o = o + p(k + 1);
  }
  T s = e + o;
  if (k < n) s = s + p(k);
  return s;
}

// ---- The dot rule -----------------------------------------------------------------------------

// sum x[k]*y[k] over two contiguous runs of n elements. Below 8 elements, or when y is not
// even aligned to its element size, or when the elements up to y's next 16-byte boundary leave
// fewer than 8 behind them: one running sum. Otherwise those leading elements go into a scalar
// sum, which starts lane 0 of the first vector accumulator; whole steps of 8 elements follow
// (y read aligned), the accumulators are added and then their lanes, and the elements after the
// last whole step are added one by one. The result thus depends on where y lies.
template <class T>
T dotRule(const T* x, const T* y, int32_t n) {
  constexpr int32_t kE = int32_t(sizeof(T));
  const int32_t mis = int32_t(reinterpret_cast<uintptr_t>(y) & 15);
  const int32_t peel = mis ? (16 - mis) / kE : 0;
  auto prod = [&](int32_t k) { return T(loadElem(x + k) * loadElem(y + k)); };
  if (n < 8 || mis % kE != 0 || n < peel + 8) return running<T>(n, prod);
  T s = T(0);
  int32_t k = 0;
  for (; k < peel; ++k) s = s + prod(k);
  T r;
  if constexpr (std::is_same_v<T, float>) {
    __m128 a0 = simd::lane0(s), a1 = simd::zeroFloats();
    for (; k + 8 <= n; k += 8) {
      a0 = simd::add(a0, simd::mul(simd::load<4, false>(x + k), simd::load<4, true>(y + k)));
      a1 = simd::add(a1, simd::mul(simd::load<4, false>(x + k + 4), simd::load<4, true>(y + k + 4)));
    }
    r = simd::sumLanes(simd::add(a0, a1));
  } else {
    __m128d a0 = simd::lane0(s), a1 = simd::zeroDoubles(), a2 = a1, a3 = a1;
    for (; k + 8 <= n; k += 8) {
      a0 = simd::add(a0, simd::mul(simd::load<2, false>(x + k), simd::load<2, true>(y + k)));
      a1 = simd::add(a1, simd::mul(simd::load<2, false>(x + k + 2), simd::load<2, true>(y + k + 2)));
      a2 = simd::add(a2, simd::mul(simd::load<2, false>(x + k + 4), simd::load<2, true>(y + k + 4)));
      a3 = simd::add(a3, simd::mul(simd::load<2, false>(x + k + 6), simd::load<2, true>(y + k + 6)));
    }
    r = simd::sumLanes(simd::add(simd::add(a0, a1), simd::add(a2, a3)));
  }
  for (; k < n; ++k) r = r + prod(k);
  return r;
}

// ---- Operands ---------------------------------------------------------------------------------

// The N elements of the single operand of an array call, read once before the object loop, so
// that every object sees the same values; an array operand passes with its LayoutP table read
// once.
template <int N, class T, class A>
auto readOnce(const A& a) {
  if constexpr (IsOne<A>::value) {
    OneValues<T, N> o;
    const auto v = a.obj(0);
    for (int k = 0; k < N; ++k) o.v[k] = loadElem(v.at(0, k));
    o.sw = N;
    return o;
  } else {
    return cached<N>(a);
  }
}

// Element k of a vector view.
template <class V>
inline auto elem(const V& v, int32_t k) {
  return loadElem(v.at(0, k));
}

// ---- Four objects in lanes --------------------------------------------------------------------

// Rows (or vectors) of N = 3 or 4 floats of objects n..n+3, transposed so that register k holds
// element k of the four objects, object j in lane j. A 16-byte load of a row of 3 reads one
// float behind it; that float belongs to the array (a later element or object) except behind
// the last object of the call, where `last` asks for a 12-byte load instead. Objects of a
// pointer table lie anywhere, so their rows of 3 are always read with 12-byte loads.
template <int N>
struct Quad {
  __m128 v[4];
};

template <int N>
inline Quad<N> transposed(__m128 r0, __m128 r1, __m128 r2, __m128 r3) {
  simd::transpose4(r0, r1, r2, r3);
  return {{r0, r1, r2, r3}};
}

template <int N>
inline __m128 rowLoad(const float* p, bool safe) {
  if constexpr (N == 4) return simd::load<4, false>(p);
  else return safe ? simd::load3(p) : simd::load<4, false>(p);
}

// Row r of objects n..n+3 of a LayoutS array.
template <int N>
inline Quad<N> quadRow(const ArrS<const float, true>& a, int32_t n, int32_t r, bool last) {
  const auto o = a.obj(n);
  const float* p0 = o.rowPtr(r);
  const float* p1 = byteAdd(p0, a.objStride);
  const float* p2 = byteAdd(p1, a.objStride);
  const float* p3 = byteAdd(p2, a.objStride);
  return transposed<N>(simd::load<4, false>(p0), simd::load<4, false>(p1), simd::load<4, false>(p2),
                       rowLoad<N>(p3, last));
}
// Row r of objects n..n+3 of a LayoutL array.
template <int N>
inline Quad<N> quadRow(const ArrL<const float, true>& a, int32_t n, int32_t r, bool) {
  return transposed<N>(rowLoad<N>(a.obj(n).rowPtr(r), true), rowLoad<N>(a.obj(n + 1).rowPtr(r), true),
                       rowLoad<N>(a.obj(n + 2).rowPtr(r), true), rowLoad<N>(a.obj(n + 3).rowPtr(r), true));
}
// Objects n..n+3 of a LayoutS array of packed 3-vectors (object stride 12): three loads cover
// exactly their 48 bytes.
inline Quad<3> quadPacked3(const ArrS<const float, true>& a, int32_t n) {
  const float* p = a.obj(n).p;
  Quad<3> q;
  simd::deinterleave3(simd::load<4, false>(p), simd::load<4, false>(p + 4), simd::load<4, false>(p + 8), q.v[0], q.v[1],
                      q.v[2]);
  return q;
}

template <class A>
inline bool packed3(const A&) {
  return false;
}
inline bool packed3(const ArrS<const float, true>& a) { return a.objStride == 12; }

// A LayoutS stream is asked for a few kilobytes ahead of the block being read, so that the
// memory system keeps up with the lane kernels on large arrays; the objects of a pointer table
// lie anywhere and are left to the hardware.
template <class A>
inline void readAhead(const A&, int32_t) {}
inline void readAhead(const ArrS<const float, true>& a, int32_t n) { simd::prefetch(byteAdd(a.obj(n).p, 4608)); }

// Runs `block(n, last)` over objects in blocks of 4 while whole blocks remain (`last`: the block
// ends the call's objects) and returns the number of objects it covered.
template <class Block>
inline int32_t inBlocks(int32_t count, const Block& block) {
  const int32_t end = count - count % 4;
  for (int32_t n = 0; n < end; n += 4) block(n, n + 4 == count);
  return end;
}

}  // namespace tarn::reduce
