// Invert: the inverse of each matrix, or tarnStatusSingular.
//
// Order 1 is a reciprocal, done in the entry. Orders 3 and 4 are adjugates over the determinant
// Det computes; orders 5 and 6 are adjugates too, except on the contiguous float paths, which take
// the block form. Order 2 and orders from 7 build every element as a cofactor over the
// determinant, each by an elimination of its own in `buffer`. The tolerance of order n is
// 2*n^3 times the smallest normal number (twice that for orders 3 and 4 of the contiguous
// single-matrix double member). The contiguous float paths replace the division of the
// determinant by the approximate reciprocal with one Newton step at the orders listed in
// approxAt(); tarnInvert_ma_32f does order 4 in aligned pairs: a pair whose second matrix is
// singular is left unwritten as a whole.
#include "call.hpp"
#include "dispatch.hpp"
#include "invert_fixed.hpp"

namespace tarn::invert {

using solve::cubeTolerance;

template <class T, bool Single, Layout L, bool Contig>
constexpr T toleranceOf(int32_t n) {
  if constexpr (std::is_same_v<T, double> && Single && L == Layout::S && Contig)
    if (n == 3 || n == 4) return T(n == 3 ? 108 : 256) * 0x1p-1022;
  return cubeTolerance<T>(n);
}

// Whether the path takes the approximate reciprocal at order 3 or 4, and the block form at 5, 6.
template <class T, bool Single, Layout L, bool Contig>
constexpr bool approxAt(int32_t n) {
  if constexpr (!std::is_same_v<T, float> || !Contig || L == Layout::P) return false;
  else return n != 3 || (Single ? L == Layout::S : L == Layout::L);
}

// Order 2 and from 7: a cofactor elimination per element. `w` holds n*n elements, row length n,
// and behind them n row numbers. Fails only before the first element of dst is written.
//
// A minor whose elimination meets a pivot below tol stops there with its product set to tol and
// goes on to its last element: x is still read from the partly eliminated rows, and the minor
// is x*sign*tol when |x| > tol, else tol.
template <class T, class Src, class Dst>
tarnStatus generalInverse(const Src& src, const Dst& dst, T* w, int32_t n) {
  int32_t* const r = reinterpret_cast<int32_t*>(w + size_t(n) * size_t(n));
  const T tol = cubeTolerance<T>(n);
  auto e = [&](int32_t row, int32_t col) -> T& { return w[r[row] * n + col]; };
  // Eliminates the m by m matrix in w; false when a pivot is below tol (then prod = tol).
  auto eliminate = [&](int32_t m, T& sign, T& prod) {
    for (int32_t k = 0; k + 1 < m; ++k) {
      int32_t pos = k;
      T best = std::fabs(e(k, k));
      for (int32_t i = k + 1; i < m; ++i)
        if (std::fabs(e(i, k)) > best) {
          best = std::fabs(e(i, k));
          pos = i;
        }
      if (pos != k) {
        std::swap(r[k], r[pos]);
        sign = -sign;
      }
      const T p = e(k, k);
      if (tol > std::fabs(p)) {
        prod = tol;
        return false;
      }
      const T inv = T(1) / p;
      for (int32_t i = k + 1; i < m; ++i) {
        const T f = e(i, k) * inv;
        for (int32_t j = k + 1; j < m; ++j) e(i, j) = e(i, j) - f * e(k, j);
      }
      prod = prod * p;
    }
    return true;
  };
  for (int32_t i = 0; i < n; ++i) {
    r[i] = i;
    for (int32_t j = 0; j < n; ++j) w[i * n + j] = loadElem(src.at(i, j));
  }
  T sign = 1, prod = 1;
  if (!eliminate(n, sign, prod)) return tarnStatusSingular;
  const T det = (sign * e(n - 1, n - 1)) * prod;
  if (!(tol < std::fabs(det))) return tarnStatusSingular;
  const T qd = T(1) / det;
  const int32_t m = n - 1;
  for (int32_t i = 0; i < n; ++i)
    for (int32_t j = 0; j < n; ++j) {
      for (int32_t a = 0, wa = 0; a < n; ++a) {
        if (a == i) continue;
        for (int32_t b = 0, wb = 0; b < n; ++b)
          if (b != j) w[wa * n + wb++] = loadElem(src.at(a, b));
        r[wa] = wa;
        ++wa;
      }
      sign = 1;
      prod = 1;
      if (n >= 3) eliminate(m, sign, prod);
      const T x = e(m - 1, m - 1);
      const T v = std::fabs(x) > tol ? (x * sign) * prod : tol;
      storeElem(dst.at(j, i), (v * qd) * T((i + j) % 2 ? -1 : 1));
    }
  return tarnStatusOk;
}

// Orders 3 to 6 of one matrix: the block form or the adjugate. All of src is read before dst is
// written. A block form that fails leaves its work rows in dst: src's row 0, and at order 6 row
// 1 as well, copied there before the first pivot test.
template <int N, bool Approx, class T, class Src, class Dst>
tarnStatus closedInverse(const Src& src, const Dst& dst, T tol) {
  T a[N][N], out[N][N];
  solve::load1(src, a);
  if constexpr (Approx && N >= 5) {
    for (int r = 0; r < N - 4; ++r)
      for (int c = 0; c < N; ++c) storeElem(dst.at(r, c), a[r][c]);
    bool ok;
    if constexpr (N == 5) ok = inverse::blockInverse5(a, tol, out);
    else ok = inverse::blockInverse6(a, tol, out);
    if (!ok) return tarnStatusSingular;
  } else {
    T c[N][N];
    const T d = inverse::adjugate<N>(a, c);
    if (tol > std::fabs(d)) return tarnStatusSingular;
    if constexpr (Approx) inverse::scaleTransposed(c, solve::approxRecip(d), out);
    else inverse::scaleTransposed(c, T(1) / d, out);
  }
  solve::store1(dst, out);
  return tarnStatusOk;
}

// Orders 3 and 4 of an array, kLanes matrices at a time: the determinant first, then the
// cofactors, scaled and stored row by row. On a singular matrix the walk stops: the matrices
// before it are written, with Pairs only those before its pair.
template <int N, bool Approx, class T, class Src, class Dst>
tarnStatus lanesInverse(const Src& src, const Dst& dst, int32_t count, T tol, bool pairs) {
  using V = solve::Lanes<T>;
  constexpr int NL = solve::kLanesOf<V>;
  for (int32_t n = 0; n < count; n += NL) {
    const int32_t nv = std::min<int32_t>(NL, count - n);
    V a[N][N], c[N][N];
    solve::gather(solve::groupOf<NL>(src, n, nv).v, a);
    V d;
    if constexpr (N == 4) d = inverse::cofactorsLast4(a, c[3]);
    else d = inverse::adjugate3(a, c);
    const int bad = solve::belowMask(d, tol);
    V q;
    if constexpr (Approx) q = solve::approxRecip(d);
    else q = solve::constant<V>(1) / d;
    if constexpr (N == 4) inverse::cofactorsRest4(a, c);
    const auto g = solve::groupOf<NL>(dst, n, nv);
    const int first = bad ? std::countr_zero(unsigned(bad)) : nv;
    const int write = bad && pairs ? first & ~1 : first;
    for (int i = 0; i < N; ++i) {
      V row[N];
      for (int j = 0; j < N; ++j) row[j] = c[j][i] * q;
      solve::scatterRow(g.v, row, i, write);
    }
    if (bad) return tarnStatusSingular;
  }
  return tarnStatusOk;
}

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  constexpr Shape S = shapeOf(P);
  constexpr bool kSingle = !S.anyArray;
  const int32_t n = c.order;
  if (n == 1) {  // a reciprocal per object, in the entry: no worker, no threads
    const auto src = operandOf<T, L, false, S.a>(c.op[0], 1);
    const auto dst = operandOf<T, L, false, Operand{'m', S.anyArray}, true>(c.op[2], 1);
    const T tol = cubeTolerance<T>(1);
    for (int32_t k = 0; k < (kSingle ? 1 : c.count); ++k) {
      const T x = loadElem(src.obj(k).at(0, 0));
      if (!(std::fabs(x) > tol)) return tarnStatusSingular;
      storeElem(dst.obj(k).at(0, 0), T(1) / x);
    }
    return tarnStatusOk;
  }
  return drive<T, L>(plan, c, [&]<bool Contig>(const Call& s) -> tarnStatus {
    const auto src = operandOf<T, L, Contig, S.a>(s.op[0], n);
    T* const w = plainOf<T>(s.op[1]);
    const auto dst = operandOf<T, L, Contig, Operand{'m', S.anyArray}, true>(s.op[2], n);
    const int32_t count = kSingle ? 1 : s.count;
    const T tol = toleranceOf<T, kSingle, L, Contig>(n);
    const bool approx = approxAt<T, kSingle, L, Contig>(n);
    auto fixed = [&]<int N>() -> tarnStatus {
      auto each = [&]<bool Approx>() -> tarnStatus {
        if constexpr (N <= 4 && !kSingle) {
          // Aligned pairs: both objects' rows of 16 bytes at 16-byte addresses.
          bool pairs = false;
          if constexpr (N == 4 && Approx && L == Layout::S && std::is_same_v<T, float>)
            pairs = ((reinterpret_cast<uintptr_t>(s.op[0].ptr) | reinterpret_cast<uintptr_t>(s.op[2].ptr) |
                      uint32_t(s.op[0].obj) | uint32_t(s.op[2].obj)) & 15) == 0 &&
                    s.op[0].row == 16 && s.op[2].row == 16;
          return lanesInverse<N, Approx>(src, dst, count, tol, pairs);
        } else {
          for (int32_t k = 0; k < count; ++k)
            if (const tarnStatus st = closedInverse<N, Approx>(src.obj(k), dst.obj(k), tol)) return st;
          return tarnStatusOk;
        }
      };
      if constexpr (std::is_same_v<T, float>)
        if (approx) return each.template operator()<true>();
      return each.template operator()<false>();
    };
    switch (n) {
      case 3: return fixed.template operator()<3>();
      case 4: return fixed.template operator()<4>();
      case 5: return fixed.template operator()<5>();
      case 6: return fixed.template operator()<6>();
    }
    for (int32_t k = 0; k < count; ++k)
      if (const tarnStatus st = generalInverse(src.obj(k), dst.obj(k), w, n)) return st;
    return tarnStatusOk;
  });
}

}  // namespace tarn::invert

#define TARN_IMPL_invert
#include "bindings.hpp"
