// Plain models of QR, its solver, the determinant and the inverse: one object at a time on a
// row-major array, each step written out in the order the library documents, every operation
// rounded in the element type. The approximate reciprocal is taken from the processor at run time.
#pragma once

#include <pmmintrin.h>

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

inline float approxRecip(float d) {
  const float r0 = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(d)));
  return (r0 + r0) - d * (r0 * r0);
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

// ---- Inverse ---------------------------------------------------------------------------------

template <class T>
Mat<T> without(const Mat<T>& a, int i, int j) {
  Mat<T> m(a.rows - 1, a.cols - 1);
  for (int r = 0, mr = 0; r < a.rows; ++r)
    if (r != i) {
      for (int c = 0, mc = 0; c < a.cols; ++c)
        if (c != j) m(mr, mc++) = a(r, c);
      ++mr;
    }
  return m;
}

// Cofactor C(i, j) with its sign folded into its operations: the last subtraction or addition
// of the expansion taken the other way round, or 0 - minor at orders 5 and 6.
// Order 3: p - q, or q - p, over the 2 by 2 minor left by row i and column j.
// Order 4: rows 2 and 3 use the 2 by 2 minors of rows 0, 1 and expand on the other of rows 2, 3;
// rows 0 and 1 use those of rows 2, 3 and expand on the other of rows 0, 1:
// (e(j0) m(j1 j2) - e(j1) m(j0 j2)) + e(j2) m(j0 j1), or (e(j1) m(j0 j2) - e(j0) m(j1 j2)) - e(j2) m(j0 j1).
template <class T>
T cofactor(const Mat<T>& a, int i, int j) {
  const bool odd = (i + j) % 2;
  if (a.rows == 3) {
    const Mat<T> m = without(a, i, j);
    const T p = m(0, 0) * m(1, 1), q = m(0, 1) * m(1, 0);
    return odd ? q - p : p - q;
  }
  if (a.rows == 4) {
    const int p = i >= 2 ? 0 : 2, q = p + 1, e = i >= 2 ? 5 - i : 1 - i;
    int c[3], n = 0;
    for (int k = 0; k < 4; ++k)
      if (k != j) c[n++] = k;
    auto m2 = [&](int x, int y) { return a(p, x) * a(q, y) - a(p, y) * a(q, x); };
    const T t0 = a(e, c[0]) * m2(c[1], c[2]), t1 = a(e, c[1]) * m2(c[0], c[2]), t2 = a(e, c[2]) * m2(c[0], c[1]);
    return odd ? (t1 - t0) - t2 : (t0 - t1) + t2;
  }
  const T m = closedDet(without(a, i, j));
  return odd ? T(0) - m : m;
}

// Orders 3 to 6: out(i, j) = C(j, i) * q, d the sum of the last row times its cofactors (order 3
// from the last column down), Det's closed form at orders 5 and 6. False (out untouched) when
// tol > |d|.
template <class T>
bool adjugateInverse(const Mat<T>& a, T tol, bool approx, Mat<T>& out) {
  const int n = a.rows;
  T d;
  if (n == 3) d = (a(2, 2) * cofactor(a, 2, 2) + a(2, 1) * cofactor(a, 2, 1)) + a(2, 0) * cofactor(a, 2, 0);
  else if (n == 4)
    d = ((a(3, 0) * cofactor(a, 3, 0) + a(3, 1) * cofactor(a, 3, 1)) + a(3, 2) * cofactor(a, 3, 2)) +
        a(3, 3) * cofactor(a, 3, 3);
  else d = closedDet(a);
  if (tol > std::fabs(d)) return false;
  T q;
  if constexpr (sizeof(T) == 4) q = approx ? approxRecip(d) : T(1) / d;
  else q = T(1) / d;
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) out(i, j) = cofactor(a, j, i) * q;
  return true;
}

