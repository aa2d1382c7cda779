// Cholesky factorisation and its substitution: the plain bodies, one object at a time.
//
// The factor is stored in the lower triangle with the reciprocal of L(i, i) on the diagonal, so
// neither the elimination nor the substitution divides. The upper triangle of the source is
// never read and that of the result never written. Sums are subtracted from the running value
// one product at a time, in ascending index order, on every path and in every order.
#pragma once

#include <cmath>
#include <cstdint>

#include "operand.hpp"
#include "simd.hpp"
#include "tarn.h"

namespace tarn::chol {

// 1/sqrt(d): in 32 bits the processor's rsqrtss estimate with one Newton step, each operation
// rounded to float; in 64 bits a correctly rounded root and one division.
inline float invSqrt(float d) {
  const float r = simd::rsqrtScalar(d);
  const float t = d * r * r - 3.0f;
  return r * -0.5f * t;
}
inline double invSqrt(double d) { return 1.0 / std::sqrt(d); }

inline constexpr bool expanded(int32_t n) { return n >= 3 && n <= 6; }

// ---- Factorisation -------------------------------------------------------------------------
// Row by row. A pivot that is not above zero (0 >= d, so a NaN passes) fails the object: its
// row then has its elements below the diagonal written and its diagonal not.

template <class T, class S, class D>
tarnStatus factorLoop(const S& src, const D& dst, int32_t n) {
  for (int32_t i = 0; i < n; ++i) {
    for (int32_t j = 0; j < i; ++j) {
      T s = loadElem(src.at(i, j));
      for (int32_t k = 0; k < j; ++k) s = s - loadElem(dst.at(i, k)) * loadElem(dst.at(j, k));
      storeElem(dst.at(i, j), s * loadElem(dst.at(j, j)));
    }
    T d = loadElem(src.at(i, i));
    for (int32_t k = 0; k < i; ++k) d = d - loadElem(dst.at(i, k)) * loadElem(dst.at(i, k));
    if (T(0) >= d) return tarnStatusNotPositiveDefinite;
    storeElem(dst.at(i, i), invSqrt(d));
  }
  return tarnStatusOk;
}

// Orders 3 to 6: the same operations with the finished elements kept in locals, each element
// stored as soon as it is computed.
template <class T, int N, class S, class D>
tarnStatus factorExpanded(const S& src, const D& dst) {
  T l[N][N];
  for (int i = 0; i < N; ++i) {
    for (int j = 0; j < i; ++j) {
      T s = loadElem(src.at(i, j));
      for (int k = 0; k < j; ++k) s = s - l[i][k] * l[j][k];
      storeElem(dst.at(i, j), l[i][j] = s * l[j][j]);
    }
    T d = loadElem(src.at(i, i));
    for (int k = 0; k < i; ++k) d = d - l[i][k] * l[i][k];
    if (T(0) >= d) return tarnStatusNotPositiveDefinite;
    storeElem(dst.at(i, i), l[i][i] = invSqrt(d));
  }
  return tarnStatusOk;
}

// ---- Substitution --------------------------------------------------------------------------
// Forward with L, then backward with L transposed (down column i of the factor); each x(i) is
// multiplied by the stored reciprocal, so the last element is (value * d) * d.

// Every order but 3 to 6: on x itself, no temporary.
template <class T, class F, class B, class X>
void solveLoop(const F& f, const B& b, const X& x, int32_t n) {
  for (int32_t i = 0; i < n; ++i) {
    T v = loadElem(b.at(0, i));
    for (int32_t j = 0; j < i; ++j) v = v - loadElem(f.at(i, j)) * loadElem(x.at(0, j));
    storeElem(x.at(0, i), v * loadElem(f.at(i, i)));
  }
  for (int32_t i = n - 1; i >= 0; --i) {
    T v = loadElem(x.at(0, i));
    for (int32_t j = i + 1; j < n; ++j) v = v - loadElem(f.at(j, i)) * loadElem(x.at(0, j));
    storeElem(x.at(0, i), v * loadElem(f.at(i, i)));
  }
}

// The lower triangle of one factor of order N in locals.
template <class T, int N>
struct Factor {
  T l[N][N];
  template <class F>
  void load(const F& f) {
    for (int i = 0; i < N; ++i)
      for (int j = 0; j <= i; ++j) l[i][j] = loadElem(f.at(i, j));
  }
};

// Orders 3 to 6: y and x in locals, x stored whole at the end.
template <class T, int N, class B, class X>
void solveExpanded(const Factor<T, N>& f, const B& b, const X& x) {
  T y[N];
  for (int i = 0; i < N; ++i) {
    T v = loadElem(b.at(0, i));
    for (int j = 0; j < i; ++j) v = v - f.l[i][j] * y[j];
    y[i] = v * f.l[i][i];
  }
  for (int i = N - 1; i >= 0; --i) {
    T v = y[i];
    for (int j = i + 1; j < N; ++j) v = v - f.l[j][i] * y[j];
    y[i] = v * f.l[i][i];
  }
  for (int i = 0; i < N; ++i) storeElem(x.at(0, i), y[i]);
}

}  // namespace tarn::chol
