// LU of orders 3 to 6 with one object per lane: the expanded bodies of lu.hpp, each lane doing
// exactly what its object does alone. Rows are kept in pivot order in the registers (row k of
// the group is source row piv[k] of each lane), so an exchange swaps whole rows lane by lane;
// the rows go back to their source row numbers when they are stored.
#pragma once

#include "lu.hpp"
#include "solve.hpp"

namespace tarn::lu {

template <class T, int N>
struct FactorLanes {
  using V = simd::Vec<T>;
  V a[N][N];
  V piv[N];  // row numbers as values of T
  V fail;    // lanes that met a pivot below the threshold

  template <class View>
  TARN_INLINE void load(const View* v) {
    TARN_EXPAND
    for (int r = 0; r < N; ++r)
      TARN_EXPAND
      for (int c = 0; c < N; ++c) a[r][c] = solve::gather<T>(v, r, c);
  }

  TARN_INLINE void run() {
    const V thr = simd::broadcast(Limits<T>::kExpanded);
    fail = simd::lessThan(thr, thr);  // all clear
    TARN_EXPAND
    for (int i = 0; i < N; ++i) piv[i] = simd::broadcast(T(i));
    TARN_EXPAND
    for (int k = 0; k < N - 1; ++k) {
      V mag = simd::absOf(a[k][k]);
      V best = simd::broadcast(T(k));  // the position of the best candidate, k to N-1
      TARN_EXPAND
      for (int i = k + 1; i < N; ++i) {
        const V m = simd::absOf(a[i][k]);
        best = simd::select(simd::greaterThan(m, mag), simd::broadcast(T(i)), best);
        mag = simd::greaterOf(m, mag);
      }
      // The rows at positions k and best change places, and so do their row numbers.
      TARN_EXPAND
      for (int i = k + 1; i < N; ++i) {
        const V hit = simd::equalTo(best, simd::broadcast(T(i)));
        TARN_EXPAND
        for (int j = 0; j < N; ++j) simd::swapWhere(hit, a[k][j], a[i][j]);
        simd::swapWhere(hit, piv[k], piv[i]);
      }
      fail = simd::either(fail, simd::lessThan(mag, thr));
      if (k < N - 2) {
        const V r = simd::div(simd::broadcast(T(1)), a[k][k]);
        TARN_EXPAND
        for (int i = k + 1; i < N; ++i) a[i][k] = simd::mul(a[i][k], r);
      } else {
        a[N - 1][k] = simd::div(a[N - 1][k], a[k][k]);
      }
      TARN_EXPAND
      for (int i = k + 1; i < N; ++i)
        TARN_EXPAND
        for (int j = k + 1; j < N; ++j) a[i][j] = simd::sub(a[i][j], simd::mul(a[i][k], a[k][j]));
    }
    fail = simd::either(fail, simd::lessThan(simd::absOf(a[N - 1][N - 1]), thr));
  }
};

// The substitution of solveExpanded in lanes: y holds b read through the pivots on entry and x
// on return. u is each lane's factor in pivot order (or one factor in every lane), rc the
// reciprocals of its diagonal where Recip.
template <class T, int N, bool Recip>
TARN_INLINE void solveLanes(const simd::Vec<T> (&u)[N][N], const simd::Vec<T>* rc, simd::Vec<T> (&y)[N]) {
  TARN_EXPAND
  for (int i = 1; i < N; ++i) {
    simd::Vec<T> v = y[i];
    TARN_EXPAND
    for (int j = 0; j < i; ++j) v = simd::sub(v, simd::mul(u[i][j], y[j]));
    y[i] = v;
  }
  TARN_EXPAND
  for (int i = N - 1; i >= 0; --i) {
    simd::Vec<T> v = y[i];
    TARN_EXPAND
    for (int j = i + 1; j < N; ++j) v = simd::sub(v, simd::mul(u[i][j], y[j]));
    y[i] = Recip ? simd::mul(v, rc[i]) : simd::div(v, u[i][i]);
  }
}

}  // namespace tarn::lu