// Block form, float, orders 5 and 6, following its stages; false when singular by tol.
inline bool blockInverse(Mat<float> a, float tol, Mat<float>& out) {
  const int n = a.rows;
  auto pivotOf = [](const std::vector<float>& row, bool lastStrict) {
    int j = 0;
    for (int c = 1; c < int(row.size()); ++c) {
      const bool strict = lastStrict && c == int(row.size()) - 1;
      if (strict ? std::fabs(row[size_t(c)]) > std::fabs(row[size_t(j)])
                 : std::fabs(row[size_t(c)]) >= std::fabs(row[size_t(j)]))
        j = c;
    }
    return j;
  };
  // One stage on the trailing block starting at (s, s) of a: returns the pivot column or -1.
  std::vector<int> piv;
  std::vector<float> rs;
  for (int s = 0; s < n - 4; ++s) {
    std::vector<float> row(a.e.begin() + s * n + s, a.e.begin() + s * n + n);
    const int j = s + pivotOf(row, n == 5);
    if (tol > std::fabs(a(s, j))) return false;
    for (int i = 0; i < n; ++i) std::swap(a(i, s), a(i, j));  // a column of the whole matrix
    const float r = approxRecip(a(s, s));
    for (int i = s + 1; i < n; ++i) {
      const float l = a(i, s) * r;
      for (int k = s + 1; k < n; ++k) a(i, k) = a(i, k) - l * a(s, k);
      a(i, s) = l;  // keep l where the column was
    }
    piv.push_back(j);
    rs.push_back(r);
  }
  const int s0 = n - 4;
  Mat<float> core(4, 4), inv(4, 4);
  for (int i = 0; i < 4; ++i)
    for (int k = 0; k < 4; ++k) core(i, k) = a(s0 + i, s0 + k);
  if (!adjugateInverse(core, tol, true, inv)) return false;
  // Assemble outward: at stage s the trailing inverse `inv` of size m = n-s-1.
  for (int s = s0 - 1; s >= 0; --s) {
    const int m = n - s - 1;
    const float r = rs[size_t(s)];
    Mat<float> big(m + 1, m + 1);
    std::vector<float> x(static_cast<size_t>(m));
    for (int i = 0; i < m; ++i) {
      float t = inv(i, 0) * a(s + 1, s);
      for (int k = 1; k < m; ++k) t = t + inv(i, k) * a(s + 1 + k, s);
      x[size_t(i)] = -t;
    }
    for (int k = 0; k < m; ++k) {
      float t = a(s, s + 1) * inv(0, k);
      for (int i = 1; i < m; ++i) t = t + a(s, s + 1 + i) * inv(i, k);
      big(0, k + 1) = -(r * t);
    }
    float t = a(s, s + 1) * x[0];
    for (int i = 1; i < m; ++i) t = t + a(s, s + 1 + i) * x[size_t(i)];
    big(0, 0) = r - r * t;
    for (int i = 0; i < m; ++i) {
      big(i + 1, 0) = x[size_t(i)];
      for (int k = 0; k < m; ++k) big(i + 1, k + 1) = inv(i, k);
    }
    inv = big;
  }
  for (int s = s0 - 1; s >= 0; --s)
    for (int c = 0; c < n; ++c) std::swap(inv(s, c), inv(piv[size_t(s)], c));
  out = inv;
  return true;
}

// Order 2 and from 7: each element a cofactor by elimination over the determinant. A minor whose
// elimination stops at a pivot below tol takes prod = tol and still reads its last element.
template <class T>
bool cofactorInverse(const Mat<T>& a, Mat<T>& out) {
  const int n = a.rows;
  const T tol = cubeTol<T>(n);
  auto run = [&](Mat<T> w, T& sign, T& prod, bool& stopped) {
    const int m = w.rows;
    std::vector<int> r(static_cast<size_t>(m));
    for (int i = 0; i < m; ++i) r[size_t(i)] = i;
    sign = 1;
    prod = 1;
    stopped = false;
    for (int k = 0; k < m - 1; ++k) {
      int best = k;
      for (int i = k + 1; i < m; ++i)
        if (std::fabs(w(r[size_t(i)], k)) > std::fabs(w(r[size_t(best)], k))) best = i;
      if (best != k) {
        std::swap(r[size_t(k)], r[size_t(best)]);
        sign = -sign;
      }
      const T p = w(r[size_t(k)], k);
      if (tol > std::fabs(p)) {
        prod = tol;
        stopped = true;
        break;
      }
      const T inv = T(1) / p;
      for (int i = k + 1; i < m; ++i) {
        const T f = w(r[size_t(i)], k) * inv;
        for (int j = k + 1; j < m; ++j) w(r[size_t(i)], j) = w(r[size_t(i)], j) - f * w(r[size_t(k)], j);
      }
      prod = prod * p;
    }
    return w(r[size_t(m - 1)], m - 1);
  };
  T sign, prod;
  bool stopped;
  const T last = run(a, sign, prod, stopped);
  if (stopped) return false;
  const T d = (sign * last) * prod;
  if (!(tol < std::fabs(d))) return false;
  const T qd = T(1) / d;
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) {
      const T x = run(without(a, i, j), sign, prod, stopped);
      const T v = std::fabs(x) > tol ? (x * sign) * prod : tol;
      out(j, i) = (v * qd) * T((i + j) % 2 ? -1 : 1);
    }
  return true;
}

}  // namespace tt::ref
