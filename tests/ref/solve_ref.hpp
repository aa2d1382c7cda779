// Plain models of QR, its solver and the determinant: one object at a time on a row-major array,
// each step written out in the order the library documents, every operation rounded in the
// element type.
#pragma once

#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

namespace tt::ref {

template <class T>
struct Mat {
  int rows, cols;
  std::vector<T> e;
  Mat(int r, int c) : rows(r), cols(c), e(size_t(r) * size_t(c)) {}
  T& operator()(int r, int c) { return e[size_t(r) * size_t(cols) + size_t(c)]; }
  T operator()(int r, int c) const { return e[size_t(r) * size_t(cols) + size_t(c)]; }
};

template <class T> T smallestNormal() { return sizeof(T) == 4 ? T(0x1p-126f) : T(0x1p-1022); }

// 2*n^3 in wrapping 32-bit integers, converted, times the smallest normal number.
template <class T> T cubeTol(int n) {
  return T(int32_t(uint32_t(2) * uint32_t(n) * uint32_t(n) * uint32_t(n))) * smallestNormal<T>();
}

// ---- QR ------------------------------------------------------------------------------------

inline int reflectorsOf(int h, int w) { return w == h ? w - 1 : w; }

// Sum over i = k..h-1 of x(i)*y(i): position i-k even into one accumulator, odd into the other,
// both from 0, added at the end.
template <class T, class F>
T evenOddSum(int k, int h, F term) {
  T even = 0, odd = 0;
  for (int i = k; i < h; ++i) {
    if ((i - k) % 2 == 0) even = even + term(i);
    else odd = odd + term(i);
  }
  return even + odd;
}

// a: the source on entry, dst on return (also after a failure); v: the work vector.
template <class T>
int qrDecomp(Mat<T>& a, std::vector<T>& v) {
  const int h = a.rows, w = a.cols;
  const T tol = sizeof(T) == 4 ? T(0x1p-23f) : T(0x1p-52);
  for (int k = 0; k < reflectorsOf(h, w); ++k) {
    const T n2 = evenOddSum<T>(k, h, [&](int i) { return a(i, k) * a(i, k); });
    if (std::fabs(n2) < tol) return -10;
    T n = std::sqrt(n2);
    const T alpha = a(k, k);
    if (!(alpha > 0)) n = T(0) - n;
    const T r = T(1) / (alpha + n);
    v[size_t(k)] = 1;
    for (int i = k + 1; i < h; ++i) v[size_t(i)] = a(i, k) * r;
    const T q = evenOddSum<T>(k, h, [&](int i) { return v[size_t(i)] * v[size_t(i)]; });
    const T beta = T(-2) / q;
    for (int j = k; j < w; ++j) {
      T s = evenOddSum<T>(k, h, [&](int i) { return a(i, j) * v[size_t(i)]; });
      s = s * beta;
      for (int i = k; i < h; ++i) a(i, j) = a(i, j) + v[size_t(i)] * s;
    }
    for (int i = k + 1; i < h; ++i) a(i, k) = v[size_t(i)];
  }
  return 0;
}

// x from the stored factor a and b; c receives the transformed b.
template <class T>
void qrSolve(const Mat<T>& a, const std::vector<T>& b, std::vector<T>& x, std::vector<T>& c) {
  const int h = a.rows, w = a.cols;
  c = b;
  for (int k = 0; k < reflectorsOf(h, w); ++k) {
    const T t = c[size_t(k)];
    T s = t, q = 1;
    for (int i = k + 1; i < h; ++i) {
      s = s + c[size_t(i)] * a(i, k);
      q = q + a(i, k) * a(i, k);
    }
    const T g = (T(-2) / q) * s;
    c[size_t(k)] = t + g;
    for (int i = k + 1; i < h; ++i) c[size_t(i)] = c[size_t(i)] + a(i, k) * g;
  }
  x.assign(size_t(w), 0);
  x[size_t(w - 1)] = c[size_t(w - 1)] / a(w - 1, w - 1);
  for (int i = w - 2; i >= 0; --i) {
    T s = 0;
    for (int j = i + 1; j < w; ++j) s = s + a(i, j) * x[size_t(j)];
    x[size_t(i)] = (c[size_t(i)] - s) / a(i, i);
  }
}

// ---- Determinant -----------------------------------------------------------------------------

// The minor of the top rows 0..L-1 over the columns `cols` (L of them), expanded on row L-1:
// terms e(cols[t]) * minor without cols[t], with sign (-1)^(L-1+t), added in ascending t.
template <class T>
T topMinor(const Mat<T>& a, const std::vector<int>& cols) {
  const int L = int(cols.size());
  if (L == 2) return a(0, cols[0]) * a(1, cols[1]) - a(0, cols[1]) * a(1, cols[0]);
  std::vector<T> term;
  for (int t = 0; t < L; ++t) {
    std::vector<int> rest;
    for (int u = 0; u < L; ++u)
      if (u != t) rest.push_back(cols[size_t(u)]);
    term.push_back(a(L - 1, cols[size_t(t)]) * topMinor(a, rest));
  }
  // The first term is negative on even levels: the pair is taken as term 1 minus term 0.
  const bool neg = (L - 1) % 2;
  T s = neg ? term[1] - term[0] : term[0];
  for (int t = neg ? 2 : 1; t < L; ++t) s = (L - 1 + t) % 2 ? s - term[size_t(t)] : s + term[size_t(t)];
  return s;
}

template <class T>
T closedDet(const Mat<T>& a) {
  const int n = a.rows;
  if (n == 3)
    return (a(0, 0) * a(1, 1) - a(0, 1) * a(1, 0)) * a(2, 2) - (a(0, 0) * a(1, 2) - a(0, 2) * a(1, 0)) * a(2, 1) +
           (a(0, 1) * a(1, 2) - a(0, 2) * a(1, 1)) * a(2, 0);
  std::vector<int> all;
  for (int j = 0; j < n; ++j) all.push_back(j);
  return topMinor(a, all);
}

// Elimination with a row order; w and r are left as the working copy and row numbers.
template <class T>
T eliminationDet(const Mat<T>& a) {
  const int n = a.rows;
  const T tol = cubeTol<T>(n);
  Mat<T> w = a;
  std::vector<int> r(static_cast<size_t>(n));
  for (int i = 0; i < n; ++i) r[size_t(i)] = i;
  T result = 1, sign = 1;
  for (int k = 0; k < n - 1; ++k) {
    int best = k;
    for (int i = k + 1; i < n; ++i)
      if (std::fabs(w(r[size_t(i)], k)) > std::fabs(w(r[size_t(best)], k))) best = i;
    if (best != k) {
      std::swap(r[size_t(k)], r[size_t(best)]);
      sign = -sign;
    }
    const T p = w(r[size_t(k)], k);
    if (std::fabs(p) < tol) return 0;
    for (int i = k + 1; i < n; ++i) {
      const T f = w(r[size_t(i)], k) / p;
      for (int j = k + 1; j < n; ++j) w(r[size_t(i)], j) = w(r[size_t(i)], j) - f * w(r[size_t(k)], j);
    }
    result = p * result;
  }
  const T x = w(r[size_t(n - 1)], n - 1);
  if (!(std::fabs(x) > tol)) return 0;
  return result * (x * sign);
}

template <class T>
T det(const Mat<T>& a) {
  return a.rows >= 3 && a.rows <= 6 ? closedDet(a) : eliminationDet(a);
}

}  // namespace tt::ref
