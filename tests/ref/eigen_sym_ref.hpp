// Plain model of the symmetric eigenproblems, written from the mathematics and the stated order
// of operations: one matrix in a row-major std::vector, every store rounded to the element type.
// It reproduces what a call leaves in the values (the Householder vector, stores of the
// downward search, unsorted values on a singular product) and in the vectors, so failing
// objects can be compared too.
#pragma once

#include <cmath>
#include <cstdint>
#include <vector>

#include "tarn.h"

namespace tt::eigref {

// Arithmetic of a member: T in memory, S for the scalars of reduction and sweep, Tt for t,
// Pr for the product of the eigenvalues.
template <class T_, class S_, class Tt_, class Pr_, bool Vec_, bool DivRot_ = false, bool ShiftZero_ = false>
struct Arith {
  using T = T_;
  using S = S_;
  using Tt = Tt_;
  using Pr = Pr_;
  static constexpr bool Vec = Vec_, DivRot = DivRot_, ShiftZero = ShiftZero_;
};
template <class T> using ValuesArith = Arith<T, T, T, T, false>;
using Vectors64Arith = Arith<double, double, double, double, true>;
template <bool ShiftZero> using VectorsOne32Arith = Arith<float, float, float, float, true, false, ShiftZero>;
using VectorsArr32Arith = Arith<float, double, float, double, true, true>;

template <class A>
struct Model {
  using T = typename A::T;
  using S = typename A::S;
  int n;
  std::vector<T> w;  // the working matrix
  std::vector<T>& val;  // n values, holding the caller's earlier content
  std::vector<T>& z;    // n*n vectors, row-major (vectors only)
  // What happened, for tests that must prove their matrices reach a branch.
  struct Events {
    bool up = false;     // the upward sweep ran
    int sweepsMax = 0;   // the most sweeps any eigenvalue took
    int splits = 0;      // rotation loops left at a small r
    int tSkips = 0;      // updates skipped for a small last t
  } ev;

  static constexpr double kEpsD = sizeof(T) == 4 ? 1.1920928955078125e-07 : 2.220446049250313e-16;
  const S eps = S(T(kEpsD));

  T& W(int i, int j) { return w[size_t(i) * n + j]; }
  T& d(int i) { return W(i, i); }
  T& e(int i) { return W(i + 1, i); }
  T& Z(int i, int j) { return z[size_t(i) * n + j]; }
  bool tiny(T x) const { return std::fabs(double(x) * 0.5) <= kEpsD; }

  tarnStatus order2(T a, T b, T c) {
    const T ep = T(kEpsD);
    if (ep >= std::fabs(c * a - b * b)) return tarnStatusSingular;
    const T t = c + a, q = std::sqrt((a - c) * (a - c) + (b + b) * (b + b));
    T v0, v1;
    int sgn1 = 1;
    if (t > ep) {
      v0 = T(0.5) * (t + q);
      v1 = (a * c - b * b) / v0;
    } else if (-ep > t) {
      v0 = T(0.5) * (t - q);
      v1 = (a * c - b * b) / v0;
      sgn1 = -1;
    } else {
      v0 = T(0.5) * q;
      v1 = T(-0.5) * q;
    }
    val[0] = v0, val[1] = v1;
    if (!A::Vec) return tarnStatusOk;
    const T tb = b + b, df = a - c;
    const T wv = df >= ep ? q + df : -ep > df ? df - q : q + df;
    const int sgn2 = (df < ep && -ep > df) ? -1 : 1;
    T cs, sn;
    if (std::fabs(wv) > std::fabs(tb)) {
      const T ct = -tb / wv;
      sn = T(1) / std::sqrt(ct * ct + T(1));
      cs = ct * sn;
    } else if (ep >= std::fabs(tb)) {
      cs = 1, sn = 0;
    } else {
      const T tn = -wv / tb;
      cs = T(1) / std::sqrt(tn * tn + T(1));
      sn = tn * cs;
    }
    if (sgn1 != sgn2) Z(0, 0) = cs, Z(1, 0) = sn, Z(0, 1) = -sn, Z(1, 1) = cs;
    else Z(0, 0) = -sn, Z(1, 0) = cs, Z(0, 1) = -cs, Z(1, 1) = -sn;
    return tarnStatusOk;
  }

