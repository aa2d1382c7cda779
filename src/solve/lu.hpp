// LU factorisation with partial pivoting and the substitutions that use it: the plain bodies,
// one object at a time. Rows are never moved: piv[k] names the source row that became row k,
// and the factors of row k stand in row piv[k].
//
// Orders 3 to 6 have the expanded form: a local copy, the exchange before the singularity test,
// reciprocals of the pivots except at the last stage, a row stored as soon as its stage ends,
// and a tiny threshold tested strictly. Every other order runs the loop in dst, which tests
// before the exchange against a threshold near the element type's epsilon, inclusively.
#pragma once

#include <cmath>
#include <cstdint>
#include <utility>

#include "operand.hpp"
#include "tarn.h"

namespace tarn::lu {

template <class T> struct Limits;
template <> struct Limits<float> {
  static constexpr float kExpanded = 0x1p-125f;  // singular when |pivot| < this
  static constexpr float kLoop = 0x1p-23f;       // singular when |pivot| <= this
};
template <> struct Limits<double> {
  static constexpr double kExpanded = 0x1p-1021;
  static constexpr double kLoop = 0x1p-52;
};

inline constexpr bool expanded(int32_t n) { return n >= 3 && n <= 6; }

// ---- Factorisation -------------------------------------------------------------------------

// Orders 3 to 6. The object is read whole before anything is written, so src and dst may be the
// same memory. On failure dst holds the rows of the finished stages and piv the order with the
// failing stage's exchange.
template <class T, int N, class S, class D>
tarnStatus factorExpanded(const S& src, const D& dst, int32_t* piv) {
  T a[N][N];
  for (int r = 0; r < N; ++r)
    for (int c = 0; c < N; ++c) a[r][c] = loadElem(src.at(r, c));
  for (int i = 0; i < N; ++i) piv[i] = i;
  auto storeRow = [&](int32_t row) {
    for (int c = 0; c < N; ++c) storeElem(dst.at(row, c), a[row][c]);
  };
  for (int k = 0; k < N - 1; ++k) {
    int best = k;
    T mag = std::fabs(a[piv[k]][k]);
    for (int i = k + 1; i < N; ++i) {
      const T m = std::fabs(a[piv[i]][k]);
      if (m > mag) {  // strictly: a tie keeps the earlier candidate, a NaN never wins
        mag = m;
        best = i;
      }
    }
    if (best != k) std::swap(piv[k], piv[best]);
    if (mag < Limits<T>::kExpanded) return tarnStatusSingular;
    const int32_t pk = piv[k];
    if (k < N - 2) {
      const T r = T(1) / a[pk][k];
      for (int i = k + 1; i < N; ++i) a[piv[i]][k] = a[piv[i]][k] * r;
    } else {
      a[piv[N - 1]][k] = a[piv[N - 1]][k] / a[pk][k];
    }
    for (int i = k + 1; i < N; ++i)
      for (int j = k + 1; j < N; ++j) a[piv[i]][j] = a[piv[i]][j] - a[piv[i]][k] * a[pk][j];
    storeRow(pk);
  }
  if (std::fabs(a[piv[N - 1]][N - 1]) < Limits<T>::kExpanded) return tarnStatusSingular;
  storeRow(piv[N - 1]);
  return tarnStatusOk;
}

// Every other order, in dst. On failure dst holds the copy with the elimination done so far and
// piv the order before the failing stage's exchange.
template <class T, class S, class D>
tarnStatus factorLoop(const S& src, const D& dst, int32_t* piv, int32_t n) {
  for (int32_t i = 0; i < n; ++i) piv[i] = i;
  for (int32_t r = 0; r < n; ++r)
    for (int32_t c = 0; c < n; ++c) storeElem(dst.at(r, c), loadElem(src.at(r, c)));
  for (int32_t k = 0; k < n - 1; ++k) {
    int32_t best = k;
    T mag = std::fabs(loadElem(dst.at(piv[k], k)));
    for (int32_t i = k + 1; i < n; ++i) {
      const T m = std::fabs(loadElem(dst.at(piv[i], k)));
      if (m > mag) {
        mag = m;
        best = i;
      }
    }
    if (mag <= Limits<T>::kLoop) return tarnStatusSingular;
    if (best != k) std::swap(piv[k], piv[best]);
    const int32_t pk = piv[k];
    const T r = T(1) / loadElem(dst.at(pk, k));
    for (int32_t i = k + 1; i < n; ++i) storeElem(dst.at(piv[i], k), loadElem(dst.at(piv[i], k)) * r);
    for (int32_t i = k + 1; i < n; ++i)
      for (int32_t j = k + 1; j < n; ++j)
        storeElem(dst.at(piv[i], j), loadElem(dst.at(piv[i], j)) - loadElem(dst.at(piv[i], k)) * loadElem(dst.at(pk, j)));
  }
  if (std::fabs(loadElem(dst.at(piv[n - 1], n - 1))) <= Limits<T>::kLoop) return tarnStatusSingular;
  return tarnStatusOk;
}

// ---- Substitution --------------------------------------------------------------------------
// L(i, j) and U(i, j) stand in row piv[i] of the factor; b is read through piv, x by column.
// Within a row the products are taken in ascending column order, on every path and in every
// member: forward from column 0 up to i-1, backward from column i+1 up to n-1.

// Every order but 3 to 6: the intermediate vector lives in dst, no temporary. Each sum starts
// from its first product and is subtracted from the row's value once.
template <class T, class F, class B, class X>
void solveLoop(const F& f, const int32_t* piv, const B& b, const X& x, int32_t n) {
  storeElem(x.at(0, 0), loadElem(b.at(0, piv[0])));
  for (int32_t i = 1; i < n; ++i) {
    const int32_t pi = piv[i];
    T s = loadElem(f.at(pi, 0)) * loadElem(x.at(0, 0));
    for (int32_t j = 1; j < i; ++j) s = s + loadElem(f.at(pi, j)) * loadElem(x.at(0, j));
    storeElem(x.at(0, i), loadElem(b.at(0, pi)) - s);
  }
  storeElem(x.at(0, n - 1), loadElem(x.at(0, n - 1)) / loadElem(f.at(piv[n - 1], n - 1)));
  for (int32_t i = n - 2; i >= 0; --i) {
    const int32_t pi = piv[i];
    T s = loadElem(f.at(pi, i + 1)) * loadElem(x.at(0, i + 1));
    for (int32_t j = i + 2; j < n; ++j) s = s + loadElem(f.at(pi, j)) * loadElem(x.at(0, j));
    storeElem(x.at(0, i), (loadElem(x.at(0, i)) - s) / loadElem(f.at(pi, i)));
  }
}

// The factor of one object of order N in registers, rows in pivot order: u[i][j] is L(i, j) for
// j < i and U(i, j) from the diagonal on.
template <class T, int N>
struct Factor {
  T u[N][N];
  int32_t piv[N];
  template <class F>
  void load(const F& f, const int32_t* p) {
    for (int i = 0; i < N; ++i) piv[i] = p[i];
    for (int i = 0; i < N; ++i)
      for (int j = 0; j < N; ++j) u[i][j] = loadElem(f.at(piv[i], j));
  }
};

// Orders 3 to 6: y and x in locals, every product subtracted from the running value on its own;
// x is stored whole at the end, when every element of b has been read. `Recip` divides by the
// diagonal of U (false) or multiplies by reciprocals formed before (true).
template <class T, int N, bool Recip, class B, class X>
void solveExpanded(const Factor<T, N>& f, const T* recip, const B& b, const X& x) {
  T y[N];
  for (int i = 0; i < N; ++i) {
    T v = loadElem(b.at(0, f.piv[i]));
    for (int j = 0; j < i; ++j) v = v - f.u[i][j] * y[j];
    y[i] = v;
  }
  for (int i = N - 1; i >= 0; --i) {
    T v = y[i];
    for (int j = i + 1; j < N; ++j) v = v - f.u[i][j] * y[j];
    y[i] = Recip ? v * recip[i] : v / f.u[i][i];
  }
  for (int i = 0; i < N; ++i) storeElem(x.at(0, i), y[i]);
}

}  // namespace tarn::lu
