// Cholesky of orders 3 to 6 with one object per lane: the expanded bodies of cholesky.hpp, each
// lane doing exactly what its object does alone. In 32 bits the estimate of each lane comes from
// rsqrtss itself, lane by lane, as the object alone gets it.
#pragma once

#include "cholesky.hpp"
#include "solve.hpp"

namespace tarn::chol {

inline __m128 invSqrtLanes(__m128 d) {
  const __m128 r = simd::rsqrtEachLane(d);
  const __m128 t = simd::sub(simd::mul(simd::mul(d, r), r), simd::broadcast(3.0f));
  return simd::mul(simd::mul(r, simd::broadcast(-0.5f)), t);
}
inline __m128d invSqrtLanes(__m128d d) { return simd::div(simd::broadcast(1.0), simd::sqrt(d)); }

// Lower triangles of a group, row-major: element (i, j), j <= i, at tri(i, j).
constexpr int tri(int i, int j) { return i * (i + 1) / 2 + j; }

template <class T, int N>
struct FactorLanes {
  using V = simd::Vec<T>;
  static constexpr int kElems = N * (N + 1) / 2;
  V a[kElems];  // the source's lower triangle on entry, the factor on return
  V fail;       // lanes with a pivot not above zero

  template <class View>
  TARN_INLINE void load(const View* v) {
    TARN_EXPAND
    for (int i = 0; i < N; ++i)
      TARN_EXPAND
      for (int j = 0; j <= i; ++j) a[tri(i, j)] = solve::gather<T>(v, i, j);
  }

  TARN_INLINE void run() {
    const V zero = simd::broadcast(T(0));
    fail = simd::lessThan(zero, zero);
    TARN_EXPAND
    for (int i = 0; i < N; ++i) {
      TARN_EXPAND
      for (int j = 0; j < i; ++j) {
        V s = a[tri(i, j)];
        TARN_EXPAND
        for (int k = 0; k < j; ++k) s = simd::sub(s, simd::mul(a[tri(i, k)], a[tri(j, k)]));
        a[tri(i, j)] = simd::mul(s, a[tri(j, j)]);
      }
      V d = a[tri(i, i)];
      TARN_EXPAND
      for (int k = 0; k < i; ++k) d = simd::sub(d, simd::mul(a[tri(i, k)], a[tri(i, k)]));
      fail = simd::either(fail, simd::lessEqual(d, zero));
      a[tri(i, i)] = invSqrtLanes(d);
    }
  }
};

// The substitution of solveExpanded in lanes: y holds b on entry and x on return; l is each
// lane's factor (or one factor in every lane), lower triangle row-major.
template <class T, int N>
TARN_INLINE void solveLanes(const simd::Vec<T>* l, simd::Vec<T> (&y)[N]) {
  TARN_EXPAND
  for (int i = 0; i < N; ++i) {
    simd::Vec<T> v = y[i];
    TARN_EXPAND
    for (int j = 0; j < i; ++j) v = simd::sub(v, simd::mul(l[tri(i, j)], y[j]));
    y[i] = simd::mul(v, l[tri(i, i)]);
  }
  TARN_EXPAND
  for (int i = N - 1; i >= 0; --i) {
    simd::Vec<T> v = y[i];
    TARN_EXPAND
    for (int j = i + 1; j < N; ++j) v = simd::sub(v, simd::mul(l[tri(j, i)], y[j]));
    y[i] = simd::mul(v, l[tri(i, i)]);
  }
}

}  // namespace tarn::chol
