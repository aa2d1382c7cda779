// Symmetric eigenproblems, one matrix at a time: the plain path both families share.
//
// From order 3 the matrix is copied row after row into the caller's scratch (the working matrix
// W), reduced to tridiagonal form by n - 2 Householder reflections applied as a plain two-sided
// product, and the tridiagonal matrix (d[i] = W(i,i), e[i] = W(i+1,i)) is diagonalised by
// implicit QL (upward) or QR (downward) sweeps with a shift. Every smallness test is absolute
// (against eps = 2^-23 or 2^-52), the direction is chosen once per matrix from the two ends of
// the diagonal, at most 30 sweeps are spent on one eigenvalue, and a product of eigenvalues not
// above eps refuses the matrix as singular. Values alone keep the Householder vector in dst;
// with vectors the reflections and rotations are accumulated into Z, the caller's dstVectors.
//
// Everything here is written for one matrix with sizes known only at run time, element by
// element through the operand accessors, in the order the comments state: it is the path of
// single matrices, of orders outside the tuned ones and of every object the tuned paths hand
// back, and the model they are tested against.
#pragma once

#include <cmath>
#include <cstdint>
#include <type_traits>

#include "call.hpp"
#include "operand.hpp"
#include "tarn.h"

namespace tarn::eigsym {

template <class T> inline constexpr T kEps = std::is_same_v<T, float> ? T(0x1p-23) : T(0x1p-52);
inline constexpr int kMaxSweeps = 30;

// The arithmetic of a member. T is the element type in memory; S is the type of the scalars of
// the reduction and of the sweep (norm, h, beta, w, g, r, s, c, p, f, b), Tt that of t, Pr that of
// the product of the eigenvalues. Every store into the working matrix, dst or Z rounds to T.
//   kVectors   accumulate Z (the vectors family)
//   kDivRot    rotate Z as g*(z/r) -/+ f*(z'/r), with 1/r taken into each element first,
//              instead of c*z -/+ s*z'
//   kShiftAtZero  the shift of the upward sweep takes g + r for g > 0 instead of g > eps
template <class T_, class S_, class Tt_, class Pr_, bool Vectors, bool DivRot = false, bool ShiftAtZero = false>
struct Prec {
  using T = T_;
  using S = S_;
  using Tt = Tt_;
  using Pr = Pr_;
  static constexpr bool kVectors = Vectors, kDivRot = DivRot, kShiftAtZero = ShiftAtZero;
};

// Values alone: every operation in the element type.
template <class T> using ValuesPrec = Prec<T, T, T, T, false>;
// Vectors: double throughout for 64f, single for a single 32f matrix (its roots of g*g + 1 are
// taken in double and rounded back: the argument is formed in single precision, so this gives
// the single root), single storage with double scalars for 32f arrays. In the arrays t is not
// one of the double scalars: it is rounded to single where it is formed, and p, g and the
// test on t use that rounded value.
using Vectors64 = Prec<double, double, double, double, true>;
template <bool ShiftAtZero> using VectorsOne32 = Prec<float, float, float, float, true, false, ShiftAtZero>;
using VectorsArr32 = Prec<float, double, float, double, true, true>;

// No vectors: the values family passes this for Z.
struct NoZ {
  float* at(int32_t, int32_t) const { return nullptr; }
};

// The working matrix, n by n, row after row; with Nc its order is known when compiling.
template <class T_, int Nc = 0>
struct Work {
  using T = T_;
  T* w;
  int32_t rt;
  int32_t order() const { return Nc ? Nc : rt; }
  T& operator()(int32_t i, int32_t j) const { return w[i * order() + j]; }
  T& d(int32_t i) const { return w[i * order() + i]; }
  T& e(int32_t i) const { return w[(i + 1) * order() + i]; }
};

// Z row after row in N*N elements of local storage.
template <class T, int N>
struct LocalZ {
  T* p;
  T* at(int32_t r, int32_t c) const { return p + r * N + c; }
};

// An off-diagonal element counts as zero up to 2*eps in magnitude; in single precision it is
// widened to double for the test, which gives the same answer. NaN is never small.
template <class T>
inline bool small(T e) {
  return std::fabs(double(e) * 0.5) <= double(kEps<T>);
}

template <class S>
inline S root(S x) {
  return std::sqrt(x);
}
// sqrt(g*g + 1) of the sweep's shift: the root taken in double and rounded back.
template <class S>
inline S rootOfShift(S x) {
  return S(std::sqrt(double(x)));
}

// ---- Orders 1 and 2 ------------------------------------------------------------------------

// Order 2 from a = (0,0), b = (0,1), c = (1,1), in the element type. The values are not sorted:
// with a trace below -eps the one of larger magnitude, the smaller, comes first. Returns false
// when the determinant is not above eps in magnitude, with nothing written.
template <class T>
inline bool order2Values(T a, T b, T c, T* dst, bool& negTrace) {
  const T eps = kEps<T>;
  const T det = c * a - b * b;
  if (eps >= std::fabs(det)) return false;
  const T t = c + a;
  const T q = root((a - c) * (a - c) + (b + b) * (b + b));
  negTrace = false;
  if (t > eps) {
    dst[0] = T(0.5) * (t + q);
    dst[1] = (a * c - b * b) / dst[0];
  } else if (-eps > t) {
    negTrace = true;
    dst[0] = T(0.5) * (t - q);
    dst[1] = (a * c - b * b) / dst[0];
  } else {
    dst[0] = T(0.5) * q;
    dst[1] = T(-0.5) * q;
  }
  return true;
}

// The rotation of order 2, in the element type; its two roots are taken in double and rounded
// back, which, of arguments formed in the element type, is the element type's own root.
template <class T, class Z>
inline void order2Vectors(T a, T b, T c, bool negTrace, const Z& z) {
  const T eps = kEps<T>;
  const T q = T(std::sqrt(double((a - c) * (a - c) + (b + b) * (b + b))));
  const T tb = b + b, df = a - c;
  const int sgn1 = negTrace ? -1 : 1;
  T w;
  int sgn2;
  if (df >= eps) {
    w = q + df;
    sgn2 = 1;
  } else if (-eps > df) {
    w = df - q;
    sgn2 = -1;
  } else {
    w = q + df;
    sgn2 = 1;
  }
  T cs, sn;
  if (std::fabs(w) > std::fabs(tb)) {
    const T ct = -tb / w;
    sn = T(1) / T(std::sqrt(double(ct * ct + T(1))));
    cs = ct * sn;
  } else if (eps >= std::fabs(tb)) {
    cs = 1;
    sn = 0;
  } else {
    const T tn = -w / tb;
    cs = T(1) / T(std::sqrt(double(tn * tn + T(1))));
    sn = tn * cs;
  }
  if (sgn1 != sgn2) {
    *z.at(0, 0) = cs, *z.at(1, 0) = sn;
    *z.at(0, 1) = -sn, *z.at(1, 1) = cs;
  } else {
    *z.at(0, 0) = -sn, *z.at(1, 0) = cs;
    *z.at(0, 1) = -cs, *z.at(1, 1) = -sn;
  }
}

// ---- Order 3 and above ----------------------------------------------------------------------

// Householder reduction of W to tridiagonal form. u lives in dst[k+1 .. n-1]. Every sum starts
// from zero and runs upward. With vectors, Z (set to the identity beforehand) accumulates the
// reflections.
template <class Pr, class Wk, class Z>
void reduce(const Wk& W, typename Pr::T* u, const Z& z) {
  using T = typename Pr::T;
  using S = typename Pr::S;
  const S eps = S(kEps<T>);
  const int32_t n = W.order();
  for (int32_t k = 0; k + 2 < n; ++k) {
    S s = 0;
    for (int32_t i = k + 1; i < n; ++i) s += S(W(i, k)) * S(W(i, k));
    const S norm = root(s);
    const S a = S(W(k + 1, k));
    // With vectors a column that already has the wanted form is left as it is.
    if constexpr (Pr::kVectors)
      if (eps >= std::fabs(norm - a)) continue;
    for (int32_t i = k + 2; i < n; ++i) u[i] = W(i, k);
    S h;
    if (a > eps) {
      u[k + 1] = T(a + norm);
      h = (s + a * norm) * 2;
    } else if (eps >= std::fabs(a)) {
      u[k + 1] = T(norm);
      h = s + s;
    } else {
      u[k + 1] = T(a - norm);
      h = (s - a * norm) * 2;
    }
    if (eps >= h) continue;
    const S beta = 2 / h;
    for (int32_t j = k; j < n; ++j) {  // columns, then rows, over the whole trailing block
      S sum = 0;
      for (int32_t i = k + 1; i < n; ++i) sum += S(W(i, j)) * S(u[i]);
      const S w = beta * sum;
      for (int32_t i = k + 1; i < n; ++i) W(i, j) = T(S(W(i, j)) - w * S(u[i]));
    }
    for (int32_t i = k; i < n; ++i) {
      S sum = 0;
      for (int32_t j = k + 1; j < n; ++j) sum += S(W(i, j)) * S(u[j]);
      const S w = beta * sum;
      for (int32_t j = k + 1; j < n; ++j) W(i, j) = T(S(W(i, j)) - w * S(u[j]));
    }
    if constexpr (Pr::kVectors) {
      if (k == 0) {
        // The first reflection is written, not multiplied: I - beta*u*u', each off-diagonal
        // product formed once, left to right with the lower index first, for both places.
        *z.at(0, 0) = T(1);
        for (int32_t j = 1; j < n; ++j) *z.at(0, j) = *z.at(j, 0) = T(0);
        for (int32_t i = 1; i < n; ++i) {
          *z.at(i, i) = T(S(1) - beta * S(u[i]) * S(u[i]));
          for (int32_t j = i + 1; j < n; ++j) *z.at(i, j) = *z.at(j, i) = T(-beta * S(u[i]) * S(u[j]));
        }
      } else {
        for (int32_t r = 1; r < n; ++r) {  // row 0 stays the first unit vector
          S sum = 0;
          for (int32_t j = k + 1; j < n; ++j) sum += S(u[j]) * S(*z.at(r, j));
          const S w = beta * sum;
          for (int32_t j = k + 1; j < n; ++j) *z.at(r, j) = T(S(*z.at(r, j)) - w * S(u[j]));
        }
      }
    }
  }
}

// Columns i and i+1 of Z turned by the rotation (c, s) of the sweep, over all n rows.
template <class Pr, bool Up, class Z, class S>
inline void rotate(const Z& z, int32_t n, int32_t i, S c, S s, S g, S f, S r) {
  using T = typename Pr::T;
  for (int32_t row = 0; row < n; ++row) {
    T* pi = z.at(row, i);
    T* pj = z.at(row, i + 1);
    const S zi = S(*pi), zj = S(*pj);
    if constexpr (Pr::kDivRot) {
      const S xi = zi / r, xj = zj / r;
      if constexpr (Up) *pi = T(g * xi - f * xj), *pj = T(f * xi + g * xj);
      else *pi = T(g * xi + f * xj), *pj = T(g * xj - f * xi);
    } else {
      if constexpr (Up) *pi = T(c * zi - s * zj), *pj = T(s * zi + c * zj);
      else *pi = T(c * zi + s * zj), *pj = T(c * zj - s * zi);
    }
  }
}

// Upward sweep (QL), l = 0 .. n-1. Writes every d[i] to dst at the end and returns the product
// of the eigenvalues, from d[0] upward, in P; or tarnStatusNoConvergence.
template <class Pr, class Wk, class Z>
tarnStatus sweepUp(const Wk& W, typename Pr::T* dst, const Z& z, typename Pr::Pr& P) {
  using T = typename Pr::T;
  using S = typename Pr::S;
  using Tt = typename Pr::Tt;
  const S eps = S(kEps<T>);
  const int32_t n = W.order();
  for (int32_t l = 0; l < n; ++l) {
    for (int iter = 0;;) {
      int32_t m = l;
      while (m < n - 1 && !small(W.e(m))) ++m;
      if (m == l) break;
      if (iter == kMaxSweeps) return tarnStatusNoConvergence;
      ++iter;
      S g = (S(W.d(l + 1)) - S(W.d(l))) / (2 * S(W.e(l)));
      S r = rootOfShift(g * g + 1);
      const bool plus = Pr::kShiftAtZero ? g > 0 : g > eps;
      g = plus ? S(W.d(m)) - S(W.d(l)) + S(W.e(l)) / (g + r) : S(W.d(m)) - S(W.d(l)) + S(W.e(l)) / (g - r);
      S s = 1, c = 1, p = 0;
      Tt t = 0;
      bool split = false;
      for (int32_t i = m - 1; i >= l; --i) {
        const S f = s * S(W.e(i)), b = c * S(W.e(i));
        r = root(f * f + g * g);
        if (i != m - 1) W.e(i + 1) = T(r);
        if (eps >= std::fabs(r)) {
          // e[m-1] is cleared here, not the element that ended the search.
          W.d(i + 1) = T(S(W.d(i + 1)) - p);
          W.e(m - 1) = T(0);
          split = true;
          break;
        }
        c = g / r;
        s = f / r;
        if constexpr (Pr::kVectors) rotate<Pr, true>(z, n, i, c, s, g, f, r);
        g = S(W.d(i + 1)) - p;
        t = Tt((S(W.d(i)) - g) * s + (c + c) * b);
        p = S(t) * s;
        W.d(i + 1) = T(g + p);
        g = S(t) * c - b;
      }
      if (split) continue;
      if (eps >= std::fabs(S(t)) && l > 0) continue;  // not for l = 0
      W.d(l) = T(S(W.d(l)) - p);
      W.e(l) = T(g);
    }
  }
  P = 1;
  for (int32_t i = 0; i < n; ++i) {
    dst[i] = W.d(i);
    P *= typename Pr::Pr(W.d(i));
  }
  return tarnStatusOk;
}

// Downward sweep (QR), l = n-1 .. 1, the mirror image. Values alone store d[m] to dst and take
// it into P at every search that stops at a small element, so P is not the determinant when the
// matrix splits; with vectors nothing is stored during the search and P is the product of the
// final eigenvalues from d[0] upward.
template <class Pr, class Wk, class Z>
tarnStatus sweepDown(const Wk& W, typename Pr::T* dst, const Z& z, typename Pr::Pr& P) {
  using T = typename Pr::T;
  using S = typename Pr::S;
  using Tt = typename Pr::Tt;
  const S eps = S(kEps<T>);
  const int32_t n = W.order();
  P = 1;
  for (int32_t l = n - 1; l >= 1; --l) {
    for (int iter = 0;;) {
      int32_t m = l;
      for (; m > 0; --m)
        if (small(W.e(m - 1))) {
          if constexpr (!Pr::kVectors) {
            dst[m] = W.d(m);
            P *= W.d(m);
          }
          break;
        }
      if (m == l) break;
      if (iter == kMaxSweeps) return tarnStatusNoConvergence;
      ++iter;
      S g = (S(W.d(l - 1)) - S(W.d(l))) / (2 * S(W.e(l - 1)));
      S r = rootOfShift(g * g + 1);
      g = g > eps ? S(W.d(m)) - S(W.d(l)) + S(W.e(l - 1)) / (g + r) : S(W.d(m)) - S(W.d(l)) + S(W.e(l - 1)) / (g - r);
      S s = 1, c = 1, p = 0;
      Tt t = 0;
      bool split = false;
      for (int32_t i = m; i < l; ++i) {
        const S f = s * S(W.e(i)), b = c * S(W.e(i));
        r = root(f * f + g * g);
        if (i != m) W.e(i - 1) = T(r);
        if (eps >= std::fabs(r)) {
          W.d(i) = T(S(W.d(i)) - p);
          W.e(m) = T(0);
          split = true;
          break;
        }
        c = g / r;
        s = f / r;
        if constexpr (Pr::kVectors) rotate<Pr, false>(z, n, i, c, s, g, f, r);
        g = S(W.d(i)) - p;
        t = Tt((S(W.d(i + 1)) - g) * s + (c + c) * b);
        p = S(t) * s;
        W.d(i) = T(g + p);
        g = S(t) * c - b;
      }
      if (split) continue;
      if (eps >= std::fabs(S(t))) continue;  // for every l here
      W.e(l - 1) = T(g);
      W.d(l) = T(S(W.d(l)) - p);
    }
  }
  if constexpr (Pr::kVectors) {
    P = 1;
    for (int32_t i = 0; i < n; ++i) {
      dst[i] = W.d(i);
      P *= typename Pr::Pr(W.d(i));
    }
  } else {
    dst[0] = W.d(0);
    P *= W.d(0);
  }
  return tarnStatusOk;
}

// Selection sort into descending order, the first of equals kept; with vectors each exchange of
// two values also exchanges the two columns of Z.
template <bool Vectors, class T, class Z>
void sortDescending(T* dst, int32_t n, const Z& z) {
  for (int32_t i = 0; i + 1 < n; ++i) {
    int32_t best = i;
    for (int32_t j = i + 1; j < n; ++j)
      if (dst[j] > dst[best]) best = j;
    if (best == i) continue;
    const T v = dst[i];
    dst[i] = dst[best];
    dst[best] = v;
    if constexpr (Vectors)
      for (int32_t r = 0; r < n; ++r) {
        T* a = z.at(r, i);
        T* b = z.at(r, best);
        const T x = *a;
        *a = *b;
        *b = x;
      }
  }
}

// One matrix of order n >= 3 from the source view `src` (at(r, c) is the address of element
// (r, c)): copy, reduce, sweep in the direction the ends of the diagonal choose, test the
// product, sort.
template <class Pr, int Nc = 0, class Src, class Z>
tarnStatus solveLarge(const Src& src, typename Pr::T* scratch, typename Pr::T* dst, const Z& z, int32_t nrt) {
  using T = typename Pr::T;
  const Work<T, Nc> W{scratch, nrt};
  const int32_t n = W.order();
  for (int32_t i = 0; i < n; ++i)
    for (int32_t j = 0; j < n; ++j) {
      W(i, j) = *src.at(i, j);
      if constexpr (Pr::kVectors) *z.at(i, j) = T(i == j ? 1 : 0);
    }
  reduce<Pr>(W, dst, z);
  typename Pr::Pr P;
  // Upward only when the last diagonal element is strictly larger in magnitude: ties and NaN
  // go downward.
  const tarnStatus st = std::fabs(W.d(n - 1)) > std::fabs(W.d(0)) ? sweepUp<Pr>(W, dst, z, P) : sweepDown<Pr>(W, dst, z, P);
  if (st != tarnStatusOk) return st;
  if (typename Pr::Pr(kEps<T>) >= std::fabs(P)) return tarnStatusSingular;  // values stay unsorted
  sortDescending<Pr::kVectors>(dst, n, z);
  return tarnStatusOk;
}

// Eigenvalues of one matrix, any order.
template <class T, class Src>
tarnStatus valuesOne(const Src& src, T* scratch, T* dst, int32_t n) {
  if (n == 1) {
    dst[0] = *src.at(0, 0);
    return tarnStatusOk;
  }
  if (n == 2) {
    // The four elements go to scratch as stored; only (0,0), (0,1) and (1,1) take part.
    scratch[0] = *src.at(0, 0), scratch[1] = *src.at(0, 1);
    scratch[2] = *src.at(1, 0), scratch[3] = *src.at(1, 1);
    bool negTrace;
    return order2Values(scratch[0], scratch[1], scratch[3], dst, negTrace) ? tarnStatusOk : tarnStatusSingular;
  }
  return solveLarge<ValuesPrec<T>>(src, scratch, dst, NoZ{}, n);
}

// Eigenvalues and eigenvectors of one matrix, any order. Order 2 leaves scratch alone.
template <class Pr, class Src, class Z>
tarnStatus vectorsOne(const Src& src, typename Pr::T* scratch, typename Pr::T* values, const Z& z, int32_t n) {
  using T = typename Pr::T;
  if (n == 1) {
    const T v = *src.at(0, 0);
    *z.at(0, 0) = T(1);
    values[0] = v;
    return tarnStatusOk;
  }
  if (n == 2) {
    const T a = *src.at(0, 0), b = *src.at(0, 1), c = *src.at(1, 1);
    T v[2];
    bool negTrace;
    if (!order2Values(a, b, c, v, negTrace)) return tarnStatusSingular;
    order2Vectors(a, b, c, negTrace, z);
    values[0] = v[0], values[1] = v[1];
    return tarnStatusOk;
  }
  return solveLarge<Pr>(src, scratch, values, z, n);
}

// Orders 3 to 6 with vectors: the working matrix and Z in local storage of a size known when
// compiling, so the loops unroll. Every operation and every store to the values is the plain
// path's, and Z is copied out at the end, success or failure; only the caller's scratch, whose
// content on return is no result, is left alone.
template <class Pr, int N, class Src, class Z>
tarnStatus vectorsFixed(const Src& src, typename Pr::T* values, const Z& z) {
  using T = typename Pr::T;
  T w[N * N], zl[N * N];
  const tarnStatus st = solveLarge<Pr, N>(src, w, values, LocalZ<T, N>{zl}, N);
  for (int32_t r = 0; r < N; ++r)
    for (int32_t c = 0; c < N; ++c) *z.at(r, c) = zl[r * N + c];
  return st;
}

}  // namespace tarn::eigsym