  void householder() {
    for (int k = 0; k < n - 2; ++k) {
      S ss = 0;
      for (int i = k + 1; i < n; ++i) ss = ss + S(W(i, k)) * S(W(i, k));
      const S nrm = std::sqrt(ss), a = S(W(k + 1, k));
      if (A::Vec && eps >= std::fabs(nrm - a)) continue;
      for (int i = k + 2; i < n; ++i) val[i] = W(i, k);
      S h;
      if (a > eps) val[k + 1] = T(a + nrm), h = (ss + a * nrm) * 2;
      else if (eps >= std::fabs(a)) val[k + 1] = T(nrm), h = ss + ss;
      else val[k + 1] = T(a - nrm), h = (ss - a * nrm) * 2;
      if (eps >= h) continue;
      const S beta = S(2) / h;
      auto u = [&](int i) { return S(val[i]); };
      for (int j = k; j < n; ++j) {
        S acc = 0;
        for (int i = k + 1; i < n; ++i) acc = acc + S(W(i, j)) * u(i);
        const S wj = beta * acc;
        for (int i = k + 1; i < n; ++i) W(i, j) = T(S(W(i, j)) - wj * u(i));
      }
      for (int i = k; i < n; ++i) {
        S acc = 0;
        for (int j = k + 1; j < n; ++j) acc = acc + S(W(i, j)) * u(j);
        const S wi = beta * acc;
        for (int j = k + 1; j < n; ++j) W(i, j) = T(S(W(i, j)) - wi * u(j));
      }
      if (!A::Vec) continue;
      if (k == 0) {
        for (int i = 1; i < n; ++i)
          for (int j = i; j < n; ++j) {
            const T v = i == j ? T(S(1) - beta * u(i) * u(i)) : T(-beta * u(i) * u(j));
            Z(i, j) = v, Z(j, i) = v;
          }
      } else {
        for (int r = 1; r < n; ++r) {
          S acc = 0;
          for (int j = k + 1; j < n; ++j) acc = acc + u(j) * S(Z(r, j));
          const S wr = beta * acc;
          for (int j = k + 1; j < n; ++j) Z(r, j) = T(S(Z(r, j)) - wr * u(j));
        }
      }
    }
  }

  // Columns i, i+1 of Z; `up` chooses the sweep's sign convention.
  void turn(bool up, int i, S c, S s, S g, S f, S r) {
    for (int row = 0; row < n; ++row) {
      const S x = S(Z(row, i)), y = S(Z(row, i + 1));
      S nx, ny;
      if (A::DivRot) {
        const S xr = x / r, yr = y / r;
        nx = up ? g * xr - f * yr : g * xr + f * yr;
        ny = up ? f * xr + g * yr : g * yr - f * xr;
      } else {
        nx = up ? c * x - s * y : c * x + s * y;
        ny = up ? s * x + c * y : c * y - s * x;
      }
      Z(row, i) = T(nx), Z(row, i + 1) = T(ny);
    }
  }

