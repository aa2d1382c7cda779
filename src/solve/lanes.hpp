// Numbers for the solving kernels, written once over a number type V: the element type itself
// (one object) or Lanes<T>, one element of several objects side by side in one register. Every
// operation of Lanes<T> is the element type's operation lane by lane, each rounded in the element
// type, so a kernel gives every object the bits the scalar instantiation gives it; what differs
// between the two is only how many objects one pass carries.
//
// Groups: the objects of a call are taken kLanes at a time. A group loads element (r, c) of each
// of its objects into one Lanes value and stores results back object by object; a short last
// group repeats its last object in the spare lanes, which are computed and never stored.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <type_traits>

#include "operand.hpp"
#include "simd.hpp"

namespace tarn::solve {

template <class T>
struct Lanes {
  simd::Vec<T> v;
};

template <class T> inline Lanes<T> operator+(Lanes<T> a, Lanes<T> b) { return {simd::add(a.v, b.v)}; }
template <class T> inline Lanes<T> operator-(Lanes<T> a, Lanes<T> b) { return {simd::sub(a.v, b.v)}; }
template <class T> inline Lanes<T> operator*(Lanes<T> a, Lanes<T> b) { return {simd::mul(a.v, b.v)}; }
template <class T> inline Lanes<T> operator/(Lanes<T> a, Lanes<T> b) { return {simd::div(a.v, b.v)}; }
template <class T> inline Lanes<T> operator-(Lanes<T> a) { return {simd::neg(a.v)}; }

template <class V> struct NumberOf {
  using Elem = V;
  static constexpr int kLanes = 1;
};
template <class T> struct NumberOf<Lanes<T>> {
  using Elem = T;
  static constexpr int kLanes = simd::kLanes<T>;
};
template <class V> using ElemOf = typename NumberOf<V>::Elem;

template <class T> inline constexpr int kLanes = simd::kLanes<T>;

template <class V>
inline V constant(ElemOf<V> x) {
  if constexpr (std::is_same_v<V, ElemOf<V>>) return x;
  else return {simd::broadcast(x)};
}

template <class V>
inline V sqrtOf(V x) {
  if constexpr (std::is_same_v<V, ElemOf<V>>) return std::sqrt(x);
  else return {simd::sqrt(x.v)};
}

// n where alpha > 0, else 0 - n (alpha 0 and NaN included).
template <class V>
inline V negUnlessPositive(V alpha, V n) {
  using T = ElemOf<V>;
  if constexpr (std::is_same_v<V, T>) return alpha > T(0) ? n : T(0) - n;
  else return {simd::selectPositive(alpha.v, n.v, simd::sub(simd::broadcast(T(0)), n.v))};
}

// The lanes (bit l for lane l; 1 for a scalar) where |x| < tol, and where not |x| > tol.
template <class V>
inline int belowMask(V x, ElemOf<V> tol) {
  if constexpr (std::is_same_v<V, ElemOf<V>>) return std::fabs(x) < tol;
  else return simd::lessMask(simd::abs(x.v), simd::broadcast(tol));
}
template <class V>
inline int notAboveMask(V x, ElemOf<V> tol) {
  if constexpr (std::is_same_v<V, ElemOf<V>>) return !(std::fabs(x) > tol);
  else return simd::notGreaterMask(simd::abs(x.v), simd::broadcast(tol));
}

// The processor's approximate reciprocal r0 of d with one Newton step: (r0 + r0) - d*(r0*r0).
inline float approxRecip(float d) {
  const float r0 = simd::rcp(d);
  return (r0 + r0) - d * (r0 * r0);
}
inline Lanes<float> approxRecip(Lanes<float> d) {
  const Lanes<float> r0{simd::rcp(d.v)};
  return (r0 + r0) - d * (r0 * r0);
}

// Lane k of a Lanes value as a scalar.
template <class T>
inline T laneOf(Lanes<T> x, int k) {
  alignas(16) T t[kLanes<T>];
  simd::store<kLanes<T>, true>(t, x.v);
  return t[k];
}

// ---- Groups --------------------------------------------------------------------------------

// Views whose rows are runs of elements in memory: loaded a chunk at a time and transposed.
template <class View> struct RowsInMemory : std::false_type {};
template <class E> struct RowsInMemory<StridedObj<E, true>> : std::true_type {};

// The views of objects [first, first + n) of an accessor, the last repeated in spare lanes.
template <int N, class A>
inline auto groupOf(const A& a, int32_t first, int32_t n) {
  using View = decltype(a.obj(0));
  struct Group {
    View v[N];
  } g;
  for (int l = 0; l < N; ++l) g.v[l] = a.obj(first + std::min<int32_t>(l, n - 1));
  return g;
}

// x[r][c] = element (r, c) of each object of the group.
template <int H, int W, class T, class View>
inline void gather(const View (&v)[kLanes<T>], Lanes<T> (&x)[H][W]) {
  if constexpr (RowsInMemory<View>::value) {
    for (int r = 0; r < H; ++r)
      simd::unroll<simd::chunks<T, W>()>([&]<int K>() {
        constexpr int off = simd::chunkOff<T, W>(K), len = simd::chunkLen<T, W>(K);
        if constexpr (std::is_same_v<T, float>) {
          __m128 y[4];
          for (int l = 0; l < 4; ++l) y[l] = simd::load<len, false>(v[l].rowPtr(r) + off);
          simd::transpose4(y[0], y[1], y[2], y[3]);
          for (int k = 0; k < len; ++k) x[r][off + k].v = y[k];
        } else if constexpr (len == 2) {
          __m128d y0 = simd::load<2, false>(v[0].rowPtr(r) + off), y1 = simd::load<2, false>(v[1].rowPtr(r) + off);
          simd::transpose2(y0, y1);
          x[r][off].v = y0;
          x[r][off + 1].v = y1;
        } else {
          x[r][off].v = simd::gather2(v[0].rowPtr(r) + off, v[1].rowPtr(r) + off);
        }
      });
  } else {
    for (int r = 0; r < H; ++r)
      for (int c = 0; c < W; ++c) {
        if constexpr (std::is_same_v<T, float>) x[r][c].v = simd::gather4(v[0].at(r, c), v[1].at(r, c), v[2].at(r, c), v[3].at(r, c));
        else x[r][c].v = simd::gather2(v[0].at(r, c), v[1].at(r, c));
      }
  }
}

// Element (r, c) of x to the first n objects of the group.
template <int H, int W, class T, class View>
inline void scatter(const View (&v)[kLanes<T>], const Lanes<T> (&x)[H][W], int n) {
  if constexpr (RowsInMemory<View>::value) {
    for (int r = 0; r < H; ++r)
      simd::unroll<simd::chunks<T, W>()>([&]<int K>() {
        constexpr int off = simd::chunkOff<T, W>(K), len = simd::chunkLen<T, W>(K);
        if constexpr (std::is_same_v<T, float>) {
          __m128 y[4];
          for (int k = 0; k < 4; ++k) y[k] = k < len ? x[r][off + k].v : _mm_setzero_ps();
          simd::transpose4(y[0], y[1], y[2], y[3]);
          for (int l = 0; l < n; ++l) simd::store<len, false>(v[l].rowPtr(r) + off, y[l]);
        } else if constexpr (len == 2) {
          __m128d y0 = x[r][off].v, y1 = x[r][off + 1].v;
          simd::transpose2(y0, y1);
          if (n > 0) simd::store<2, false>(v[0].rowPtr(r) + off, y0);
          if (n > 1) simd::store<2, false>(v[1].rowPtr(r) + off, y1);
        } else {
          if (n > 0) _mm_store_sd(v[0].rowPtr(r) + off, x[r][off].v);
          if (n > 1) _mm_storeh_pd(v[1].rowPtr(r) + off, x[r][off].v);
        }
      });
  } else {
    for (int r = 0; r < H; ++r)
      for (int c = 0; c < W; ++c) {
        alignas(16) T t[kLanes<T>];
        simd::store<kLanes<T>, true>(t, x[r][c].v);
        for (int l = 0; l < n; ++l) *v[l].at(r, c) = t[l];
      }
  }
}

// One object's elements as scalars, and back.
template <int H, int W, class T, class View>
inline void load1(const View& v, T (&x)[H][W]) {
  for (int r = 0; r < H; ++r)
    for (int c = 0; c < W; ++c) x[r][c] = *v.at(r, c);
}
template <int H, int W, class T, class View>
inline void store1(const View& v, const T (&x)[H][W]) {
  for (int r = 0; r < H; ++r)
    for (int c = 0; c < W; ++c) *v.at(r, c) = x[r][c];
}

// The element type's smallest normal number times 2*n*n*n, the product formed in 32-bit
// integers (wrapping) and converted to the element type.
template <class T>
inline T cubeTolerance(int32_t n) {
  const int32_t k = int32_t(2u * uint32_t(n) * uint32_t(n) * uint32_t(n));
  return T(k) * (std::is_same_v<T, float> ? T(0x1p-126f) : T(0x1p-1022));
}

}  // namespace tarn::solve
