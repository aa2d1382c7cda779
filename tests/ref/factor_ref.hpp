// Plain models of LU and Cholesky factorisation and substitution, written from the mathematics
// and the stated order of operations, on dense row-major images of one object: element (r, c)
// of an order-n matrix at [r*n + c]. Each model writes the result image exactly where and when
// the member writes, so a failing object leaves the image the member must leave.
//
// Readings kept on every path: products within one row are subtracted (or, in the LU loop
// form, summed) in ascending column order; the LU loop form sums from its first product and
// subtracts the sum once; everything else subtracts one product at a time.
#pragma once

#include <pmmintrin.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

#include "tarn.h"

namespace tt::ref {

template <class T> constexpr T kLuExpanded = sizeof(T) == 4 ? T(0x1p-125) : T(0x1p-1021);  // |p| < this fails
template <class T> constexpr T kLuLoop = sizeof(T) == 4 ? T(0x1p-23) : T(0x1p-52);          // |p| <= this fails

inline bool dedicated(int n) { return n >= 3 && n <= 6; }

// src and dst may be the same image. The expanded orders work on a copy and store each row of the
// factor once it is final.
template <class T>
tarnStatus luDecomp(const T* src, T* dst, int32_t* p, int n) {
  const size_t N = size_t(n);
  const bool expanded = dedicated(n);
  std::vector<T> work(src, src + N * N);
  T* a = expanded ? work.data() : dst;
  if (!expanded) std::copy(work.begin(), work.end(), dst);
  auto at = [&](int r, int c) -> T& { return a[size_t(r) * N + size_t(c)]; };
  auto singular = [&](T mag) { return expanded ? mag < kLuExpanded<T> : mag <= kLuLoop<T>; };
  auto store = [&](int r) {
    for (int c = 0; c < n && expanded; ++c) dst[size_t(r) * N + size_t(c)] = at(r, c);
  };
  for (int i = 0; i < n; ++i) p[i] = i;
  for (int k = 0; k + 1 < n; ++k) {
    int best = k;
    T mag = std::fabs(at(p[k], k));
    for (int i = k + 1; i < n; ++i)
      if (std::fabs(at(p[i], k)) > mag) mag = std::fabs(at(p[best = i], k));
    if (expanded) std::swap(p[k], p[best]);  // the expanded orders exchange before the test,
    if (singular(mag)) return tarnStatusSingular;
    if (!expanded) std::swap(p[k], p[best]);  // the loop after it
    const T r = T(1) / at(p[k], k);
    for (int i = k + 1; i < n; ++i)  // the last expanded stage divides
      at(p[i], k) = expanded && k + 2 == n ? at(p[i], k) / at(p[k], k) : at(p[i], k) * r;
    for (int i = k + 1; i < n; ++i)
      for (int j = k + 1; j < n; ++j) at(p[i], j) = at(p[i], j) - at(p[i], k) * at(p[k], j);
    store(p[k]);
  }
  if (singular(std::fabs(at(p[n - 1], n - 1)))) return tarnStatusSingular;
  store(p[n - 1]);
  return tarnStatusOk;
}

// x from the packed factor f and pivots p; b and x may be the same image. `reciprocals`: the
// one-matrix form, which multiplies by 1/U(i,i) in the dedicated orders.
template <class T>
void luSolve(const T* f, const int32_t* p, const T* b, T* x, int n, bool reciprocals) {
  auto F = [&](int i, int j) { return f[size_t(p[i]) * size_t(n) + size_t(j)]; };
  if (dedicated(n)) {
    std::vector<T> y(size_t(n), T(0));
    for (int i = 0; i < n; ++i) {
      y[i] = b[p[i]];
      for (int j = 0; j < i; ++j) y[i] = y[i] - F(i, j) * y[j];
    }
    for (int i = n - 1; i >= 0; --i) {
      T v = y[i];
      for (int j = i + 1; j < n; ++j) v = v - F(i, j) * y[j];
      y[i] = reciprocals ? v * (T(1) / F(i, i)) : v / F(i, i);
    }
    for (int i = 0; i < n; ++i) x[i] = y[i];
    return;
  }
  x[0] = b[p[0]];
  for (int i = 1; i < n; ++i) {
    T s = F(i, 0) * x[0];
    for (int j = 1; j < i; ++j) s = s + F(i, j) * x[j];
    x[i] = b[p[i]] - s;
  }
  x[n - 1] = x[n - 1] / F(n - 1, n - 1);
  for (int i = n - 2; i >= 0; --i) {
    T s = F(i, i + 1) * x[i + 1];
    for (int j = i + 2; j < n; ++j) s = s + F(i, j) * x[j];
    x[i] = (x[i] - s) / F(i, i);
  }
}

// 1/sqrt(d) as the factor stores it: rsqrtss (taken from the processor running the test) and
// one Newton step in float; a correctly rounded root and a division in double.
inline float invSqrt(float d) {
  const float r = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(d)));
  const float dr = d * r;
  const float t = dr * r - 3.0f;
  const float h = r * -0.5f;
  return h * t;
}
inline double invSqrt(double d) { return 1.0 / std::sqrt(d); }

// Reads only the lower triangle of src and writes only that of dst; src and dst may be one image.
template <class T>
tarnStatus cholDecomp(const T* src, T* dst, int n) {
  auto at = [n](auto* m, int r, int c) -> auto& { return m[size_t(r) * size_t(n) + size_t(c)]; };
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < i; ++j) {
      T s = at(src, i, j);
      for (int k = 0; k < j; ++k) s = s - at(dst, i, k) * at(dst, j, k);
      at(dst, i, j) = s * at(dst, j, j);
    }
    T d = at(src, i, i);
    for (int k = 0; k < i; ++k) d = d - at(dst, i, k) * at(dst, i, k);
    if (!(d > T(0)) && !std::isnan(d)) return tarnStatusNotPositiveDefinite;
    at(dst, i, i) = invSqrt(d);
  }
  return tarnStatusOk;
}

// b and x may be the same image; the dedicated orders keep y in locals and store x at the end.
template <class T>
void cholSolve(const T* f, const T* b, T* x, int n) {
  auto F = [&](int i, int j) { return f[size_t(i) * size_t(n) + size_t(j)]; };
  std::vector<T> local(static_cast<size_t>(n));
  T* y = dedicated(n) ? local.data() : x;
  for (int i = 0; i < n; ++i) {
    T v = b[i];
    for (int j = 0; j < i; ++j) v = v - F(i, j) * y[j];
    y[i] = v * F(i, i);
  }
  for (int i = n - 1; i >= 0; --i) {
    T v = y[i];
    for (int j = i + 1; j < n; ++j) v = v - F(j, i) * y[j];
    y[i] = v * F(i, i);
  }
  if (y != x)
    for (int i = 0; i < n; ++i) x[i] = y[i];
}

}  // namespace tt::ref