  // The shift and the rotations of one sweep over the block between m and l. `up`: QL with
  // i from m-1 down to l; else QR with i from m up to l-1. Returns false when the block split.
  bool sweep(bool up, int l, int m, typename A::Tt& tOut, S& pOut, S& gOut) {
    const int l1 = up ? l + 1 : l - 1, el = up ? l : l - 1;
    S g = (S(d(l1)) - S(d(l))) / (S(2) * S(e(el)));
    S r = S(std::sqrt(double(g * g + S(1))));
    const bool plus = (up && A::ShiftZero) ? g > S(0) : g > eps;
    g = S(d(m)) - S(d(l)) + S(e(el)) / (plus ? g + r : g - r);
    S s = 1, c = 1, p = 0;
    typename A::Tt t = 0;
    const int n0 = up ? m - 1 : m, n1 = up ? l - 1 : l, step = up ? -1 : 1;
    for (int i = n0; i != n1; i += step) {
      const S f = s * S(e(i)), b = c * S(e(i));
      r = std::sqrt(f * f + g * g);
      const int lo = up ? i + 1 : i, hi = up ? i : i + 1;  // the element that takes g + p, the other one
      if (i != n0) e(up ? i + 1 : i - 1) = T(r);
      if (eps >= std::fabs(r)) {
        ++ev.splits;
        d(lo) = T(S(d(lo)) - p);
        e(up ? m - 1 : m) = T(0);
        return false;
      }
      c = g / r, s = f / r;
      if (A::Vec) turn(up, i, c, s, g, f, r);
      g = S(d(lo)) - p;
      t = typename A::Tt((S(d(hi)) - g) * s + (c + c) * b);
      p = S(t) * s;
      d(lo) = T(g + p);
      g = S(t) * c - b;
    }
    tOut = t, pOut = p, gOut = g;
    return true;
  }

  tarnStatus large(const std::vector<T>& src) {
    w = src;
    if (A::Vec)
      for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) Z(i, j) = i == j ? 1 : 0;
    householder();
    const bool up = std::fabs(d(n - 1)) > std::fabs(d(0));
    ev.up = up;
    typename A::Pr P = 1;
    for (int k = 0; k < n - 1; ++k) {
      const int l = up ? k : n - 1 - k;
      for (int sweeps = 0;; ++sweeps) {
        int m = l;
        if (up) {
          while (m < n - 1 && !tiny(e(m))) ++m;
        } else {
          while (m > 0 && !tiny(e(m - 1))) --m;
          if (m > 0 && !A::Vec) val[m] = d(m), P = P * d(m);
        }
        if (m == l) break;
        if (sweeps == 30) return tarnStatusNoConvergence;
        ev.sweepsMax = std::max(ev.sweepsMax, sweeps + 1);
        typename A::Tt t;
        S p, g;
        if (!sweep(up, l, m, t, p, g)) continue;
        if (eps >= std::fabs(S(t)) && (!up || l > 0)) {
          ++ev.tSkips;
          continue;
        }
        if (up) d(l) = T(S(d(l)) - p), e(l) = T(g);
        else e(l - 1) = T(g), d(l) = T(S(d(l)) - p);
      }
    }
    if (up || A::Vec) {
      P = 1;
      for (int i = 0; i < n; ++i) val[i] = d(i), P = P * typename A::Pr(d(i));
    } else {
      val[0] = d(0), P = P * d(0);
    }
    if (typename A::Pr(T(kEpsD)) >= std::fabs(P)) return tarnStatusSingular;
    for (int i = 0; i < n - 1; ++i) {
      int best = i;
      for (int j = i + 1; j < n; ++j)
        if (val[j] > val[best]) best = j;
      if (best == i) continue;
      std::swap(val[i], val[best]);
      if (A::Vec)
        for (int r = 0; r < n; ++r) std::swap(Z(r, i), Z(r, best));
    }
    return tarnStatusOk;
  }

  tarnStatus run(const std::vector<T>& src) {
    if (n == 1) {
      val[0] = src[0];
      if (A::Vec) z[0] = 1;
      return tarnStatusOk;
    }
    if (n == 2) return order2(src[0], src[1], src[3]);
    return large(src);
  }
};

// One matrix: `src` row-major n*n; `val` (n) and `z` (n*n, vectors only) hold what the call
// finds there and receive what it leaves.
template <class A>
tarnStatus solve(const std::vector<typename A::T>& src, int n, std::vector<typename A::T>& val,
                 std::vector<typename A::T>& z, typename Model<A>::Events* events = nullptr) {
  Model<A> m{n, {}, val, z};
  const tarnStatus st = m.run(src);
  if (events) *events = m.ev;
  return st;
}

}  // namespace tt::eigref
